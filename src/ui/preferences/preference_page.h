#pragma once

#include "shell/address_preference.h"
#include "shell/preference.h"
#include "ui/bindings.h"
#include "ui/preferences/address_field.h"
#include "ui/preferences/choice_list.h"

#include <QScrollArea>

#include <algorithm>
#include <vector>

class QLayout;
class QVBoxLayout;

namespace pinmora {

/// A page of the preferences: settings below one another under headings, each with the sentence
/// that says what it does. It scrolls where it is higher than the window.
class PreferencePage : public QScrollArea {
    Q_OBJECT

public:
    explicit PreferencePage(const QString &title, QWidget *parent = nullptr);

    /// Whether nothing is typed that cannot be stored; what can be is stored.
    bool takeOver();
    /// Turns the keyboard to the first field whose text cannot be stored, if there is one.
    void turnToUnfit();

protected:
    void addHeading(const QString &text);
    /// Below what has been added last.
    void addSentence(const QString &text);
    void addWidget(QWidget *widget);
    void addLayout(QLayout *layout);
    void addBox(Preference<bool> &preference, const QString &text, const QString &sentence);

    template <class T>
    struct Choice {
        T value;
        QString text;
        QString sentence;
    };
    template <class T>
    void addChoices(Preference<T> &preference, const QString &name,
                    const QList<Choice<T>> &choices) {
        QList<ChoiceList::Choice> shown;
        std::vector<T> values;
        for (const Choice<T> &choice : choices) {
            shown.append({choice.text, choice.sentence});
            values.push_back(choice.value);
        }
        auto *const list = new ChoiceList(name, shown);
        addWidget(list);
        bindings_.watch(preference.value(), [list, values](const T &value) {
            list->setChoice(
                static_cast<int>(std::find(values.begin(), values.end(), value) - values.begin()));
        });
        connect(list, &ChoiceList::chosen, this, [&preference, values](int chosen) {
            preference.choose(values.at(static_cast<std::size_t>(chosen)));
        });
    }

    /// The choices of such a preference, the last with a field below it.
    ChoiceList *addChoices(AddressPreference &preference, const QString &name,
                           const QList<ChoiceList::Choice> &choices,
                           const AddressField::Texts &field);
    /// One more field below the last choice.
    void addField(ChoiceList &list, AddressPreference &preference,
                  const AddressField::Texts &texts);

    Bindings bindings_;

private:
    QVBoxLayout *column_;
    QList<AddressField *> fields_;
};

} // namespace pinmora
