#pragma once

#include "ui/sheet_dialog.h"

namespace pinmora {

class RemoveAllPhotos;

/// Asks whether all photos are to be removed from the library.
class RemoveAllDialog : public SheetDialog {
    Q_OBJECT

public:
    /// The command must outlive the dialog.
    RemoveAllDialog(RemoveAllPhotos &command, WidgetOf widgetOf, QWidget *owner);
};

} // namespace pinmora
