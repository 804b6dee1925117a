#include "ui/empty_photos.h"

#include <QCoreApplication>

namespace pinmora {
namespace {

QString words(const char *text) {
    return QCoreApplication::translate("EmptyPhotos", text);
}

DropGround::Parts partsFor(const std::function<void()> &addPhotos,
                           const std::function<void()> &loadLogs,
                           const std::function<void()> &trySample) {
    DropGround::Parts parts{.iconName = "add-photos",
                            .title = words("Drop photos or a folder here"),
                            .words = words("and the GPS log of the same outing with them"),
                            .buttons = {{words("Add Photos…"), addPhotos}}};
    if (loadLogs) {
        parts.buttons.push_back({words("Load GPS Data…"), loadLogs});
    }
    if (trySample) {
        parts.links.push_back({words("Try it with the sample outing"), trySample});
    }
    return parts;
}

} // namespace

EmptyPhotos::EmptyPhotos(const std::function<void()> &addPhotos,
                         const std::function<void()> &loadLogs,
                         const std::function<void()> &trySample, QWidget *parent)
    : DropGround(partsFor(addPhotos, loadLogs, trySample), parent) {}

} // namespace pinmora
