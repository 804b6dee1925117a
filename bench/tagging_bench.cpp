// What saving costs beside the metadata tool's own work: runs over 200 photos against the time that
// so many processes of the tool need when every core always has one.

#include "ratio.h"
#include "saved_photos.h"

#include "platform/process.h"
#include "saving/metadata_arguments.h"
#include "saving/save_run.h"

#include <QTemporaryDir>
#include <QThread>

namespace {

using namespace pinmora;

constexpr std::size_t photoCount = 200;

void measure(bench::Report &report) {
    const QTemporaryDir temporary;
    const std::filesystem::path root{temporary.path().toStdString()};
    const std::filesystem::path sample{PINMORA_SOURCE_DIR "/samples/outing/IMG_0412.JPG"};
    const std::vector<PhotoSnapshot> photos =
        bench::photosFrom(sample, root / "originals", photoCount);

    int round = 0;
    const auto runIn = [&](ToolLane lane) {
        const std::filesystem::path copies = root / std::to_string(++round);
        std::filesystem::create_directory(copies);
        const MetadataTool tool{root, {.lane = lane}};
        bench::require(tool.locate().has_value(), "ExifTool is not installed");
        for (const SavedPhoto &photo : SaveRun{tool, copies}.run(photos).photos) {
            bench::require(photo.message.empty(), photo.message);
        }
    };
    const std::filesystem::path copy = root / "single.jpg";
    std::filesystem::copy_file(sample, copy);
    const std::vector<std::string> arguments = metadataArguments(photos.front(), {}, copy);
    const auto tool = MetadataTool{root}.locate();
    const auto singleTool = [&] {
        bench::require(tool && runProcess(*tool, arguments).succeeded(), "ExifTool failed");
    };

    const double alone = photoCount * 1.0 / QThread::idealThreadCount(); // runs one after another
    const bench::Pair apart = bench::bestPair([&] { runIn(ToolLane::Process); }, singleTool);
    report.atMost("tagging 200 photos / tool alone", apart.ratio() / alone, 1.15);
    const bench::Pair shared = bench::bestPair([&] { runIn(ToolLane::Shared); }, singleTool);
    report.atLeast("tool alone / tagging, shared lane", alone / shared.ratio(), 8);
}

} // namespace

int main() {
    return bench::run(measure);
}
