#include "photos/file_browser.h"

#include "outlets/workspace.h"
#include "photos/browsed_picture.h"
#include "photos/file_names.h"
#include "photos/fs_node_info.h"
#include "platform/text_encoding.h"
#include "platform/translation.h"

#include <algorithm>
#include <string_view>

namespace pinmora {
namespace {

/// Whether an entry may be taken as a photo's new file, and has its picture shown.
bool isJpg(std::string_view path) {
    std::string extension(pathExtension(path));
    std::transform(extension.begin(), extension.end(), extension.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return extension == "jpg";
}

} // namespace

FileBrowser::FileBrowser(FileBrowserOutlets &outlets, const Workspace &workspace, std::string home)
    : outlets_(outlets), workspace_(workspace), home_(std::move(home)),
      picture_(std::make_unique<BrowsedPicture>(outlets.selectedNewFileImage.image,
                                                outlets.pictureLoading)) {}

FileBrowser::~FileBrowser() = default;

void FileBrowser::setUp() {
    connections_.push_back(
        outlets_.fsBrowser.selection.onChange([this](const auto &) { browserSingleClick(); }));
    connections_.push_back(
        outlets_.fsBrowser.doubleClicked.connect([this] { browserDoubleClick(); }));
    reloadData();
    browserSingleClick();
}

std::string FileBrowser::fsPathToColumn(int column) const {
    const std::vector<std::string> &selection = outlets_.fsBrowser.selection.get();
    std::string path = selection.empty() ? std::string() : selection.front();
    if (selection.size() > 1) { // which opens no column
        path.resize(path.rfind('/'));
    }
    std::size_t end = 0;
    for (int passed = 0; passed < column && end < path.size(); ++passed) {
        end = std::min(path.find('/', end + 1), path.size());
    }
    return home_ + path.substr(0, end);
}

std::size_t FileBrowser::numberOfRowsInColumn(int column) const {
    return FSNodeInfo::nodeWithParent(nullptr, fsPathToColumn(column)).visibleSubNodes().size();
}

void FileBrowser::willDisplayCells() {
    outlets_.updateFileLink.enabled.set(false);
    outlets_.updateFileLink.enabled.set(isJpg(selectedPath()));
}

void FileBrowser::browserSingleClick() {
    const std::string path = selectedPath();
    if (path.empty()) {
        const bool isNone = outlets_.fsBrowser.selection.get().empty();
        outlets_.nodeInspector.text.set({{isNone ? translated("photos", "No Selection")
                                                 : translated("photos", "Multiple Selection")}});
        showPicture({});
        return;
    }
    outlets_.nodeInspector.text.set(
        attributedInspectorStringForFSNode(FSNodeInfo::nodeWithParent(nullptr, path)));
}

void FileBrowser::browserDoubleClick() {
    browserSingleClick();
    const std::string path = selectedPath();
    if (!path.empty()) {
        workspace_.openFile(path);
    }
}

void FileBrowser::reloadData() {
    outlets_.fsBrowser.loadColumnZero();
    willDisplayCells();
}

std::string FileBrowser::selectedPath() const {
    const std::string path = outlets_.fsBrowser.path();
    return path.empty() ? path : home_ + path;
}

AttributedText FileBrowser::attributedInspectorStringForFSNode(const FSNodeInfo &node) {
    const std::string path = node.absolutePath();
    showPicture(isJpg(path) ? path : std::string());
    return {{.text = translated("photos", "Name: "), .bold = true},
            {.text = utf8OrLatin1(node.lastPathComponent()) + "\n"},
            {.text = translated("photos", "Type: "), .bold = true},
            {.text = node.fsType() + "\n"}};
}

void FileBrowser::showPicture(const std::string &path) {
    outlets_.updateFileLink.enabled.set(!path.empty());
    picture_->show(path);
}

} // namespace pinmora
