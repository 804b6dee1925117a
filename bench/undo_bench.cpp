// Taking back the removal of a long track, and what keeping that possible costs an import.

#include "log_import.h"
#include "ratio.h"

#include "persistence/undo_group.h"
#include "store/track.h"

#include <limits>

using namespace pinmora;

namespace {

constexpr double never = std::numeric_limits<double>::infinity();

/// A library in which everything can be taken back.
struct UndoableLibrary : bench::Library {
    UndoManager undo{context};
};

void removeAllTracks(Context &context) {
    const UndoGroup group(context, "Remove All GPS Data");
    for (track *one : context.fetch<track>()) {
        context.deleteObject(*one);
    }
}

/// The fastest of several runs, in seconds.
struct Best {
    double plainImport = never;
    double import = never;
    double removal = never;
    double undo = never;
    double redo = never;
    double heapLeft = 0; ///< bytes a point, after the history has been dropped

    void run(const std::filesystem::path &log, std::size_t points) {
        plainImport = std::min(plainImport, bench::secondsOfImport(log, points));
        UndoableLibrary library;
        malloc_trim(0);
        const std::size_t heapBefore = bench::heapInUse();
        import = std::min(import, bench::seconds([&] { bench::load(library, log, points);
    }));
    library.undo.closeStep();
    removal = std::min(removal, bench::seconds([&] { removeAllTracks(library.context); }));
    undo = std::min(undo, bench::seconds([&] { library.undo.undo(); }));
    if (library.context.count<track_part>() != points) {
        std::fprintf(stderr, "undo did not bring the points back\n");
        std::exit(2);
    }
    redo = std::min(redo, bench::seconds([&] { library.undo.redo(); }));
    library.undo.removeAllActions();
    heapLeft = (static_cast<double>(bench::heapInUse()) - static_cast<double>(heapBefore)) /
               static_cast<double>(points);
}
}; // namespace

} // namespace

int main() {
    constexpr std::size_t many = 1'000'000;
    const bench::LogFiles files;
    const auto log = files.gpx(many);
    Best best;
    for (int run = 0; run < 5; ++run) {
        best.run(log, many);
    }
    bench::Report report;
    report.atMost("undo of a removal / import", best.undo / best.plainImport, 1.0 / 3);
    report.atMost("removal of all points / import", best.removal / best.plainImport, 0.5);
    report.atMost("redo of the removal / import", best.redo / best.plainImport, 1.0 / 3);
    report.atMost("import that can be taken back", best.import / best.plainImport, 1.1);
    report.atMost("heap left, bytes a point", best.heapLeft, 0.1);
    return report.exitStatus();
}
