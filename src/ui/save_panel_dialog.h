#pragma once

#include "ui/bindings.h"
#include "ui/sheet_dialog.h"

#include <QObject>
#include <QPointer>

class QFileDialog;

namespace pinmora {

class SavePanel;

/// Shows a save panel as a file dialog of the toolkit, which asks by itself before a file is
/// replaced. Without a folder of the panel's it starts where downloads go.
class SavePanelDialog : public QObject {
    Q_OBJECT

public:
    /// The panel must outlive it.
    SavePanelDialog(SavePanel &panel, WidgetOf widgetOf, QObject *parent);

    /// The dialog while it is up.
    QFileDialog *dialog() const;

private:
    void follow(Window *host);

    SavePanel &panel_;
    const WidgetOf widgetOf_;
    QPointer<QFileDialog> dialog_;
    Bindings bindings_;
};

} // namespace pinmora
