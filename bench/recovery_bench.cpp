// What keeping the recovery file costs an import: the time that it takes from the thread that
// imports. The file is written by another thread.

#include "log_import.h"
#include "ratio.h"

#include "persistence/undo_group.h"
#include "recovery/recovery_recorder.h"

#include <ctime>
#include <limits>

using namespace pinmora;

namespace {

/// Seconds that the calling thread computes during `work`, system calls included.
template <typename Work>
double ownSeconds(Work &&work) {
    const auto now = [] {
        std::timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
    };
    const double start = now();
    work();
    return now() - start;
}

/// One import as a step of undo, in a library that has just been opened.
double secondsOfImport(const std::filesystem::path &log, std::size_t points,
                       const RecoveryFolder *folder) {
    bench::Library library;
    UndoManager undo(library.context);
    std::optional<RecoveryRecorder> recorder;
    if (folder) {
        recorder.emplace(library.context, *folder).begin("bench");
        library.gps.setImportJournal(&*recorder);
    }
    malloc_trim(0);
    const double seconds = ownSeconds([&] {
        const UndoGroup group(library.context, "Import");
        bench::load(library, log, points);
    });
    if (recorder && !recorder->flush()) {
        std::fprintf(stderr, "the recovery file was not written\n");
        std::exit(2);
    }
    if (recorder) {
        recorder->clear();
    }
    undo.removeAllActions();
    return seconds;
}

void measure(bench::Report &report, const std::string &name, const std::filesystem::path &log,
             std::size_t points) {
    const RecoveryFolder folder(log.parent_path() / "recovery");
    bench::Pair best{std::numeric_limits<double>::infinity(),
                     std::numeric_limits<double>::infinity()};
    for (int run = 0; run < 5; ++run) {
        best.yardstick = std::min(best.yardstick, secondsOfImport(log, points, nullptr));
        best.work = std::min(best.work, secondsOfImport(log, points, &folder));
    }
    report.atMost(name + ", recorded / plain", best.ratio(), 1.1);
}

} // namespace

int main() {
    constexpr std::size_t many = 1'000'000;
    const bench::LogFiles files;
    bench::Report report;
    measure(report, "GPX import", files.gpx(many), many);
    measure(report, "NMEA import", files.nmea(many), many);
    return report.exitStatus();
}
