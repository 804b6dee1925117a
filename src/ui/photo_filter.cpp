#include "ui/photo_filter.h"

#include "platform/scoped_flag.h"
#include "store/image.h"
#include "ui/photo_table_model.h"

#include <utility>

namespace pinmora {

PhotoFilter::PhotoFilter(PhotoTableModel &model, QObject *parent)
    : QSortFilterProxyModel(parent), model_(model) {
    setSourceModel(&model);
}

void PhotoFilter::setOnlyWithoutPosition(bool yes) {
    if (std::exchange(onlyWithoutPosition_, yes) != yes) {
        refilter();
    }
}

bool PhotoFilter::isChanging() const {
    return refiltering_ || model_.isFollowing();
}

void PhotoFilter::refilter() {
    const ScopedFlag refiltering(refiltering_);
    invalidateFilter();
}

void PhotoFilter::keep(std::unordered_set<const image *> photos) {
    if (photos != kept_) {
        kept_ = std::move(photos);
        if (onlyWithoutPosition_) {
            refilter();
        }
    }
}

image *PhotoFilter::photoAt(const QModelIndex &index) const {
    return model_.photoAt(mapToSource(index).row());
}

QModelIndex PhotoFilter::indexOf(const image *photo) const {
    const std::optional<int> row = model_.rowOf(photo);
    return row ? mapFromSource(model_.index(*row, 0)) : QModelIndex();
}

bool PhotoFilter::filterAcceptsRow(int row, const QModelIndex &) const {
    const image *const photo = model_.photoAt(row);
    return !onlyWithoutPosition_ || !photo || kept_.contains(photo) || !photo->lat_and_lon();
}

void PhotoFilter::sort(int column, Qt::SortOrder order) {
    model_.sort(column, order);
}

} // namespace pinmora
