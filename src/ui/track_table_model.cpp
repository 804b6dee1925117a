#include "ui/track_table_model.h"

#include "persistence/context.h"
#include "platform/translation.h"
#include "store/track.h"
#include "store/track_part.h"
#include "ui/photo_texts.h"

#include <QLocale>

#include <algorithm>

namespace pinmora {
namespace {

QString dayAndTime(const std::optional<Date> &date) {
    return date ? shortTime(*date) : QString();
}

QString withYear(const std::optional<Date> &date) {
    if (!date) {
        return {};
    }
    LocalZone zone;
    return QString::fromStdString(localizedTextFromDate(*date, "%e %b %Y %H:%M:%S", zone))
        .trimmed();
}

Qt::Alignment alignmentOf(int column) {
    return Qt::AlignVCenter | (column == TrackTableModel::Points ? Qt::AlignRight : Qt::AlignLeft);
}

} // namespace

TrackTableModel::TrackTableModel(Context &context, ArrayController<track> &tracks, QObject *parent)
    : QAbstractTableModel(parent), context_(context), tracks_(tracks),
      following_([this] { follow(); }) {
    context.addObserver(*this, {.entity = &track::description(), .values = false});
    context.addObserver(*this, {.entity = &track_part::description(), .values = false});
    arranged_ = tracks.arrangementChanged.connect([this] { following_.ask(); });
    follow();
}

TrackTableModel::~TrackTableModel() {
    context_.removeObserver(*this);
}

int TrackTableModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TrackTableModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TrackTableModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Row &row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return textAt(row, static_cast<Column>(index.column()));
    case Qt::AccessibleTextRole:
        return index.column() == Number ? sentence(row)
                                        : textAt(row, static_cast<Column>(index.column()));
    case Qt::ToolTipRole:
        return row.logPath;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(alignmentOf(index.column()));
    default:
        return {};
    }
}

QString TrackTableModel::textAt(const Row &row, Column column) const {
    switch (column) {
    case Number:
        return row.number;
    case Points:
        return QLocale().toString(static_cast<qulonglong>(row.summary.points));
    case From:
        return dayAndTime(row.summary.from);
    case To:
        return dayAndTime(row.summary.to);
    case ColumnCount:
        break;
    }
    return {};
}

QString TrackTableModel::sentence(const Row &row) const {
    const QString begin =
        QString::fromStdString(
            translated("ui", "Track %1, %n points", "Track %1, %n point", row.summary.points))
            .arg(row.number);
    //: a track with its number of points, and the times of its first and last one
    return row.summary.from ? tr("%1, from %2 to %3")
                                  .arg(begin, withYear(row.summary.from), withYear(row.summary.to))
                            : begin;
}

QVariant TrackTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(alignmentOf(section));
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Number:
        return tr("Track");
    case Points:
        return tr("Points");
    case From:
        //: when a track begins
        return tr("From");
    case To:
        //: when a track ends
        return tr("To");
    default:
        return {};
    }
}

void TrackTableModel::didDelete(Record &record) {
    if (&record.entity() != &track::description()) { // points go by the million
        following_.ask();
        return;
    }
    for (Row &row : rows_) {
        if (row.one == &record) {
            row = {};
        }
    }
    following_.ask();
}

/// Only tracks that have come or grown are walked over.
void TrackTableModel::follow() {
    std::unordered_map<const track *, Row> known;
    for (Row &row : rows_) {
        if (row.one) {
            known.emplace(row.one, std::move(row));
        }
    }
    std::vector<Row> rows;
    for (const track *one : tracks_.arrangedObjects()) {
        const auto found = known.find(one);
        const bool isSame =
            found != known.end() && found->second.summary.points == one->points().size();
        rows.push_back(isSame ? std::move(found->second) : rowOf(*one));
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

TrackTableModel::Row TrackTableModel::rowOf(const track &one) const {
    return {.one = &one,
            .number = one.track_id() ? QString::number(*one.track_id()) : QString(),
            .logPath = QString::fromStdString(one.log_path().string()),
            .summary = summaryOf(one)};
}

} // namespace pinmora
