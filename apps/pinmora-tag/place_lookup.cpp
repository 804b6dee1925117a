#include "place_lookup.h"

#include "platform/translation.h"

#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace pinmora::tag {

PlaceLookup::PlaceLookup(MemoryLibrary &library, const Surroundings &surroundings)
    : library_(library), surroundings_(surroundings) {
    if (surroundings.placeService) {
        names_.emplace(library.context, surroundings.placeService);
        library.model.setPlaceNames(&*names_);
    }
}

PlaceLookup::~PlaceLookup() {
    library_.model.setPlaceNames(nullptr);
}

void PlaceLookup::wait() {
    const std::size_t all = names_ ? names_->awaited.get() : 0;
    if (all == 0) {
        return;
    }
    QEventLoop loop;
    const Connection arriving = names_->awaited.onChange([&](std::size_t left) {
        surroundings_.progress(filled(translated("tag", "Looking up places %1 of %2"),
                                      {std::to_string(all - left), std::to_string(all)}));
        if (left == 0) {
            loop.quit();
        }
    });
    QTimer looking; // a signal does not wake the loop
    QObject::connect(&looking, &QTimer::timeout, &loop, [&] {
        if (surroundings_.stopped()) {
            loop.quit();
        }
    });
    constexpr std::chrono::milliseconds soon{100};
    looking.start(soon);
    loop.exec();
}

} // namespace pinmora::tag
