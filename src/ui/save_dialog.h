#pragma once

#include "ui/sheet_dialog.h"

namespace pinmora {

struct SaveOutlets;

/// Shows how far a save of photos has come, and lets a person cancel it.
class SaveDialog : public SheetDialog {
    Q_OBJECT

public:
    /// The outlets must outlive the dialog.
    SaveDialog(SaveOutlets &save, WidgetOf widgetOf, QWidget *owner);
};

} // namespace pinmora
