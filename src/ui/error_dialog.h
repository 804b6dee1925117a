#pragma once

#include "ui/sheet_dialog.h"

namespace pinmora {

class ErrorSheet;

/// Shows an error sheet: what went wrong, and one button that has it read.
class ErrorDialog : public SheetDialog {
    Q_OBJECT

public:
    /// The sheet must outlive the dialog.
    ErrorDialog(ErrorSheet &errors, WidgetOf widgetOf, QWidget *owner);
};

} // namespace pinmora
