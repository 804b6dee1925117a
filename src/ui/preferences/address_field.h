#pragma once

#include "ui/bindings.h"

#include <QWidget>

class QLabel;

namespace pinmora {

class AddressPreference;
class FieldEdit;

/// A field for an address of one's own: below it stands what it is for, or at once why what is
/// typed cannot be stored. It is seen only while it counts.
class AddressField : public QWidget {
    Q_OBJECT

public:
    struct Texts {
        QString label;
        QString example; ///< stands in the empty field
        QString sentence{};
    };

    /// The preference must outlive the field.
    AddressField(AddressPreference &preference, const Texts &texts, QWidget *parent = nullptr);

    /// Whether nothing is typed that cannot be stored; what can be is stored.
    bool takeOver();
    void focusEdit();

Q_SIGNALS:
    /// A person has taken back what was typed.
    void takenBack();

private:
    void showProblem(const QString &why);

    AddressPreference &preference_;
    const QString sentence_;
    FieldEdit *edit_;
    QLabel *below_;
    Bindings bindings_;
};

} // namespace pinmora
