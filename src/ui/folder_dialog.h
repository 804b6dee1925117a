#pragma once

#include <QFileDialog>

namespace pinmora {

/// The toolkit's chooser of one folder. A folder that is typed and not there yet is made, inside
/// one that is: the toolkit's own has a button for it, and calls a typed one not found.
class FolderDialog : public QFileDialog {
    Q_OBJECT

public:
    FolderDialog(QWidget *parent, const QString &title);

    void accept() override;

private:
    QString newFolder() const;
    void allowNewFolder();
};

} // namespace pinmora
