#pragma once

#include <QAbstractItemModel>

#include <memory>
#include <optional>
#include <string>
#include <system_error>

namespace pinmora {

/// The folders and files below the home folder. A folder has its rows from open() to close(): they
/// are listed in the background and come in all at once.
class BrowserModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Role {
        IsFolder = Qt::UserRole, ///< or a link to one
        IsLink,
        IsReadable ///< asks the file system the first time
    };

    explicit BrowserModel(std::string home, QObject *parent = nullptr);
    ~BrowserModel() override;
    BrowserModel(const BrowserModel &) = delete;
    BrowserModel &operator=(const BrowserModel &) = delete;

    // Folders are meant by their index; an invalid one is the home folder.

    void open(const QModelIndex &folder);
    void close(const QModelIndex &folder);
    /// Closes all.
    void clear();

    /// Whether an open folder has all of its rows.
    bool isListed(const QModelIndex &folder) const;
    /// Why an open folder has none of its rows, or not all.
    std::error_code error(const QModelIndex &folder) const;
    /// From the home folder on, as bytes: "/Pictures/lake.jpg".
    std::string path(const QModelIndex &index) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    using QObject::parent;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    /// A folder that was opened has its rows, or never will. It must not be closed by a receiver.
    void listed(const QModelIndex &folder);

private:
    struct Node;
    struct Rows;

    Node &nodeAt(const QModelIndex &index) const;
    QModelIndex indexOf(const Node &node) const;
    void take(Node &folder, Rows &&rows);

    std::unique_ptr<Node> home_;
};

} // namespace pinmora
