#include "ui/open_panel_dialog.h"

#include "outlets/open_panel.h"
#include "platform/defaults.h"
#include "ui/file_names.h"
#include "ui/file_panel_look.h"

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

} // namespace

OpenPanelDialog::OpenPanelDialog(OpenPanel &panel, WidgetOf widgetOf, QObject *parent,
                                 std::optional<FolderSetting> lastFolder)
    : QObject(parent), panel_(panel), widgetOf_(std::move(widgetOf)), lastFolder_(lastFolder) {
    bindings_.keep(panel.sheet().host().onChange([this](Window *host) { follow(host); }));
    if (panel.sheet().isUp()) {
        follow(panel.sheet().host().get());
    }
}

QFileDialog *OpenPanelDialog::dialog() const {
    return dialog_;
}

void OpenPanelDialog::follow(Window *host) {
    if (dialog_) {
        dialog_->disconnect(this);
        dialog_->hide();
        dialog_->deleteLater();
        dialog_ = nullptr;
    }
    if (!host) {
        return;
    }
    makeDialog(widgetOf_(*host));
    connect(dialog_, &QFileDialog::rejected, this, [this] { answer({}); });
    connect(dialog_, &QFileDialog::accepted, this, [this] {
        answer(panel_.canChooseFiles ? dialog_->selectedFiles() : foldersNamedIn(*dialog_));
    });
    dialog_->setWindowModality(Qt::WindowModal);
    dialog_->open();
}

void OpenPanelDialog::makeDialog(QWidget *parent) {
    dialog_ = new QFileDialog(parent, QString::fromStdString(panel_.title));
    const bool hasAccessory =
        panel_.accessory.visible.get() && !panel_.accessory.title.get().empty();
    // Dialogs of the desktop choose files or folders, not both, and have no room for our own.
    dialog_->setOption(QFileDialog::DontUseNativeDialog,
                       hasAccessory || (panel_.canChooseDirectories && panel_.canChooseFiles));
    dialog_->setOption(QFileDialog::ReadOnly, !panel_.canCreateDirectories);
    panel_.canChooseFiles ? offerFiles() : offerFolders();
    if (!panel_.prompt.empty()) {
        dialog_->setLabelText(QFileDialog::Accept, QString::fromStdString(panel_.prompt));
    }
    startAt(startFolder());
    makeRoomy(*dialog_);
    makeCalm(*dialog_);
    showTypes(*dialog_, panel_.canChooseFiles);
    if (panel_.canChooseDirectories && panel_.canChooseFiles) {
        addFolderButton();
    }
    if (hasAccessory) {
        addAccessory();
    }
}

void OpenPanelDialog::offerFiles() {
    dialog_->setOption(QFileDialog::HideNameFilterDetails); // twenty spellings of extensions
    dialog_->setFileMode(panel_.allowsMultipleSelection ? QFileDialog::ExistingFiles
                                                        : QFileDialog::ExistingFile);
    dialog_->setFilter(QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot | QDir::CaseSensitive);
    if (!panel_.allowedTypes.empty()) {
        dialog_->setNameFilter(nameFilter(panel_));
    }
}

void OpenPanelDialog::offerFolders() {
    dialog_->setFileMode(QFileDialog::Directory);
    dialog_->setOption(QFileDialog::ShowDirsOnly);
}

std::string OpenPanelDialog::startFolder() const {
    if (!panel_.directory.empty() || !lastFolder_) {
        return panel_.directory;
    }
    return lastFolder_->defaults.text(lastFolder_->key).value_or("");
}

void OpenPanelDialog::addAccessory() {
    auto *const grid = qobject_cast<QGridLayout *>(dialog_->layout());
    if (!grid) {
        return;
    }
    auto *const box = new QCheckBox(QString::fromStdString(panel_.accessory.title.get()), dialog_);
    box->setChecked(panel_.accessory.on.get());
    box->setEnabled(panel_.accessory.enabled.get());
    connect(box, &QCheckBox::toggled, this, [this](bool on) { panel_.accessory.on.set(on); });
    grid->addWidget(box, grid->rowCount(), 0, 1, -1);
}

void OpenPanelDialog::startAt(const std::string &directory) {
    const QFileInfo start(QFile::decodeName(QByteArray::fromStdString(directory)));
    if (directory.empty() || !start.exists()) {
        dialog_->setDirectory(QDir::home());
    } else {
        dialog_->setDirectory(start.isDir() ? start.absoluteFilePath() : start.absolutePath());
    }
}

void OpenPanelDialog::addFolderButton() {
    auto *buttons = dialog_->findChild<QDialogButtonBox *>();
    if (!buttons) {
        return;
    }
    QPushButton *const whole =
        buttons->addButton(tr("Add Whole Folder"), QDialogButtonBox::ActionRole);
    whole->setAutoDefault(false);
    whole->setToolTip(tr("Adds the photos and logs in the marked folders, or in the one that is "
                         "seen"));
    connect(whole, &QPushButton::clicked, this, [this] { answer(foldersOf(*dialog_)); });
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
