#include "ui/save_panel_dialog.h"

#include "outlets/save_panel.h"
#include "ui/file_names.h"
#include "ui/file_panel_look.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>

#include <utility>

namespace pinmora {
namespace {

QString startFolder(const SavePanel &panel) {
    const QString wanted = QFile::decodeName(QByteArray::fromStdString(panel.directory));
    const QString downloads = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    for (const QString &folder : {wanted, downloads}) {
        if (!folder.isEmpty() && QDir(folder).exists()) {
            return folder;
        }
    }
    return QDir::homePath();
}

} // namespace

SavePanelDialog::SavePanelDialog(SavePanel &panel, WidgetOf widgetOf, QObject *parent)
    : QObject(parent), panel_(panel), widgetOf_(std::move(widgetOf)) {
    bindings_.watch(panel.sheet().host(), [this](Window *host) { follow(host); });
}

QFileDialog *SavePanelDialog::dialog() const {
    return dialog_;
}

void SavePanelDialog::follow(Window *host) {
    if (dialog_) {
        dialog_->disconnect(this);
        dialog_->hide();
        dialog_->deleteLater();
        dialog_ = nullptr;
    }
    if (!host) {
        return;
    }
    dialog_ = new QFileDialog(widgetOf_(*host), QString::fromStdString(panel_.title));
    dialog_->setAcceptMode(QFileDialog::AcceptSave);
    dialog_->setFileMode(QFileDialog::AnyFile);
    dialog_->setDirectory(startFolder(panel_));
    dialog_->selectFile(QString::fromStdString(panel_.nameFieldStringValue));
    makeRoomy(*dialog_);
    makeCalm(*dialog_);
    showTypes(*dialog_, false);
    connect(dialog_, &QFileDialog::rejected, this, [this] { panel_.answer({}); });
    connect(dialog_, &QFileDialog::accepted, this,
            [this] { panel_.answer(filePath(dialog_->selectedFiles().value(0))); });
    dialog_->setWindowModality(Qt::WindowModal);
    dialog_->open();
}

} // namespace pinmora
