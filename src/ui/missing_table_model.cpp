#include "ui/missing_table_model.h"

#include "store/image.h"
#include "ui/theme.h"

#include <QFile>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace pinmora {
namespace {

QString shown(const std::string &path) {
    return QFile::decodeName(QByteArray::fromStdString(path));
}

/// "~/Desktop"
QString folderText(const std::string &folder, const std::string &home) {
    if (folder == home) {
        return QStringLiteral("~");
    }
    return folder.starts_with(home + "/") ? QLatin1Char('~') + shown(folder.substr(home.size()))
                                          : shown(folder);
}

} // namespace

MissingTableModel::MissingTableModel(ArrayController<image> &list, std::string home,
                                     QObject *parent)
    : QAbstractTableModel(parent), list_(list), home_(std::move(home)),
      following_([this] { follow(); }) {
    connections_.push_back(list.arrangementChanged.connect([this] { following_.ask(); }));
    connections_.push_back(list.selectionChanged.connect([this] { following_.ask(); }));
    follow();
}

MissingTableModel::Row MissingTableModel::rowOf(image &photo) const {
    const std::filesystem::path path = photo.full_file_path().string();
    return {.photo = &photo,
            .serial = photo.serial(),
            .name = shown(path.filename().native()),
            .folder = folderText(path.parent_path().native(), home_),
            .path = shown(path.native())};
}

bool MissingTableModel::isUpToDate() const {
    const std::vector<image *> &now = list_.arrangedObjects();
    return std::equal(rows_.begin(), rows_.end(), now.begin(), now.end(),
                      [](const Row &row, const image *photo) {
                          return row.photo == photo && row.serial == photo->serial();
                      });
}

void MissingTableModel::follow() {
    if (!isUpToDate()) {
        beginResetModel();
        rows_.clear();
        for (image *photo : list_.arrangedObjects()) {
            rows_.push_back(rowOf(*photo));
        }
        endResetModel();
    }
    Q_EMIT followed();
}

int MissingTableModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int MissingTableModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MissingTableModel::data(const QModelIndex &index, int role) const {
    const Row &row = rows_.at(static_cast<std::size_t>(index.row()));
    const bool isName = index.column() == Photo;
    switch (role) {
    case Qt::DisplayRole:
        return isName ? row.name : row.folder;
    case Qt::AccessibleTextRole: // the first column speaks for the row
        return isName ? tr("%1, was in %2").arg(row.name, row.folder) : row.folder;
    case Qt::ForegroundRole:
        return isName ? QVariant() : colours().quietText;
    case Qt::ToolTipRole:
        return row.path.toHtmlEscaped();
    default:
        return {};
    }
}

QVariant MissingTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue<Qt::Alignment>(Qt::AlignVCenter | Qt::AlignLeft);
    }
    //: two columns: a missing photo, and the folder it was in
    return role != Qt::DisplayRole ? QVariant() : section == Photo ? tr("Photo") : tr("Was in");
}

} // namespace pinmora
