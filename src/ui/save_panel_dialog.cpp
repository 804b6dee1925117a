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
    : FilePanelDialog(panel.sheet(), std::move(widgetOf), parent), panel_(panel) {
    begin();
}

QFileDialog *SavePanelDialog::makeDialog(QWidget *parent) {
    auto *const dialog = new QFileDialog(parent, QString::fromStdString(panel_.title));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDirectory(startFolder(panel_));
    dialog->selectFile(QString::fromStdString(panel_.nameFieldStringValue));
    makeRoomy(*dialog);
    makeCalm(*dialog);
    showTypes(*dialog, false);
    connect(dialog, &QFileDialog::rejected, this, [this] { panel_.answer({}); });
    connect(dialog, &QFileDialog::accepted, this,
            [this, dialog] { panel_.answer(filePath(dialog->selectedFiles().value(0))); });
    return dialog;
}

} // namespace pinmora
