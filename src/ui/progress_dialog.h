#pragma once

#include "ui/sheet_dialog.h"

namespace pinmora {

class ProgressSheet;

/// Shows a progress sheet. It cannot be cancelled: the work that it tells of keeps the main thread.
class ProgressDialog : public SheetDialog {
    Q_OBJECT

public:
    /// The sheet must outlive the dialog.
    ProgressDialog(ProgressSheet &progress, WidgetOf widgetOf, QWidget *owner);
};

} // namespace pinmora
