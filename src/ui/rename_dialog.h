#pragma once

#include "ui/sheet_dialog.h"

class QLineEdit;

namespace pinmora {

class NotificationCentre;
class Renaming;
struct RenamingOutlets;

/// The sheet in which photos get new names: one name is typed, and they are numbered.
class RenameDialog : public SheetDialog {
    Q_OBJECT

public:
    /// All must outlive the dialog. What happens to the name's field is posted through
    /// `notifications`.
    RenameDialog(RenamingOutlets &outlets, Renaming &renaming, NotificationCentre &notifications,
                 WidgetOf widgetOf, QWidget *owner);

protected:
    void aboutToShow() override;

private:
    TextField &field() const;
    void showOutcome();

    RenamingOutlets &outlets_;
    NotificationCentre &notifications_;
    QLineEdit *name_;
    QLabel *outcome_ = nullptr;
    QPushButton *selected_;
    QPushButton *all_;
};

} // namespace pinmora
