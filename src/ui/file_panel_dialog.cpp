#include "ui/file_panel_dialog.h"

#include "outlets/window.h"

#include <QFileDialog>

#include <utility>

namespace pinmora {

FilePanelDialog::FilePanelDialog(Sheet &sheet, WidgetOf widgetOf, QObject *parent)
    : QObject(parent), sheet_(sheet), widgetOf_(std::move(widgetOf)) {}

QFileDialog *FilePanelDialog::dialog() const {
    return dialog_;
}

void FilePanelDialog::begin() {
    bindings_.watch(sheet_.host(), [this](Window *host) { follow(host); });
}

void FilePanelDialog::follow(Window *host) {
    if (dialog_) {
        dialog_->disconnect(this);
        dialog_->hide();
        dialog_->deleteLater();
        dialog_ = nullptr;
    }
    if (host) {
        dialog_ = makeDialog(widgetOf_(*host));
        dialog_->setWindowModality(Qt::WindowModal);
        dialog_->open();
    }
}

} // namespace pinmora
