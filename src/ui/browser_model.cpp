#include "ui/browser_model.h"

#include "photos/folder_entries.h"
#include "photos/fs_node_info.h"
#include "platform/background_job.h"
#include "platform/text_encoding.h"

#include <atomic>
#include <utility>

namespace pinmora {

struct BrowserModel::Rows {
    std::vector<Node> nodes;
    std::error_code error;
};

struct BrowserModel::Node {
    /// What an open folder has besides.
    struct Open {
        Rows rows;
        bool isListed = false;
        std::shared_ptr<std::atomic<bool>> goesOn = std::make_shared<std::atomic<bool>>(true);
        BackgroundJob listing;

        Open() = default;
        /// Before the job goes, which waits for its work.
        ~Open() { *goesOn = false; }
        Open(const Open &) = delete;
        Open &operator=(const Open &) = delete;
    };

    FSNodeInfo info;
    Node *folder = nullptr;
    int row = 0;
    bool isFolder = false;
    bool isLink = false;
    std::optional<bool> isReadable;
    std::unique_ptr<Open> opened;

    QString title() const { return QString::fromStdString(utf8OrLatin1(info.relativePath())); }
    bool mayBeRead() {
        if (!isReadable) {
            isReadable = info.isReadable();
        }
        return *isReadable;
    }
};

namespace {

QString spoken(const QString &title, bool isFolder, bool isLink) {
    if (isLink) {
        return isFolder ? BrowserModel::tr("%1, link to a folder").arg(title)
                        : BrowserModel::tr("%1, link").arg(title);
    }
    return isFolder ? BrowserModel::tr("%1, folder").arg(title) : title;
}

} // namespace

BrowserModel::BrowserModel(std::string home, QObject *parent)
    : QAbstractItemModel(parent),
      home_(new Node{.info = FSNodeInfo::nodeWithParent(nullptr, std::move(home)),
                     .folder = nullptr,
                     .row = 0,
                     .isFolder = true,
                     .isLink = false,
                     .isReadable = std::nullopt,
                     .opened = nullptr}) {}

BrowserModel::~BrowserModel() = default;

BrowserModel::Node &BrowserModel::nodeAt(const QModelIndex &index) const {
    return index.isValid() ? *static_cast<Node *>(index.internalPointer()) : *home_;
}

QModelIndex BrowserModel::indexOf(const Node &node) const {
    return &node == home_.get() ? QModelIndex() : createIndex(node.row, 0, &node);
}

void BrowserModel::open(const QModelIndex &folder) {
    close(folder);
    Node &node = nodeAt(folder);
    node.opened = std::make_unique<Node::Open>();
    node.opened->listing.start([this, at = &node, path = node.info.absolutePath(),
                                goesOn = node.opened->goesOn]() -> BackgroundJob::Outcome {
        FolderEntries listing =
            folderEntries(path, HiddenEntries::LeftOut, [&goesOn] { return goesOn->load(); });
        auto rows = std::make_shared<Rows>();
        rows->error = listing.error;
        rows->nodes.reserve(listing.entries.size());
        for (FolderEntry &entry : listing.entries) {
            rows->nodes.push_back(
                {.info = FSNodeInfo::nodeWithParent(&at->info, std::move(entry.name)),
                 .folder = at,
                 .row = static_cast<int>(rows->nodes.size()),
                 .isFolder = entry.isFolder,
                 .isLink = entry.isLink,
                 .isReadable = std::nullopt,
                 .opened = nullptr});
        }
        return [this, at, rows] { take(*at, std::move(*rows)); };
    });
}

void BrowserModel::take(Node &folder, Rows &&rows) {
    const QModelIndex index = indexOf(folder);
    const int count = static_cast<int>(rows.nodes.size());
    if (count > 0) {
        beginInsertRows(index, 0, count - 1);
    }
    folder.opened->rows = std::move(rows);
    folder.opened->isListed = true;
    if (count > 0) {
        endInsertRows();
    }
    Q_EMIT listed(index);
}

void BrowserModel::close(const QModelIndex &folder) {
    Node &node = nodeAt(folder);
    if (!node.opened) {
        return;
    }
    const int count = rowCount(folder);
    if (count > 0) {
        beginRemoveRows(folder, 0, count - 1);
    }
    node.opened.reset();
    if (count > 0) {
        endRemoveRows();
    }
}

void BrowserModel::clear() {
    beginResetModel();
    home_->opened.reset();
    endResetModel();
}

bool BrowserModel::isListed(const QModelIndex &folder) const {
    const Node &node = nodeAt(folder);
    return node.opened && node.opened->isListed;
}

std::error_code BrowserModel::error(const QModelIndex &folder) const {
    const Node &node = nodeAt(folder);
    return node.opened ? node.opened->rows.error : std::error_code{};
}

std::string BrowserModel::path(const QModelIndex &index) const {
    std::string path;
    for (const Node *node = &nodeAt(index); node->folder; node = node->folder) {
        path.insert(0, "/" + node->info.relativePath());
    }
    return path;
}

QModelIndex BrowserModel::index(int row, int column, const QModelIndex &parent) const {
    return hasIndex(row, column, parent)
               ? createIndex(row, column,
                             &nodeAt(parent).opened->rows.nodes[static_cast<std::size_t>(row)])
               : QModelIndex();
}

QModelIndex BrowserModel::parent(const QModelIndex &child) const {
    return child.isValid() ? indexOf(*nodeAt(child).folder) : QModelIndex();
}

int BrowserModel::rowCount(const QModelIndex &parent) const {
    const Node &node = nodeAt(parent);
    return node.opened ? static_cast<int>(node.opened->rows.nodes.size()) : 0;
}

int BrowserModel::columnCount(const QModelIndex & /*parent*/) const {
    return 1;
}

/// Not by whether its rows are there: a folder is one before it is looked into.
bool BrowserModel::hasChildren(const QModelIndex &parent) const {
    return nodeAt(parent).isFolder;
}

QVariant BrowserModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    Node &node = nodeAt(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return node.title();
    case Qt::AccessibleTextRole:
        return spoken(node.title(), node.isFolder, node.isLink);
    case IsFolder:
        return node.isFolder;
    case IsLink:
        return node.isLink;
    case IsReadable:
        return node.mayBeRead();
    default:
        return {};
    }
}

Qt::ItemFlags BrowserModel::flags(const QModelIndex &index) const {
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    Node &node = nodeAt(index);
    Qt::ItemFlags flags = Qt::ItemIsSelectable;
    flags.setFlag(Qt::ItemIsEnabled, node.mayBeRead());
    flags.setFlag(Qt::ItemNeverHasChildren, !node.isFolder);
    return flags;
}

} // namespace pinmora
