#include "ui/empty_photos.h"

namespace pinmora {
namespace {

DropGround::Parts partsFor(const std::function<void()> &addPhotos,
                           const std::function<void()> &loadLogs,
                           const std::function<void()> &trySample) {
    DropGround::Parts parts{.iconName = "add-photos",
                            .title = EmptyPhotos::tr("Drop photos or a folder here"),
                            .words =
                                EmptyPhotos::tr("and the GPS log of the same outing with them"),
                            .buttons = {{EmptyPhotos::tr("Add Photos…"), addPhotos}}};
    if (loadLogs) {
        parts.buttons.push_back({EmptyPhotos::tr("Load GPS Data…"), loadLogs});
    }
    if (trySample) {
        parts.links.push_back({EmptyPhotos::tr("Try it with the sample outing"), trySample});
    }
    return parts;
}

} // namespace

EmptyPhotos::EmptyPhotos(const std::function<void()> &addPhotos,
                         const std::function<void()> &loadLogs,
                         const std::function<void()> &trySample, QWidget *parent)
    : DropGround(partsFor(addPhotos, loadLogs, trySample), parent) {}

} // namespace pinmora
