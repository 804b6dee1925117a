#include "ui/open_panel_dialog.h"

#include "outlets/open_panel.h"
#include "platform/defaults.h"
#include "ui/file_names.h"
#include "ui/file_panel_look.h"
#include "ui/folder_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

namespace pinmora {

namespace {

QString nameFilter(const OpenPanel &panel) {
    QStringList patterns;
    for (const std::string &type : panel.allowedTypes) {
        patterns << QStringLiteral("*.") + QString::fromStdString(type);
    }
    return QStringLiteral("%1 (%2)").arg(QString::fromStdString(panel.typesName),
                                         patterns.join(u' '));
}

/// The folders among what is marked, else the one that is seen.
QStringList foldersOf(const QFileDialog &dialog) {
    QStringList folders;
    for (const QString &path : dialog.selectedFiles()) {
        if (QFileInfo(path).isDir()) {
            folders << path;
        }
    }
    return folders.isEmpty() ? QStringList{dialog.directory().absolutePath()} : folders;
}

/// What stands in the field, where that is a folder. While a path is typed the toolkit marks each
/// folder that is named on the way; what it has left marked it would answer with instead.
QStringList foldersNamedIn(const QFileDialog &dialog) {
    const auto *const name = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (name && !name->text().isEmpty()) {
        const QString typed = dialog.directory().absoluteFilePath(name->text());
        if (QFileInfo(typed).isDir()) {
            return {QDir::cleanPath(typed)};
        }
    }
    return dialog.selectedFiles();
}

void offerFolders(QFileDialog &dialog) {
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
}

void startAt(QFileDialog &dialog, const std::string &directory) {
    const QFileInfo start(QFile::decodeName(QByteArray::fromStdString(directory)));
    if (directory.empty() || !start.exists()) {
        dialog.setDirectory(QDir::home());
    } else {
        dialog.setDirectory(start.isDir() ? start.absoluteFilePath() : start.absolutePath());
    }
}

} // namespace

OpenPanelDialog::OpenPanelDialog(OpenPanel &panel, WidgetOf widgetOf, QObject *parent,
                                 std::optional<FolderSetting> lastFolder)
    : FilePanelDialog(panel.sheet(), std::move(widgetOf), parent), panel_(panel),
      lastFolder_(lastFolder) {
    begin();
}

QFileDialog *OpenPanelDialog::makeDialog(QWidget *parent) {
    const QString title = QString::fromStdString(panel_.title);
    QFileDialog *const dialog = !panel_.canChooseFiles && panel_.canCreateDirectories
                                    ? new FolderDialog(parent, title)
                                    : new QFileDialog(parent, title);
    dress(*dialog);
    connect(dialog, &QFileDialog::rejected, this, [this] { answer({}); });
    connect(dialog, &QFileDialog::accepted, this, [this, dialog] {
        answer(panel_.canChooseFiles ? dialog->selectedFiles() : foldersNamedIn(*dialog));
    });
    return dialog;
}

void OpenPanelDialog::dress(QFileDialog &dialog) {
    const bool hasAccessory =
        panel_.accessory.visible.get() && !panel_.accessory.title.get().empty();
    // Dialogs of the desktop choose files or folders, not both, and have no room for our own.
    dialog.setOption(QFileDialog::DontUseNativeDialog,
                     hasAccessory || (panel_.canChooseDirectories && panel_.canChooseFiles));
    dialog.setOption(QFileDialog::ReadOnly, !panel_.canCreateDirectories);
    panel_.canChooseFiles ? offerFiles(dialog) : offerFolders(dialog);
    if (!panel_.prompt.empty()) {
        dialog.setLabelText(QFileDialog::Accept, QString::fromStdString(panel_.prompt));
    }
    startAt(dialog, startFolder());
    makeRoomy(dialog);
    makeCalm(dialog);
    showTypes(dialog, panel_.canChooseFiles);
    if (panel_.canChooseDirectories && panel_.canChooseFiles) {
        addFolderButton(dialog);
    }
    if (hasAccessory) {
        addAccessory(dialog);
    }
}

void OpenPanelDialog::offerFiles(QFileDialog &dialog) const {
    dialog.setOption(QFileDialog::HideNameFilterDetails); // twenty spellings of extensions
    dialog.setFileMode(panel_.allowsMultipleSelection ? QFileDialog::ExistingFiles
                                                      : QFileDialog::ExistingFile);
    dialog.setFilter(QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot | QDir::CaseSensitive);
    if (!panel_.allowedTypes.empty()) {
        dialog.setNameFilter(nameFilter(panel_));
    }
}

std::string OpenPanelDialog::startFolder() const {
    if (!panel_.directory.empty() || !lastFolder_) {
        return panel_.directory;
    }
    return lastFolder_->defaults.text(lastFolder_->key).value_or("");
}

void OpenPanelDialog::addAccessory(QFileDialog &dialog) {
    auto *const grid = qobject_cast<QGridLayout *>(dialog.layout());
    if (!grid) {
        return;
    }
    auto *const box = new QCheckBox(QString::fromStdString(panel_.accessory.title.get()), &dialog);
    box->setChecked(panel_.accessory.on.get());
    box->setEnabled(panel_.accessory.enabled.get());
    connect(box, &QCheckBox::toggled, this, [this](bool on) { panel_.accessory.on.set(on); });
    grid->addWidget(box, grid->rowCount(), 0, 1, -1);
}

void OpenPanelDialog::addFolderButton(QFileDialog &dialog) {
    auto *buttons = dialog.findChild<QDialogButtonBox *>();
    if (!buttons) {
        return;
    }
    QPushButton *const whole =
        buttons->addButton(tr("Add Whole Folder"), QDialogButtonBox::ActionRole);
    whole->setAutoDefault(false);
    whole->setToolTip(tr("Adds the photos and logs in the marked folders, or in the one that is "
                         "seen"));
    connect(whole, &QPushButton::clicked, this, [this, &dialog] { answer(foldersOf(dialog)); });
}

void OpenPanelDialog::answer(const QStringList &paths) {
    std::vector<std::string> names;
    for (const QString &path : paths) {
        names.push_back(filePath(path));
    }
    if (lastFolder_ && !names.empty()) {
        lastFolder_->defaults.setText(lastFolder_->key, names.front());
    }
    panel_.answer(std::move(names));
}

} // namespace pinmora
