// Loading a folder of photos in the running program, against the bare reading of their metadata.

#include "ratio.h"
#include "window_program.h"

using namespace pinmora;

namespace {

constexpr std::size_t photoCount = 1'000;

void measure(bench::Report &report) {
    const bench::WindowHome home;
    const std::filesystem::path folder = home.photos(photoCount);
    int argc = 1;
    char name[] = "bench";
    char *argv[] = {name, nullptr};
    QApplication application(argc, argv);
    app::Program program(".", nullptr);
    QCoreApplication::processEvents();
    const auto intake = [&] {
        program.delegate().subsystems().photoIntake.openFiles({folder.string()});
        QCoreApplication::processEvents();
    };
    const auto bare = [&folder] {
        for (const auto &entry : std::filesystem::directory_iterator(folder)) {
            if (!readImageProperties(entry.path())) {
                throw std::runtime_error("not all photos were read");
            }
        }
    };
    report.atMost("intake of photos / bare metadata", bench::bestPair(intake, bare).ratio(), 3);
}

} // namespace

int main() {
    return bench::run(measure);
}
