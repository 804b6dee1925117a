#pragma once

#include "ui/file_panel_dialog.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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
class OpenPanelDialog : public FilePanelDialog {
    Q_OBJECT

public:
    /// The panel must outlive it, and so must the settings.
    OpenPanelDialog(OpenPanel &panel, WidgetOf widgetOf, QObject *parent,
                    std::optional<FolderSetting> lastFolder = std::nullopt);

private:
    QFileDialog *makeDialog(QWidget *parent) override;
    void dress(QFileDialog &dialog);
    void offerFiles(QFileDialog &dialog) const;
    void addFolderButton(QFileDialog &dialog);
    void addAccessory(QFileDialog &dialog);
    std::string startFolder() const;
    void answer(const QStringList &paths);

    OpenPanel &panel_;
    const std::optional<FolderSetting> lastFolder_;
};

} // namespace pinmora
