// What saving costs beside the metadata tool's own work: a run over 200 photos against the time
// that so many processes of the tool need when every core always has one.

#include "ratio.h"

#include "platform/process.h"
#include "saving/metadata_arguments.h"
#include "saving/save_run.h"

#include <QTemporaryDir>
#include <QThread>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace pinmora;

constexpr std::size_t photoCount = 200;

std::vector<PhotoSnapshot> makePhotos(const std::filesystem::path &folder) {
    const std::filesystem::path sample{PINMORA_SOURCE_DIR "/samples/outing/IMG_0412.JPG"};
    std::vector<PhotoSnapshot> photos;
    for (std::size_t i = 0; i < photoCount; ++i) {
        const std::filesystem::path source = folder / std::to_string(i);
        std::filesystem::copy_file(sample, source);
        photos.push_back({.source = source,
                          .imageName = std::to_string(i),
                          .extension = "jpg",
                          .description = "On the way up",
                          .comments = "",
                          .lat = "47.14951",
                          .lon = "8.51652",
                          .latRef = "N",
                          .lonRef = "E",
                          .mapDatum = "WGS-84",
                          .alt = "925.4",
                          .country = "Schweiz",
                          .prov = "Zug",
                          .city = "Zug"});
    }
    return photos;
}

/// A figure of work that failed would mean nothing.
void require(bool fine, const std::string &otherwise) {
    if (!fine) {
        throw std::runtime_error(otherwise);
    }
}

void measure(bench::Report &report) {
    const QTemporaryDir temporary;
    const std::filesystem::path root{temporary.path().toStdString()};
    std::filesystem::create_directory(root / "originals");
    const std::vector<PhotoSnapshot> photos = makePhotos(root / "originals");
    const MetadataTool tool{root};
    require(tool.locate().has_value(), "ExifTool is not installed");

    int round = 0;
    const auto run = [&] {
        const std::filesystem::path copies = root / std::to_string(++round);
        std::filesystem::create_directory(copies);
        for (const SavedPhoto &photo : SaveRun{tool, copies}.run(photos).photos) {
            require(photo.message.empty(), photo.message.c_str());
        }
    };
    const std::filesystem::path copy = root / "single.jpg";
    const std::vector<std::string> arguments = metadataArguments(photos.front(), {}, copy);
    const auto singleTool = [&] {
        require(runProcess(*tool.locate(), arguments).succeeded(), "ExifTool failed");
    };
    std::filesystem::copy_file(photos.front().source, copy);

    const bench::Pair best = bench::bestPair(run, singleTool);
    report.atMost("tagging 200 photos / tool alone",
                  best.ratio() * QThread::idealThreadCount() / photoCount, 1.15);
}

} // namespace

int main() {
    return bench::run(measure);
}
