#pragma once

#include "ui/sheet_dialog.h"

namespace pinmora {

class QuitWarning;

/// Asks what becomes of unsaved work when the program is about to quit.
class QuitDialog : public SheetDialog {
    Q_OBJECT

public:
    /// The warning must outlive the dialog.
    QuitDialog(QuitWarning &warning, WidgetOf widgetOf, QWidget *owner);
};

} // namespace pinmora
