#include "options.h"
#include "report.h"
#include "tag_job.h"

#include "platform/defaults.h"

#include <QCoreApplication>

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <iostream>

using namespace pinmora;
using namespace pinmora::tag;

namespace {

/// Standard error: messages, and on a terminal one line of progress that gives way to them.
class Console {
public:
    Console() = default;
    ~Console() { clear(); }
    Console(const Console &) = delete;
    Console &operator=(const Console &) = delete;

    void tell(const std::string &line) {
        clear();
        std::cerr << "pinmora-tag: " << line << '\n';
    }

    void progress(std::string_view what, std::size_t done, std::size_t of) {
        if (isTerminal_) {
            clear();
            std::cerr << what << ' ' << done << " of " << of << std::flush;
            lineIsUsed_ = true;
        }
    }

    void clear() {
        if (lineIsUsed_) {
            std::cerr << "\r\x1b[K" << std::flush; // back to the start, and erase to the end
            lineIsUsed_ = false;
        }
    }

private:
    const bool isTerminal_ = isatty(STDERR_FILENO) == 1;
    bool lineIsUsed_ = false;
};

int tagPhotos(const Options &options, const std::filesystem::path &resources) {
    Console console;
    const Report report =
        runTagJob(options, {.resources = resources,
                            .logReading = Defaults().text("logReading"),
                            .tell = [&](const std::string &line) { console.tell(line); },
                            .progress = [&](std::string_view what, std::size_t done,
                                            std::size_t of) { console.progress(what, done, of); }});
    console.clear();
    std::cout << (options.json ? jsonText(report) : tableText(report)) << std::flush;
    return exitStatus(report);
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const auto parsed = parseCommandLine(std::vector<std::string>(argv, argv + argc));
    if (const auto *usage = std::get_if<Usage>(&parsed)) {
        (usage->wrong ? std::cerr : std::cout) << usage->text;
        return usage->wrong ? 2 : 0;
    }
    const std::filesystem::path program = QCoreApplication::applicationDirPath().toStdString();
    return tagPhotos(std::get<Options>(parsed), program / ".." / "share" / "pinmora");
}
