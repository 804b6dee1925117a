#include "options.h"
#include "report.h"
#include "shown_text.h"
#include "tag_job.h"

#include "gps/reading_setting.h"
#include "photos/photo_types.h"
#include "places/place_settings.h"
#include "platform/defaults.h"
#include "platform/program_language.h"
#include "platform/translation.h"
#include "services/local_server.h"

#include <QCoreApplication>

#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <iostream>
#include <optional>

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
        std::cerr << "pinmora-tag: " << terminalText(line) << '\n';
    }

    void progress(const std::string &text) {
        if (isTerminal_) {
            clear();
            std::cerr << text << std::flush;
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

volatile std::sig_atomic_t stopRequests = 0;

/// The first request lets what is begun come to its end; the next one ends the program.
void requestStop(int signal) {
    stopRequests = 1;
    std::signal(signal, SIG_DFL);
}

int tagPhotos(const Options &options, const std::filesystem::path &resources) {
    Console console;
    const Defaults defaults;
    LocalServer server({});
    const auto service = [&] {
        return placeServiceFrom(
            defaults, [&server] { return server.address(); }, LocalServer::placeNamespace);
    };
    const bool withPlaces = options.places && looksUpPlaces(defaults);
    const Report report =
        runTagJob(options, {.resources = resources,
                            .placeService = withPlaces ? service : std::function<PlaceService()>(),
                            .morePhotoTypes = takesMorePhotoTypes(defaults),
                            .logReading = logReadingFrom(defaults),
                            .tool = toolSettingsFrom(defaults),
                            .tell = [&](const std::string &line) { console.tell(line); },
                            .progress = [&](const std::string &text) { console.progress(text); },
                            .stopped = [] { return stopRequests != 0; }});
    console.clear();
    std::cout << (options.json ? jsonText(report) : tableText(report)) << std::flush;
    if (!std::cout) {
        console.tell(translated("tag", "the report could not be written"));
        return 1;
    }
    return exitStatus(report);
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    std::optional<ProgramLanguage> language(std::in_place);
    const auto parsed = parseCommandLine(std::vector<std::string>(argv, argv + argc));
    if (const auto *usage = std::get_if<Usage>(&parsed)) {
        (usage->wrong ? std::cerr : std::cout) << usage->text;
        return usage->wrong ? 2 : 0;
    }
    const auto *const options = std::get_if<Options>(&parsed);
    if (options->json) {
        language.reset(); // what programs read is the same for everybody
    }
    std::signal(SIGINT, requestStop);
    std::signal(SIGTERM, requestStop);
    const std::filesystem::path program = QCoreApplication::applicationDirPath().toStdString();
    return tagPhotos(*options, program / ".." / "share" / "pinmora");
}
