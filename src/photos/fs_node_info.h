#pragma once

#include <string>
#include <utility>
#include <vector>

namespace pinmora {

enum class HiddenEntries;

/// One entry of the file system, by its name in its parent's folder. Paths are bytes; nothing is
/// kept of what the file system says, which may change at any moment.
class FSNodeInfo {
public:
    /// The parent must outlive the node; without one `relativePath` is a whole path.
    static FSNodeInfo nodeWithParent(const FSNodeInfo *parent, std::string relativePath) {
        return {parent, std::move(relativePath)};
    }

    const std::string &relativePath() const { return relativePath_; }
    const FSNodeInfo *parentNode() const { return parentNode_; }

    std::string absolutePath() const;
    std::string lastPathComponent() const;
    /// "Directory" or "Non-Directory"
    std::string fsType() const;
    /// Whether it has a name that does not begin with a dot.
    bool isVisible() const;
    bool isReadable() const;
    /// Links are followed; one that leads nowhere, or round in a circle, is no folder.
    bool isDirectory() const;
    bool isLink() const;
    /// One for each entry of the folder, in the order of a listing for people; none for what cannot
    /// be read. They refer to this node.
    std::vector<FSNodeInfo> subNodes() const;
    std::vector<FSNodeInfo> visibleSubNodes() const;

private:
    FSNodeInfo(const FSNodeInfo *parent, std::string relativePath)
        : relativePath_(std::move(relativePath)), parentNode_(parent) {}

    std::vector<FSNodeInfo> nodesOf(HiddenEntries hidden) const;

    std::string relativePath_;
    const FSNodeInfo *parentNode_;
};

} // namespace pinmora
