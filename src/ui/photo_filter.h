#pragma once

#include <QSortFilterProxyModel>

#include <unordered_set>

namespace pinmora {

class PhotoTableModel;
class image;

/// Which photos are seen; what is done to all photos is done to the others as well.
class PhotoFilter : public QSortFilterProxyModel {
public:
    /// The model must outlive it.
    explicit PhotoFilter(PhotoTableModel &model, QObject *parent = nullptr);

    bool isOnlyWithoutPosition() const { return onlyWithoutPosition_; }
    void setOnlyWithoutPosition(bool yes);
    /// Photos that are seen in any case: those being worked on should not vanish at the moment they
    /// get their position.
    void keep(std::unordered_set<const image *> photos);

    /// Whether rows are coming or going just now.
    bool isChanging() const;

    /// Null for a photo that has gone.
    image *photoAt(const QModelIndex &index) const;
    /// Invalid for a photo that is not seen.
    QModelIndex indexOf(const image *photo) const;

    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    /// The order is the source's, whose affair sorting is.
    void sort(int column, Qt::SortOrder order) override;

private:
    void refilter();

    PhotoTableModel &model_;
    bool refiltering_ = false;
    bool onlyWithoutPosition_ = false;
    std::unordered_set<const image *> kept_;
};

} // namespace pinmora
