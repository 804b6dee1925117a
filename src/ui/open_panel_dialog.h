#pragma once

#include "ui/bindings.h"
#include "ui/sheet_dialog.h"

#include <QObject>
#include <QPointer>

#include <string>
#include <vector>

class QFileDialog;

namespace pinmora {

class OpenPanel;

/// Shows an open panel as a file dialog of the toolkit. Where folders may be chosen besides files,
/// a button of its own takes the folder that is seen, with all that is in it.
class OpenPanelDialog : public QObject {
    Q_OBJECT

public:
    /// The panel must outlive it.
    OpenPanelDialog(OpenPanel &panel, WidgetOf widgetOf, QObject *parent);

    /// The dialog while it is up.
    QFileDialog *dialog() const;

private:
    void follow(Window *host);
    void startAt(const std::string &directory);
    void addFolderButton();
    void answer(const QStringList &paths);

    OpenPanel &panel_;
    const WidgetOf widgetOf_;
    QPointer<QFileDialog> dialog_;
    Bindings bindings_;
};

} // namespace pinmora
