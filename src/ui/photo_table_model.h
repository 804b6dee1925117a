#pragma once

#include "outlets/array_controller.h"
#include "persistence/change_observer.h"
#include "ui/unhurried.h"

#include <QAbstractTableModel>

#include <chrono>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace pinmora {

class Context;
class PhotoGaps;
class PhotoOrder;
class SaveMarks;
class image;

/// The photos of the library in their arranged order, a row each.
///
/// It follows the library in turns of the event loop: until the next one, the row of a photo that
/// has gone is empty. Nothing is copied; what a row shows is written when it is asked for.
class PhotoTableModel : public QAbstractTableModel, private ChangeObserver {
    Q_OBJECT

public:
    enum Column { Name, Taken, Position, Altitude, Place, Gap, Camera, ColumnCount };
    /// For the look that puts several columns into one.
    enum Role {
        SecondLine = Qt::UserRole, ///< of Name: when it was taken; of Position: height and place
        FilePath,                  ///< the bytes
        NotSaved,                  ///< of Name: why the last save could not write the photo
        IsFar,                     ///< whether the gap is larger than a running log would leave
        OriginSign,                ///< how it came by its position: an icon's name, "" for none
        OriginGap,                 ///< how far the point was in time, where that is not the gap
        OriginIsFar,               ///< whether that is larger than a running log would leave
    };

    /// All must outlive it. Without `marks` no photo counts as not saved.
    PhotoTableModel(Context &context, ArrayController<image> &pictureArray, PhotoGaps &gaps,
                    PhotoOrder &order, SaveMarks *marks = nullptr, QObject *parent = nullptr);
    ~PhotoTableModel() override;
    PhotoTableModel(const PhotoTableModel &) = delete;
    PhotoTableModel &operator=(const PhotoTableModel &) = delete;

    /// Null for a photo that has gone.
    image *photoAt(int row) const;
    /// Nothing for a photo that is not in the list (yet, or any more).
    std::optional<int> rowOf(const image *photo) const;
    std::optional<std::chrono::seconds> gapAt(int row) const;

    /// By which of PhotoOrder's keys a column is sorted.
    static const char *keyOf(Column column);
    /// What its heading says.
    static QString titleOf(Column column);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

    /// Follows at once what has changed.
    void catchUp();
    /// Whether it is just telling what has changed.
    bool isFollowing() const { return isFollowing_; }

private:
    void didChange(Record &record, std::string_view key) override;
    void didDelete(Record &record) override;

    std::optional<std::chrono::seconds> gapOf(const image &photo) const;
    void follow();
    void takeRows(const std::vector<image *> &arranged);
    void rearrangeRows(const std::vector<image *> &arranged);
    void tellChanges();
    QString textAt(int row, Column column) const;
    QString accessibleText(const image &photo) const;
    QString tooltip(const image &photo, Column column) const;
    QString shownOriginGap(const image &photo) const;
    QString whyNotSaved(const image &photo) const;

    Context &context_;
    ArrayController<image> &pictureArray_;
    PhotoGaps &gaps_;
    PhotoOrder &order_;
    SaveMarks *const marks_;
    std::vector<image *> rows_; ///< null: has gone
    std::unordered_map<const image *, int> rowOf_;
    std::unordered_set<const image *> changed_;
    bool marksChanged_ = false;
    mutable bool gapsChanged_ = false;
    mutable bool gapsShown_ = true;
    mutable bool gapsAsked_ = false; ///< by a view
    bool isFollowing_ = false;
    mutable Unhurried following_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
