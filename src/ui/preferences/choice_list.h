#pragma once

#include <QWidget>

class QButtonGroup;
class QVBoxLayout;

namespace pinmora {

/// Things of which one is chosen, below one another, each with the sentence that says what it does.
class ChoiceList : public QWidget {
    Q_OBJECT

public:
    struct Choice {
        QString text;
        QString sentence;
    };

    /// `name` says what is chosen.
    ChoiceList(const QString &name, const QList<Choice> &choices, QWidget *parent = nullptr);

    void setChoice(int choice);
    /// The keyboard goes to the choice that is shown.
    void focusChoice();
    /// Puts something that belongs to the last choice below it.
    void addToLast(QWidget *widget);

Q_SIGNALS:
    /// By a person.
    void chosen(int choice);

private:
    QButtonGroup *buttons_;
    QVBoxLayout *column_;
};

} // namespace pinmora
