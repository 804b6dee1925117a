#pragma once

#include "outlets/array_controller.h"
#include "persistence/change_observer.h"
#include "store/track_summary.h"
#include "ui/unhurried.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace pinmora {

class Context;
class track;

/// The tracks of the library, a row each. It follows in turns of the event loop; until the next
/// one, the row of a track that has gone is empty.
class TrackTableModel : public QAbstractTableModel, private ChangeObserver {
    Q_OBJECT

public:
    enum Column { Number, Points, From, To, ColumnCount };

    /// Both must outlive it.
    TrackTableModel(Context &context, ArrayController<track> &tracks, QObject *parent = nullptr);
    ~TrackTableModel() override;
    TrackTableModel(const TrackTableModel &) = delete;
    TrackTableModel &operator=(const TrackTableModel &) = delete;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row {
        const track *one = nullptr; ///< null: has gone
        QString number;
        QString logPath;
        TrackSummary summary;
    };

    void didInsert(Record &) override { following_.ask(); }
    void didDelete(Record &record) override;
    void follow();
    Row rowOf(const track &one) const;
    QString textAt(const Row &row, Column column) const;
    QString sentence(const Row &row) const;

    Context &context_;
    ArrayController<track> &tracks_;
    std::vector<Row> rows_;
    Unhurried following_;
    Connection arranged_;
};

} // namespace pinmora
