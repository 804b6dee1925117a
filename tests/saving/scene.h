#pragma once

#include "saving/folders.h"
#include "saving/save_run.h"

#include <chrono>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <vector>

namespace pinmora {

inline constexpr std::size_t photoCount = 6;
inline constexpr std::size_t photoSize = 60'000;
inline const std::string older = "older";

/// Photos to be saved into a folder that holds a file of the first one's name.
class Scene : public Folders {
public:
    Scene() {
        for (std::size_t i = 0; i < photoCount; ++i) {
            std::string bytes(photoSize, static_cast<char>('a' + i));
            bytes.replace(photoSize - 6, 6, "ending");
            photos.push_back(photo("p" + std::to_string(i), bytes));
        }
        qputenv("HALF", (root / "half").c_str());
        look();
    }

    void putOlderFile() const { writeBytes(copies / "p0.jpg", older); }

    /// To be called after changes to the originals that are meant.
    void look() {
        before_.clear();
        for (const PhotoSnapshot &photo : photos) {
            before_.push_back(stateOf(photo.source));
        }
    }

    SaveOutcome save(ToolLane lane, SaveObserver observer = {}) const {
        const MetadataTool tool{resources,
                                {.lane = lane, .patience = std::chrono::milliseconds{400}}};
        return SaveRun{tool, copies, std::move(observer)}.run(photos);
    }

    /// What is not as it must be after a run; "" when all is well.
    std::string wrongs() const {
        std::string wrong;
        for (std::size_t i = 0; i < photos.size(); ++i) {
            wrong += stateOf(photos[i].source) == before_[i] ? "" : "original changed; ";
        }
        std::error_code gone;
        for (const auto &entry : std::filesystem::directory_iterator(copies, gone)) {
            const std::string name = entry.path().filename();
            if (name != "filler" && !isWhole(bytesOf(entry.path()))) {
                wrong += name + " is not whole; ";
            }
            if (name.starts_with(".pinmora") || name.ends_with("_tmp")) {
                wrong += name + " was left; ";
            }
        }
        return wrong;
    }

    std::vector<PhotoSnapshot> photos;

private:
    struct State {
        std::string bytes;
        mode_t mode = 0;
        time_t seconds = 0;
        long nanoseconds = 0;
        bool operator==(const State &) const = default;
    };
    static State stateOf(const std::filesystem::path &file) {
        struct stat state {};
        ::stat(file.c_str(), &state);
        return {bytesOf(file), state.st_mode, state.st_mtim.tv_sec, state.st_mtim.tv_nsec};
    }
    static bool isWhole(const std::string &bytes) {
        const std::string_view photo{bytes.data(), std::min(bytes.size(), photoSize)};
        return bytes == older ||
               (photo.size() == photoSize && photo.ends_with("ending") &&
                (bytes.size() == photoSize || bytes.substr(photoSize) == "tagged"));
    }

    std::vector<State> before_;
};

} // namespace pinmora
