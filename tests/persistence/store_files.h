#pragma once

#include "persistence/context.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track.h"
#include "store/track_part.h"
#include "store/track_part_best.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

/// What the tests of store files have in common.
namespace pinmora::test {

namespace fs = std::filesystem;

inline std::string contents(const fs::path &file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

inline void put(const fs::path &file, std::string_view bytes) {
    fs::remove(file); // a file cut and written anew is brought to the disk when it is closed
    std::ofstream(file, std::ios::binary) << bytes;
}

inline std::size_t entries(const fs::path &folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator{folder}, {}));
}

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
