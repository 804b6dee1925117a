#pragma once

#include "ui/sheet_dialog.h"

namespace pinmora {

class versionDownload;

/// Shows how far the download of a new version has come, or why it has failed.
class DownloadDialog : public SheetDialog {
    Q_OBJECT

public:
    /// The download must outlive the dialog.
    DownloadDialog(versionDownload &download, WidgetOf widgetOf, QWidget *owner);
};

} // namespace pinmora
