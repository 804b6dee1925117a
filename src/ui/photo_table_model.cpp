#include "ui/photo_table_model.h"

#include "matching/photo_gaps.h"
#include "persistence/context.h"
#include "platform/scoped_flag.h"
#include "saving/save_marks.h"
#include "shell/photo_order.h"
#include "store/image.h"
#include "store/track_part.h"
#include "ui/photo_texts.h"
#include "ui/position_origin.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace pinmora {
namespace {

constexpr std::size_t manyPoints = 100'000;

bool sameMembers(const std::unordered_map<const image *, int> &known,
                 const std::vector<image *> &arranged) {
    return known.size() == arranged.size() &&
           std::all_of(arranged.begin(), arranged.end(),
                       [&known](const image *photo) { return known.contains(photo); });
}

} // namespace

PhotoTableModel::PhotoTableModel(Context &context, ArrayController<image> &pictureArray,
                                 PhotoGaps &gaps, PhotoOrder &order, SaveMarks *marks,
                                 QObject *parent)
    : QAbstractTableModel(parent), context_(context), pictureArray_(pictureArray), gaps_(gaps),
      order_(order), marks_(marks), following_([this] { follow(); }) {
    context.addObserver(*this, {.entity = &image::description()});
    connections_.push_back(pictureArray.arrangementChanged.connect([this] { following_.ask(); }));
    connections_.push_back(gaps.changed.connect([this] {
        gapsChanged_ = true;
        following_.ask();
    }));
    connections_.push_back(order.order.onChange(
        [this](const SortOrder &) { Q_EMIT headerDataChanged(Qt::Horizontal, 0, Camera); }));
    if (marks) {
        connections_.push_back(marks->changed.connect([this] {
            marksChanged_ = true;
            following_.ask();
        }));
    }
    takeRows(pictureArray.arrangedObjects());
}

PhotoTableModel::~PhotoTableModel() {
    context_.removeObserver(*this);
}

image *PhotoTableModel::photoAt(int row) const {
    return row >= 0 && row < rowCount() ? rows_[static_cast<std::size_t>(row)] : nullptr;
}

std::optional<int> PhotoTableModel::rowOf(const image *photo) const {
    const auto found = rowOf_.find(photo);
    return found == rowOf_.end() ? std::nullopt : std::optional(found->second);
}

/// Points by the million take a moment to be sorted: the first paint does not wait for that.
std::optional<std::chrono::seconds> PhotoTableModel::gapOf(const image &photo) const {
    if (!std::exchange(gapsAsked_, true) && context_.count<track_part>() > manyPoints) {
        gapsShown_ = false;
        QTimer::singleShot(0, this, [this] {
            gapsShown_ = true;
            gapsChanged_ = true;
            following_.ask();
        });
    }
    return gapsShown_ ? gaps_.gapOf(photo) : std::nullopt;
}

std::optional<std::chrono::seconds> PhotoTableModel::gapAt(int row) const {
    const image *const photo = photoAt(row);
    return photo ? gapOf(*photo) : std::nullopt;
}

const char *PhotoTableModel::keyOf(Column column) {
    static constexpr const char *keys[ColumnCount] = {"image_name", "date", "lat",   "alt",
                                                      "city",       "gap",  "camera"};
    return keys[column];
}

QString PhotoTableModel::titleOf(Column column) {
    switch (column) {
    case Name:
        return tr("Name");
    case Taken:
        return tr("Taken");
    case Position:
        return tr("Position");
    case Altitude:
        return tr("Altitude");
    case Place:
        return tr("Place");
    case Gap:
        //: time between a photo and the nearest point of a log
        return tr("Gap");
    case Camera:
        return tr("Camera");
    case ColumnCount:
        break;
    }
    return {};
}

int PhotoTableModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int PhotoTableModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PhotoTableModel::data(const QModelIndex &index, int role) const {
    const image *const photo = photoAt(index.row());
    const auto column = static_cast<Column>(index.column());
    if (!photo) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return textAt(index.row(), column);
    case Qt::AccessibleTextRole: // the first column speaks for the row
        return column == Name ? accessibleText(*photo) : textAt(index.row(), column);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue<Qt::Alignment>(
            Qt::AlignVCenter |
            (column == Gap || column == Altitude ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::ToolTipRole:
        return tooltip(*photo, column);
    case NotSaved:
        return column == Name ? whyNotSaved(*photo) : QString();
    case SecondLine:
        return column == Position ? photo_texts::altitudeAndPlace(*photo)
                                  : photo_texts::takenInLengths(*photo);
    case FilePath:
        return QByteArray::fromStdString(photo->full_file_path().string());
    case IsFar:
        return std::chrono::abs(gapOf(*photo).value_or(std::chrono::seconds{})) > farGap;
    case OriginSign:
        return QString::fromUtf8(position_origin::sign(*photo));
    case OriginGap:
        return shownOriginGap(*photo);
    case OriginIsFar:
        return position_origin::isFar(*photo);
    default:
        return {};
    }
}

/// As a rule the column of gaps says the same.
QString PhotoTableModel::shownOriginGap(const image &photo) const {
    const QString gap = photo_texts::gap(position_origin::gap(photo));
    return gap == photo_texts::gap(gapOf(photo)) ? QString() : gap;
}

QString PhotoTableModel::whyNotSaved(const image &photo) const {
    const std::string *const reason = marks_ ? marks_->reasonFor(photo) : nullptr;
    return reason ? QString::fromStdString(*reason).trimmed() : QString();
}

QString PhotoTableModel::accessibleText(const image &photo) const {
    const QString sentence = photo_texts::sentence(photo, gapOf(photo));
    const QString reason = whyNotSaved(photo);
    return reason.isEmpty() ? sentence : tr("%1, could not be written: %2").arg(sentence, reason);
}

QString PhotoTableModel::tooltip(const image &photo, Column column) const {
    if (column == Gap && gapOf(photo)) {
        return tr("Time from the photo to the nearest point of a track, with the camera clock as "
                  "it is set");
    }
    if (column == Position) { // the line may be too long for its column
        QStringList lines{photo_texts::altitudeAndPlace(photo).toHtmlEscaped(),
                          position_origin::words(photo).toHtmlEscaped()};
        lines.removeAll(QString());
        return lines.join(QStringLiteral("<br>"));
    }
    if (column != Name) {
        return {};
    }
    const QString path = QString::fromStdString(photo.full_file_path().string()).toHtmlEscaped();
    const QString reason = whyNotSaved(photo).toHtmlEscaped();
    return reason.isEmpty()
               ? path
               : tr("<p><b>Could not be written.</b> %1</p><p>%2</p>").arg(reason, path);
}

QString PhotoTableModel::textAt(int row, Column column) const {
    const image &photo = *photoAt(row);
    switch (column) {
    case Name:
        return photo_texts::name(photo);
    case Taken:
        return photo_texts::taken(photo);
    case Position:
        return photo_texts::position(photo);
    case Altitude:
        return photo_texts::altitude(photo);
    case Place:
        return photo_texts::place(photo);
    case Gap:
        return photo_texts::gap(gapOf(photo));
    case Camera:
        return QString::fromStdString(photo.camera().string());
    case ColumnCount:
        break;
    }
    return {};
}

QVariant PhotoTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical || section < 0 || section >= ColumnCount) {
        return {};
    }
    const auto column = static_cast<Column>(section);
    if (role == Qt::DisplayRole) {
        return titleOf(column);
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue<Qt::Alignment>(
            Qt::AlignVCenter |
            (column == Gap || column == Altitude ? Qt::AlignRight : Qt::AlignLeft));
    }
    return {};
}

/// The order is everybody's; the rows follow it when the array has taken it on.
void PhotoTableModel::sort(int column, Qt::SortOrder order) {
    order_.order.set(column < 0 ? SortOrder()
                                : SortOrder{.key = keyOf(static_cast<Column>(column)),
                                            .ascending = order == Qt::AscendingOrder});
}

void PhotoTableModel::catchUp() {
    following_.finish();
}

void PhotoTableModel::didChange(Record &record, std::string_view) {
    changed_.insert(static_cast<const image *>(&record));
    following_.ask();
}

void PhotoTableModel::didDelete(Record &record) {
    const auto *photo = static_cast<const image *>(&record);
    changed_.erase(photo);
    if (const auto found = rowOf_.find(photo); found != rowOf_.end()) {
        rows_[static_cast<std::size_t>(found->second)] = nullptr;
        rowOf_.erase(found);
    }
    following_.ask();
}

void PhotoTableModel::follow() {
    const ScopedFlag isFollowing(isFollowing_);
    const std::vector<image *> &arranged = pictureArray_.arrangedObjects();
    if (arranged == rows_) {
        tellChanges();
    } else if (rowOf_.size() == rows_.size() && sameMembers(rowOf_, arranged)) {
        rearrangeRows(arranged);
        tellChanges();
    } else {
        beginResetModel();
        takeRows(arranged);
        endResetModel();
    }
    changed_.clear();
    gapsChanged_ = false;
    marksChanged_ = false;
}

void PhotoTableModel::takeRows(const std::vector<image *> &arranged) {
    rows_ = arranged;
    rowOf_.clear();
    rowOf_.reserve(rows_.size());
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        rowOf_.emplace(rows_[row], static_cast<int>(row));
    }
}

void PhotoTableModel::rearrangeRows(const std::vector<image *> &arranged) {
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const std::vector<image *> before = rows_;
    takeRows(arranged);
    const QModelIndexList from = persistentIndexList();
    QModelIndexList to;
    to.reserve(from.size());
    for (const QModelIndex &index : from) {
        const image *const photo = before[static_cast<std::size_t>(index.row())];
        to.append(this->index(rowOf_.at(photo), index.column()));
    }
    changePersistentIndexList(from, to);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

/// Rows that change together mostly stand together; one notice covers them all.
void PhotoTableModel::tellChanges() {
    if (rows_.empty()) {
        return;
    }
    if (marksChanged_) {
        Q_EMIT dataChanged(index(0, Name), index(rowCount() - 1, Name));
    }
    if (gapsChanged_) {
        Q_EMIT dataChanged(index(0, Position), index(rowCount() - 1, Gap));
    }
    constexpr std::size_t severalNotices = 16;
    int first = rowCount();
    int last = -1;
    for (const image *photo : changed_) {
        const std::optional<int> row = rowOf(photo);
        if (!row) {
            continue;
        }
        first = std::min(first, *row);
        last = std::max(last, *row);
        if (changed_.size() <= severalNotices) {
            Q_EMIT dataChanged(index(*row, 0), index(*row, ColumnCount - 1));
        }
    }
    if (last >= 0 && changed_.size() > severalNotices) {
        Q_EMIT dataChanged(index(first, 0), index(last, ColumnCount - 1));
    }
}

} // namespace pinmora
