// How fast the metadata of a folder of photos becomes photo records, against the tools that people
// read it with.

#include "log_import.h"
#include "ratio.h"

#include "photos/log_intake.h"
#include "photos/photos.h"
#include "platform/process.h"
#include "store/image.h"

#include <QTemporaryDir>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace pinmora;

constexpr std::size_t photoCount = 500;

/// The folder holds photos only.
class NoLogs : public LogIntake {
    bool isGPS(std::string_view) const override { return false; }
    void readLog(const std::string &) override {}
    bool readLogFoundByScan(const std::string &) override { return false; }
};

std::filesystem::path toolNamed(std::string_view name) {
    const auto tool = findOnPath(name);
    if (!tool) {
        throw std::runtime_error(std::string(name) + " is not installed");
    }
    return *tool;
}

void measure(bench::Report &report) {
    const QTemporaryDir temporary;
    const std::filesystem::path folder{temporary.path().toStdString()};
    std::vector<std::string> exiv2Arguments{"-K", "Exif.Photo.DateTimeOriginal", "-Pv"};
    for (std::size_t i = 0; i < photoCount; ++i) {
        const std::filesystem::path photo = folder / (std::to_string(i) + ".jpg");
        std::filesystem::copy_file(PINMORA_SOURCE_DIR "/samples/outing/IMG_0412.JPG", photo);
        exiv2Arguments.push_back(photo.native());
    }
    const auto intake = [&] {
        bench::Library library;
        NoLogs logs;
        const PhotoTypes types;
        Photos(library.context, logs, types).loadPict(folder.native());
        if (library.context.count<image>() != photoCount) {
            throw std::runtime_error("not all photos were read");
        }
    };
    const auto run = [](const std::filesystem::path &tool,
                        const std::vector<std::string> &arguments) {
        if (!runProcess(tool, arguments).succeeded()) {
            throw std::runtime_error(tool.native() + " failed");
        }
    };
    const auto exiv2 = toolNamed("exiv2");
    const auto exifTool = toolNamed("exiftool");
    const bench::Pair second = bench::bestPair(intake, [&] { run(exiv2, exiv2Arguments); });
    report.atMost("metadata / exiv2, one tag", second.ratio(), 2);
    const bench::Pair first = bench::bestPair(intake, [&] {
        run(exifTool, {"-fast2", "-json", folder.native()});
    });
    report.atLeast("exiftool -fast2 / metadata", 1 / first.ratio(), 10);
}

} // namespace

int main() {
    return bench::run(measure);
}
