#pragma once

#include "ui/bindings.h"
#include "ui/sheet_dialog.h"

#include <QObject>
#include <QPointer>

#include <string>
#include <string_view>
#include <vector>

class QFileDialog;

namespace pinmora {

class Defaults;
class OpenPanel;

/// The setting in which a panel keeps the folder that was chosen last.
struct FolderSetting {
    Defaults &defaults;
    std::string_view key;
};

/// Shows an open panel as a file dialog of the toolkit. Where folders may be chosen besides files,
/// a button of its own takes the folder that is seen, with all that is in it. A panel for folders
/// alone starts in the one that was chosen last, unless it says itself where.
class OpenPanelDialog : public QObject {
    Q_OBJECT

public:
    /// The panel must outlive it, and so must the settings.
    OpenPanelDialog(OpenPanel &panel, WidgetOf widgetOf, QObject *parent,
                    std::optional<FolderSetting> lastFolder = std::nullopt);

    /// The dialog while it is up.
    QFileDialog *dialog() const;

private:
    void follow(Window *host);
    void makeDialog(QWidget *parent);
    void offerFiles();
    void offerFolders();
    void startAt(const std::string &directory);
    void addFolderButton();
    void addAccessory();
    std::string startFolder() const;
    void answer(const QStringList &paths);

    OpenPanel &panel_;
    const WidgetOf widgetOf_;
    const std::optional<FolderSetting> lastFolder_;
    QPointer<QFileDialog> dialog_;
    Bindings bindings_;
};

} // namespace pinmora
