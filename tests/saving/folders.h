#pragma once

#include "saving/photo_snapshot.h"
#include "saving/tool_settings.h"

#include <QTemporaryDir>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace pinmora {

inline constexpr std::array lanes{ToolLane::Process, ToolLane::Shared};

inline std::string bytesOf(const std::filesystem::path &file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void writeBytes(const std::filesystem::path &file, const std::string &bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

/// Three folders: of originals, of copies, and of a program's resources, for a stand-in tool.
class Folders {
public:
    Folders() {
        for (const auto &folder : {originals, copies, resources}) {
            std::filesystem::create_directory(folder);
        }
    }

    /// By the bytes of the names: Qt removes none that is not UTF-8.
    ~Folders() {
        std::error_code ignored;
        std::filesystem::remove_all(root, ignored);
    }
    Folders(const Folders &) = delete;
    Folders &operator=(const Folders &) = delete;

    /// Makes an original and returns what saving is to know of it.
    PhotoSnapshot photo(const std::string &name, const std::string &bytes = "") const {
        const auto source = originals / (name + ".jpg");
        if (bytes.empty()) {
            std::filesystem::copy_file(sample, source);
        } else {
            writeBytes(source, bytes);
        }
        PhotoSnapshot snapshot;
        snapshot.source = source;
        snapshot.imageName = name;
        snapshot.extension = "jpg";
        return snapshot;
    }

    /// Puts a shell script in the tool's place, which finds the copy's path in $copy. Kept open, it
    /// runs the script for each list it is given.
    void standIn(const std::string &script) const {
        const auto tool = resources / "exiftool";
        writeBytes(tool, "#!/bin/sh\nwork() {\n" + script + R"(
}
if [ "$1" != -stay_open ]; then
    for copy; do :; done
    work
    exit
fi
while :; do
    IFS= read -r line || { # the end of its input is not the end
        sleep 0.01
        continue
    }
    case $line in
    /*) copy=$line ;;
    -execute*)
        number=${line#-execute}
        (work)
        echo "{status$number $?}" >&2
        echo "{ready$number}"
        ;;
    -stay_open) exit ;;
    esac
done
)");
        std::filesystem::permissions(tool, std::filesystem::perms::owner_all);
    }

    /// The names of all that stands in the folder of copies.
    std::set<std::string> copyNames() const {
        std::set<std::string> names;
        for (const auto &entry : std::filesystem::directory_iterator(copies)) {
            names.insert(entry.path().filename());
        }
        return names;
    }

private:
    QTemporaryDir temporary_;

public:
    const std::filesystem::path root{temporary_.path().toStdString()};
    const std::filesystem::path originals = root / "originals";
    const std::filesystem::path copies = root / "copies";
    const std::filesystem::path resources = root / "resources";
    const std::filesystem::path sample{PINMORA_SOURCE_DIR "/samples/outing/IMG_0412.JPG"};
};

} // namespace pinmora
