#include "shell/thumbnails.h"

#include "platform/background_job.h"
#include "shell/upright_picture.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <list>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace pinmora {

namespace {

/// More than a screen shows. When a list is scrolled fast, those asked for long ago are out of
/// sight; they will be asked for again.
constexpr std::size_t longestQueue = 200;

/// By what a file is known to be the same.
struct Stamp {
    std::filesystem::file_time_type modified;
    std::uintmax_t bytes = 0;

    friend bool operator==(const Stamp &, const Stamp &) = default;
};

/// Nothing for a file that is not there.
std::optional<Stamp> stampOf(const std::filesystem::path &file) {
    std::error_code gone;
    Stamp stamp{.modified = std::filesystem::last_write_time(file, gone)};
    if (!gone) {
        stamp.bytes = std::filesystem::file_size(file, gone);
    }
    return gone ? std::nullopt : std::optional(stamp);
}

} // namespace

class Thumbnails::Worker {
public:
    Worker(Thumbnails &owner, int side, std::size_t byteLimit, std::chrono::milliseconds restTime)
        : owner_(owner), side_(side), byteLimit_(byteLimit), restTime_(restTime) {}

    Picture thumbnail(const std::string &path) {
        if (const auto found = entries_.find(path); found != entries_.end()) {
            Entry &entry = found->second;
            uses_.splice(uses_.begin(), uses_, entry.use);
            Picture picture = entry.picture;
            if (Clock::now() - entry.looked >= restTime_) {
                entry.looked = Clock::now();
                lookAgain(path);
            }
            return picture;
        }
        if (path != inWork_) {
            std::erase(waiting_, path);
            waiting_.push_back(path);
            if (waiting_.size() > longestQueue) {
                waiting_.erase(waiting_.begin());
            }
            makeNext();
        }
        return nullptr;
    }

private:
    using Clock = std::chrono::steady_clock;

    struct Entry {
        Picture picture; ///< null: it cannot be shown
        std::optional<Stamp> stamp;
        Clock::time_point looked; ///< when the file was last looked at, or was to be
        std::list<std::string>::iterator use;
    };

    /// After those that are not there yet.
    void lookAgain(const std::string &path) {
        if (path != inWork_ && waiting_.size() < longestQueue) {
            std::erase(waiting_, path);
            waiting_.insert(waiting_.begin(), path);
            makeNext();
        }
    }

    void makeNext() {
        if (waiting_.empty() || job_.isRunning()) {
            return;
        }
        inWork_ = std::move(waiting_.back());
        waiting_.pop_back();
        std::optional<Stamp> shown;
        if (const auto found = entries_.find(inWork_);
            found != entries_.end() && found->second.picture) {
            shown = found->second.stamp;
        }
        job_.start([this, path = inWork_, side = side_, shown]() -> BackgroundJob::Outcome {
            const std::optional<Stamp> stamp = stampOf(path);
            if (shown && (!stamp || stamp == shown)) {
                return [this] { leave(); };
            }
            auto image = uprightThumbnail(path, side);
            const Picture picture =
                image ? std::make_shared<const QImage>(std::move(*image)) : nullptr;
            return [this, picture, stamp] { take(picture, stamp); };
        });
    }

    /// The thumbnail is still that of the file.
    void leave() {
        inWork_.clear();
        makeNext();
    }

    void take(const Picture &picture, const std::optional<Stamp> &stamp) {
        const std::string path = std::exchange(inWork_, {});
        const bool isOther = forget(path) || picture;
        uses_.push_front(path);
        entries_[path] = {picture, stamp, Clock::now(), uses_.begin()};
        bytes_ += bytesOf(path, picture);
        while (bytes_ > byteLimit_ && uses_.size() > 1) {
            forget(std::string(uses_.back()));
        }
        makeNext();
        if (isOther) {
            owner_.ready.emit(path);
        }
    }

    /// Whether there was a picture.
    bool forget(const std::string &path) {
        const auto found = entries_.find(path);
        if (found == entries_.end()) {
            return false;
        }
        const bool wasShown = found->second.picture != nullptr;
        bytes_ -= bytesOf(path, found->second.picture);
        uses_.erase(found->second.use);
        entries_.erase(found);
        return wasShown;
    }

    /// The pixels, and about what else is kept of one.
    static std::size_t bytesOf(const std::string &path, const Picture &picture) {
        constexpr std::size_t overhead = 256;
        const auto pixels = picture ? static_cast<std::size_t>(picture->sizeInBytes()) : 0;
        return pixels + 2 * path.size() + overhead;
    }

    Thumbnails &owner_;
    const int side_;
    const std::size_t byteLimit_;
    const std::chrono::milliseconds restTime_;
    std::unordered_map<std::string, Entry> entries_;
    std::list<std::string> uses_; ///< the paths of the entries, the last used first
    std::size_t bytes_ = 0;
    std::vector<std::string> waiting_; ///< the newest last
    std::string inWork_;
    BackgroundJob job_;
};

Thumbnails::Thumbnails(int side, std::size_t byteLimit, std::chrono::milliseconds restTime)
    : worker_(std::make_unique<Worker>(*this, side, byteLimit, restTime)) {}

Thumbnails::~Thumbnails() = default;

Picture Thumbnails::thumbnail(const std::string &path) {
    return worker_->thumbnail(path);
}

} // namespace pinmora
