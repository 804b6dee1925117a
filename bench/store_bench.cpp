// Reading and writing a store file with a million points and a thousand photos, against a pass of
// the bare XML parser over it and against the import of the points.

#include "bare_expat.h"
#include "log_import.h"
#include "ratio.h"

#include "persistence/xml_store.h"
#include "store/image.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>

using namespace pinmora;

namespace {

/// What a photo has after it was loaded, placed and described.
void addPhotos(Context &context, int count) {
    LocalZone zone;
    for (int i = 0; i < count; ++i) {
        auto &photo = context.insert<image>();
        const std::string name = "IMG_" + std::to_string(1000 + i);
        photo.setImage_name(name);
        photo.setOriginal_name(name);
        photo.setFilePath("/home/somebody/Pictures/2008/June");
        photo.setFull_file_path("/home/somebody/Pictures/2008/June/" + name + ".JPG");
        photo.setExtension("JPG");
        photo.setDate("2008:06:01 12:00:00");
        photo.setNo_capture_time(false);
        photo.updateLatAndLon({"47.38" + std::to_string(i), "8.54" + std::to_string(i)});
        photo.setAlt("412.5");
        photo.setCity("Z\u00fcrich");
        photo.setCountry("Switzerland");
        photo.setComments("By the lake, \"early\" & in the rain");
        photo.setCamera("Canon, Canon PowerShot G9, 1234567890");
        photo.setZoom(14);
        photo.setValid_file(true);
    }
}

/// Ends the program when there is an error: then no figure is worth printing.
void mustSucceed(const std::optional<StoreError> &error) {
    if (error) {
        std::fprintf(stderr, "%s\n", error->message().c_str());
        std::exit(2);
    }
}

/// Seconds of a read that meets the heap of a program just started.
double secondsOfReading(const std::filesystem::path &path, std::size_t points) {
    bench::Library library;
    malloc_trim(0);
    const double time = bench::seconds([&] { mustSucceed(XmlStore(path).read(library.context)); });
    if (library.context.count<track_part>() != points) {
        std::fprintf(stderr, "%s was not read\n", path.c_str());
        std::exit(2);
    }
    return time;
}

} // namespace

int main() {
    constexpr std::size_t many = 1'000'000;
    constexpr double never = std::numeric_limits<double>::infinity();
    const bench::LogFiles files;
    const auto log = files.gpx(many);
    const auto path = log.parent_path() / "Pinmora.xml";

    bench::Pair writing{never, never};
    bench::Pair reading{never, never};
    for (int run = 0; run < 5; ++run) {
        {
            bench::Library library;
            malloc_trim(0);
            writing.yardstick = std::min(writing.yardstick,
                                         bench::seconds([&] { bench::load(library, log, many); }));
            addPhotos(library.context, 1000);
            writing.work =
                std::min(writing.work, bench::seconds([&] {
                             mustSucceed(XmlStore(path).write(library.context, makeStoreState()));
                         }));
        }
        reading.work = std::min(reading.work, secondsOfReading(path, many));
        reading.yardstick =
            std::min(reading.yardstick, bench::seconds([&path] { bench::parseBarely(path); }));
    }
    bench::Report report;
    report.atMost("store read / bare Expat pass", reading.ratio(), 3);
    report.atMost("store write / import of the points", writing.ratio(), 1);
    return report.exitStatus();
}
