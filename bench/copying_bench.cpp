// Saving without the metadata tool: copying 200 photos of 5 MB against `cp -p`, and the memory that
// a run takes over many photos.

#include "ratio.h"
#include "saved_photos.h"

#include "platform/process.h"
#include "saving/save_run.h"
#include "saving/saving.h"

#include <QTemporaryDir>

#include <array>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace pinmora;
namespace fs = std::filesystem;

const fs::path sample{PINMORA_SOURCE_DIR "/samples/outing/IMG_0412.JPG"};

void measureCopying(bench::Report &report, const fs::path &root) {
    constexpr std::size_t count = 200;
    constexpr std::uintmax_t size = 5'000'000;
    const fs::path large = root / "large.jpg";
    fs::copy_file(sample, large);
    std::ofstream(large, std::ios::app) << std::string(size - fs::file_size(large), '\x5a');
    const auto photos = bench::photosFrom(large, root / "originals", count);
    const fs::path copies = root / "copies";
    std::vector<std::string> arguments{"-p"};
    for (const PhotoSnapshot &photo : photos) {
        arguments.push_back(photo.source);
    }
    arguments.push_back(copies);
    const auto ours = [&] {
        const Saving saving{root};
        for (const PhotoSnapshot &photo : photos) {
            bench::require(!saving.copyTheFile(photo.source, copies, photo.imageName),
                           "cannot copy");
        }
    };
    const auto theirs = [&] {
        bench::require(runProcess("/bin/cp", arguments).succeeded(), "cp failed");
    };
    // Into an empty folder each time, with nothing on its way to the disk.
    const auto prepare = [&] {
        fs::remove_all(copies);
        fs::create_directory(copies);
        ::sync();
    };
    constexpr int rounds = 5;
    bench::Pair best{1e9, 1e9};
    for (int round = 0; round < rounds; ++round) {
        prepare();
        best.work = std::min(best.work, bench::seconds(ours));
        prepare();
        best.yardstick = std::min(best.yardstick, bench::seconds(theirs));
    }
    report.atMost("copying 200 photos / cp -p", best.ratio(), 1.0);
}

/// The most memory that a process of its own takes which saves so many photos, in bytes.
double peakOf(const fs::path &root, ToolLane lane, std::size_t count) {
    const fs::path folder = root / (std::to_string(count) + std::string(laneName(lane)));
    fs::create_directory(folder);
    fs::create_directory(folder / "copies");
    std::array<int, 2> ends{};
    bench::require(::pipe2(ends.data(), O_CLOEXEC) == 0, "no pipe");
    const pid_t child = ::fork();
    if (child == 0) {
        const auto photos = bench::photosFrom(sample, folder / "originals", count);
        bench::resetPeakResident();
        const MetadataTool tool{root, {.lane = lane}};
        std::size_t peak = 0;
        for (const SavedPhoto &photo : SaveRun{tool, folder / "copies"}.run(photos).photos) {
            if (!photo.message.empty()) {
                ::_exit(1);
            }
        }
        peak = bench::peakResident();
        ::_exit(::write(ends[1], &peak, sizeof peak) == sizeof peak ? 0 : 1);
    }
    ::close(ends[1]);
    std::size_t peak = 0;
    const bool told = ::read(ends[0], &peak, sizeof peak) == sizeof peak;
    ::close(ends[0]);
    ::waitpid(child, nullptr, 0);
    bench::require(told, "a run failed");
    return static_cast<double>(peak);
}

void measureMemory(bench::Report &report, const fs::path &root) {
    std::ofstream(root / "exiftool") << R"(#!/bin/sh
[ "$1" = -stay_open ] || exit 0
while read -r line; do
    case $line in
    -execute*) echo "{status${line#-execute} 0}" >&2; echo "{ready${line#-execute}}" ;;
    -stay_open) exit ;;
    esac
done
)";
    fs::permissions(root / "exiftool", fs::perms::owner_all);
    for (const ToolLane lane : {ToolLane::Process, ToolLane::Shared}) {
        const double few = peakOf(root, lane, 200);
        const double many = peakOf(root, lane, 2000);
        report.atMost("2000 photos, MB over 200, " + std::string(laneName(lane)),
                      (many - few) / 1e6, 10);
    }
}

void measure(bench::Report &report) {
    const QTemporaryDir temporary;
    const fs::path root{temporary.path().toStdString()};
    measureMemory(report, root);
    measureCopying(report, root);
}

} // namespace

int main() {
    return bench::run(measure);
}
