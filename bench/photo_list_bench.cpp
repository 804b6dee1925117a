// What a person waits for in a list of 10,000 photos: choosing one, and scrolling.

#include "ratio.h"
#include "window_program.h"

#include "ui/photo_table.h"
#include "ui/work_window.h"

#include <QScrollBar>

#include <algorithm>

using namespace pinmora;

namespace {

constexpr std::size_t photoCount = 10'000;

void settle() {
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::processEvents();
    }
}

void measure(bench::Report &report) {
    const bench::WindowHome home;
    home.writeLibrary(photoCount, 100'000, home.photos(photoCount));
    int argc = 1;
    char name[] = "bench";
    char *argv[] = {name, nullptr};
    QApplication application(argc, argv);
    app::Program program(".", nullptr);
    settle();
    auto *const table = program.windows().windowInFront()->findChild<PhotoTable *>();

    std::vector<double> selections;
    for (int row = 0; row < 200; ++row) {
        const double before = bench::threadSeconds();
        table->selectRow(row * 37);
        settle();
        selections.push_back(1000 * (bench::threadSeconds() - before));
        program.delegate().subsystems().preview.waitForPicture();
    }
    report.atMost("selecting a photo, ms of processor", bench::median(selections), 30);

    QScrollBar *const bar = table->verticalScrollBar();
    bar->setValue(0);
    settle();
    double longest = 0;
    for (int at = 0; at < bar->maximum(); at += bar->pageStep()) {
        longest = std::max(longest, 1000 * bench::seconds([&] {
                                        bar->setValue(at);
                                        settle();
                                    }));
    }
    report.atMost("scrolling, longest block in ms", longest, 50);
}

} // namespace

int main() {
    return bench::run(measure);
}
