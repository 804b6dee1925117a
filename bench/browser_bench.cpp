// How long the window is held up while a folder of 50,000 entries opens in the column browser, and
// how long it takes until they can be seen.

#include "ratio.h"

#include "outlets/workspace.h"
#include "photos/file_browser.h"
#include "ui/browser_model.h"
#include "ui/column_browser.h"
#include "ui/theme.h"

#include <QApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

using namespace pinmora;

namespace {

constexpr int entryCount = 50'000;

void fill(const std::filesystem::path &folder) {
    std::filesystem::create_directories(folder);
    for (int i = 0; i < entryCount; ++i) {
        std::ofstream(folder / ("IMG_" + std::to_string(i) + ".JPG"));
    }
}

std::size_t listPlainly(const std::filesystem::path &folder) {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().native());
    }
    return names.size();
}

/// Seconds of the longest turn of the event loop until all entries are there and painted.
double longestTurn(ColumnBrowser &columns, FileBrowser &browser) {
    auto *const model = columns.findChild<BrowserModel *>();
    double longest = bench::seconds([&browser] { browser.reloadData(); });
    bool isListed = false;
    while (!isListed) {
        isListed = model->isListed({});
        longest = std::max(longest, bench::seconds([] {
                               QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
                           }));
    }
    columns.grab();
    if (model->rowCount() != entryCount) {
        throw std::runtime_error("not all entries are there");
    }
    return longest;
}

void measure(bench::Report &report) {
    if (!qEnvironmentVariableIsSet("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QTemporaryDir home;
    const std::filesystem::path folder = home.path().toStdString() + "/many";
    fill(folder);
    int argc = 1;
    char name[] = "bench";
    char *argv[] = {name, nullptr};
    QApplication application(argc, argv);
    applyTheme(application, Appearance::Light);
    FileBrowserOutlets outlets;
    const Workspace workspace;
    FileBrowser browser(outlets, workspace, folder.native());
    ColumnBrowser columns(outlets, browser);
    columns.resize(800, 300);
    columns.show();
    browser.setUp();

    double longest = std::numeric_limits<double>::infinity();
    const bench::Pair whole =
        bench::bestPair([&] { longest = std::min(longest, longestTurn(columns, browser)); },
                        [&folder] { listPlainly(folder); });
    report.atMost("longest block / listing the folder", longest / whole.yardstick, 1);
    report.atMost("entries seen / listing the folder", whole.ratio(), 6);
}

} // namespace

int main() {
    return bench::run(measure);
}
