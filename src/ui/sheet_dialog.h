#pragma once

#include "outlets/window.h"
#include "ui/bindings.h"
#include "ui/roles.h"

#include <QDialog>

#include <functional>
#include <optional>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace pinmora {

/// The widget in which a window is shown; null when it has none.
using WidgetOf = std::function<QWidget *(const Window &)>;

/// A window-modal dialog for a sheet: it is up as long as the sheet hangs from a window, and
/// belongs to that window's widget. Escape and its close button cancel; only the sheet's end takes
/// it down.
class SheetDialog : public QDialog {
    Q_OBJECT

public:
    /// The sheet must outlive the dialog. Without `cancel` Escape does nothing. `owner` owns the
    /// dialog until it is first up.
    SheetDialog(Sheet &sheet, WidgetOf widgetOf, std::function<void()> cancel, QWidget *owner);

    /// For a dialog that has been made because its sheet is up.
    void showIfUp();

    void reject() override;

protected:
    QVBoxLayout *column() { return column_; }
    /// A paragraph at the end of the column so far.
    QLabel *addText(std::optional<Role> role, const QString &text = {});
    /// The row of buttons at the bottom: `left` ones apart from the others.
    void addButtons(const QList<QPushButton *> &left, const QList<QPushButton *> &right);
    /// To be called when texts have changed.
    void fit();
    /// Called before the dialog comes up.
    virtual void aboutToShow() {}

    Bindings bindings_;

private:
    void follow(Window *host);
    void drawNow();

    Sheet &sheet_;
    const WidgetOf widgetOf_;
    const std::function<void()> cancel_;
    QWidget *const owner_;
    QVBoxLayout *column_;
    bool isNew_ = false; ///< it has come up and nobody has waited for it
};

} // namespace pinmora
