#pragma once

#include "outlets/attributed_text.h"
#include "outlets/browser_view.h"
#include "outlets/controls.h"
#include "outlets/image_well.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace pinmora {

class BrowsedPicture;
class FSNodeInfo;
struct Workspace;

struct FileBrowserOutlets {
    BrowserView fsBrowser;
    AttributedField nodeInspector;
    ImageWell selectedNewFileImage;
    Observable<bool> pictureLoading{false};
    Button updateFileLink; ///< takes the selected file
};

/// Lets a person look through the home folder for a photo's new place. Hidden entries are left out.
class FileBrowser {
public:
    /// All must outlive it. `home` is the folder of the first column.
    FileBrowser(FileBrowserOutlets &outlets, const Workspace &workspace, std::string home);
    ~FileBrowser();
    FileBrowser(const FileBrowser &) = delete;
    FileBrowser &operator=(const FileBrowser &) = delete;

    /// Loads the first column, with nothing to be taken yet.
    void setUp();
    /// The folder that a column shows: 0 the home folder, n the selection's n-th folder.
    std::string fsPathToColumn(int column) const;
    std::size_t numberOfRowsInColumn(int column) const;
    /// Whoever shows a column has filled its cells.
    void willDisplayCells();
    /// The selection is another one.
    void browserSingleClick();
    /// And its entry is to be opened with the desktop's program for it.
    void browserDoubleClick();
    void reloadData();

    /// The home folder followed by the browser's path; "" unless one entry is selected.
    std::string selectedPath() const;
    const std::string &home() const { return home_; }

private:
    /// Lets its picture be shown, and be taken, where it may.
    AttributedText attributedInspectorStringForFSNode(const FSNodeInfo &node);
    /// "": none may be shown, and nothing be taken.
    void showPicture(const std::string &path);

    FileBrowserOutlets &outlets_;
    const Workspace &workspace_;
    const std::string home_;
    std::unique_ptr<BrowsedPicture> picture_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
