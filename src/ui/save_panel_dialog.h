#pragma once

#include "ui/file_panel_dialog.h"

namespace pinmora {

class SavePanel;

/// Shows a save panel as a file dialog of the toolkit, which asks by itself before a file is
/// replaced. Without a folder of the panel's it starts where downloads go.
class SavePanelDialog : public FilePanelDialog {
    Q_OBJECT

public:
    /// The panel must outlive it.
    SavePanelDialog(SavePanel &panel, WidgetOf widgetOf, QObject *parent);

private:
    QFileDialog *makeDialog(QWidget *parent) override;

    SavePanel &panel_;
};

} // namespace pinmora
