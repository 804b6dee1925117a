#pragma once

#include "ui/bindings.h"
#include "ui/sheet_dialog.h"

#include <QObject>
#include <QPointer>

class QFileDialog;

namespace pinmora {

class Sheet;

/// A panel of files as a file dialog of the toolkit, up as long as the panel's sheet is.
class FilePanelDialog : public QObject {
    Q_OBJECT

public:
    /// The sheet must outlive it.
    FilePanelDialog(Sheet &sheet, WidgetOf widgetOf, QObject *parent);
    /// The dialog while it is up.
    QFileDialog *dialog() const;

protected:
    /// Follows the sheet from now on. Once only, when all else is made.
    void begin();
    /// A dialog as the panel wants it now, whose answer is connected to this object.
    virtual QFileDialog *makeDialog(QWidget *parent) = 0;

private:
    void follow(Window *host);

    Sheet &sheet_;
    const WidgetOf widgetOf_;
    QPointer<QFileDialog> dialog_;
    Bindings bindings_;
};

} // namespace pinmora
