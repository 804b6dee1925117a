#pragma once

#include "files.h"
#include "persistence/context.h"
#include "persistence/xml_store.h"
#include "platform/notification_centre.h"
#include "store/image.h"
#include "store/library_model.h"
#include "store/offset.h"
#include "store/track.h"
#include "store/track_part.h"
#include "store/track_part_best.h"

#include <QTemporaryDir>

#include <optional>

/// What the tests of store files have in common.
namespace pinmora::test {

namespace fs = std::filesystem;

/// A place for a store file, and what reads it.
struct StoreDesk {
    NotificationCentre notifications;
    const LibraryModel model{notifications};
    std::optional<QTemporaryDir> room;
    fs::path path;

    void makeRoom() { path = fs::path(room.emplace().path().toStdString()) / "Pinmora.xml"; }
    /// Reads the file; what it says against it, "" for nothing.
    std::string read(Context &context) const {
        const auto error = XmlStore(path).read(context);
        return error ? error->message() : "";
    }
};

inline std::size_t recordsIn(const Context &context) {
    std::size_t count = 0;
    for (const EntityDescription *entity : context.model().entities()) {
        count += context.fetch(entity->name()).size();
    }
    return count;
}

/// A small library with something of everything, whose points' order is not their tracks'.
inline void fill(Context &context) {
    auto &first = context.insert<track>();
    first.setLog_path("/logs/caf\xE9.gpx");
    auto &second = context.insert<track>();
    for (int i = 0; i < 5; ++i) {
        auto &point = context.insert<track_part>();
        point.setTrack(i == 3 ? nullptr : i % 2 == 0 ? &first : &second);
        point.setTimeWithDate(Date(std::chrono::milliseconds(1212278400500 + i)));
        point.setLat("47.38");
        point.setAlt(i == 2 ? Text() : Text(""));
        point.setPoint_id(i);
    }
    context.insert<track_part_best>().setTrack(&second);
    context.insert<offset>().setHours(2);
    auto &photo = context.insert<image>();
    photo.setFull_file_path("/photos/\"A\" & <B>.jpg");
    photo.setComments("two\nlines, a bell \a");
    photo.setMap_datum({});
    context.insertNewObjectForEntityForName("degrees");
}

} // namespace pinmora::test
