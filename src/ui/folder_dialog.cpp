#include "ui/folder_dialog.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>

namespace pinmora {

FolderDialog::FolderDialog(QWidget *parent, const QString &title) : QFileDialog(parent, title) {
    setOption(DontUseNativeDialog);
    setFileMode(Directory);
    setOption(ShowDirsOnly);
    if (const auto *name = findChild<QLineEdit *>()) {
        connect(name, &QLineEdit::textChanged, this, &FolderDialog::allowNewFolder);
    }
}

/// The path of what is typed, where it can be made; "" otherwise.
QString FolderDialog::newFolder() const {
    const auto *const name = findChild<QLineEdit *>();
    if (!name || name->text().isEmpty()) {
        return {};
    }
    const QFileInfo typed(directory(), QDir::cleanPath(name->text()));
    return !typed.exists() && typed.dir().exists() ? typed.absoluteFilePath() : QString();
}

/// The button that confirms is the toolkit's, which knows of folders that are there.
void FolderDialog::allowNewFolder() {
    const auto *const buttons = findChild<QDialogButtonBox *>();
    QPushButton *const confirm = buttons ? buttons->button(QDialogButtonBox::Open) : nullptr;
    if (confirm && !newFolder().isEmpty()) {
        confirm->setEnabled(true);
    }
}

void FolderDialog::accept() {
    if (const QString folder = newFolder(); !folder.isEmpty()) {
        QDir().mkdir(folder); // where that fails the toolkit says that there is no such folder
    }
    QFileDialog::accept();
}

} // namespace pinmora
