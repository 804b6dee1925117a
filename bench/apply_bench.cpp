// Placing all photos, and finding the point at a known position, as a person waits for them: with
// lists, controls, progress sheet and undo around the library. Against the import of the points.

#include "log_import.h"
#include "ratio.h"

#include "matching/clock_offset.h"
#include "matching/matcher.h"
#include "matching/matching_outlets.h"
#include "persistence/undo_manager.h"
#include "store/degrees.h"
#include "store/entity_array.h"
#include "store/image.h"
#include "store/offset.h"
#include "store/track.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <string>

using namespace pinmora;

namespace {

constexpr std::size_t pointCount = 1'000'000;
constexpr std::size_t photoCount = 10'000;

struct Desk {
    bench::Library library;
    Context &context = library.context;
    UndoManager undoManager{context};
    EntityArray<image> pictureArray{context};
    EntityArray<track_part> gpsArray{context};
    EntityArray<track> gpsTrackArrayController{context};
    ObjectController<degrees> degreeObj;
    Button addRemoveMarker;
    MapView webView1;
    MapView webView2;
    const bool inWizard = false;
    MatchingOutlets outlets{.pictureArray = pictureArray,
                            .degreeObj = degreeObj,
                            .addRemoveMarker = addRemoveMarker,
                            .webView1 = webView1,
                            .webView2 = webView2,
                            .inWizard = inWizard,
                            .progress = library.progress};
    ClockOffset clockOffset{context, outlets};
    Matcher matcher{context, library.notifications, clockOffset, outlets};

    std::string shownText;
    std::size_t texts = 0;
    Connection text =
        library.progress.progressTextSub.text.onChange([this](const std::string &sub) {
            shownText = sub;
            ++texts;
        });

    Desk() {
        outlets.offsetObj.setContent(&context.insert<offset>());
        degreeObj.setContent(&context.insert<degrees>());
    }

    /// Photos spread evenly over the log.
    void addPhotos() {
        const Date first = *(*context.records<track_part>().begin())->time();
        LocalZone zone;
        for (std::size_t i = 0; i < photoCount; ++i) {
            const Date taken = first + std::chrono::seconds(i * pointCount / photoCount);
            context.insert<image>().setDate(textFromDate(taken, "%Y:%m:%d %H:%M:%S", zone));
        }
        pictureArray.select(pictureArray.arrangedObjects().front());
        undoManager.closeStep();
    }

    void guess(const char *lat, const char *lon) {
        outlets.knownLat.text.set(lat);
        outlets.knownLon.text.set(lon);
        matcher.guessFromLatLon();
    }
};

void require(bool fine, const char *otherwise) {
    if (!fine) {
        throw std::runtime_error(otherwise);
    }
}

/// The fastest of several runs, in seconds.
struct Best {
    static constexpr double never = std::numeric_limits<double>::infinity();
    double bareImport = never;
    double import = never;
    double applying = never;
    double firstGuess = never;
    double nextGuess = never;

    void run(const std::filesystem::path &log) {
        bareImport = std::min(bareImport, bench::secondsOfImport(log, pointCount));
        Desk desk;
        const auto least = [](double &best, auto work) {
            best = std::min(best, bench::seconds(work));
        };
        malloc_trim(0); // as secondsOfImport() does
        least(import, [&] { bench::load(desk.library, log, pointCount); });
        desk.addPhotos();
        least(applying, [&] { desk.matcher.applyToAllPictures(); });
        require(desk.texts == photoCount, "not every photo was counted");
        for (const image *photo : desk.pictureArray.arrangedObjects()) {
            require(photo->lat_and_lon(), "not every photo was placed");
        }
        const auto *const before = desk.outlets.bestGPS.content();
        least(firstGuess, [&] { desk.guess("47.25", "8.75"); });
        least(nextGuess, [&] { desk.guess("47.5", "8.5"); });
        require(desk.outlets.bestGPS.content() != before, "the known position was not found");
    }
};

void measure(bench::Report &report) {
    const bench::LogFiles files;
    const auto log = files.gpx(pointCount);
    Best best;
    for (int run = 0; run < 5; ++run) {
        best.run(log);
    }
    report.atMost("placing 10,000 photos / import", best.applying / best.import, 0.2);
    report.atMost("first known position / import", best.firstGuess / best.import, 0.25);
    report.atMost("next known position / import", best.nextGuess / best.import, 0.01);
    report.atMost("import with a desk / without", best.import / best.bareImport, 1.1);
}

} // namespace

int main() {
    return bench::run(measure);
}
