#include "shell/thumbnails.h"

#include "shell/background_job.h"
#include "shell/upright_picture.h"

#include <algorithm>
#include <list>
#include <unordered_map>
#include <vector>

namespace pinmora {

namespace {

/// More than a screen shows. When a list is scrolled fast, those asked for long ago are out of
/// sight; they will be asked for again.
constexpr std::size_t longestQueue = 200;

} // namespace

class Thumbnails::Worker {
public:
    Worker(Thumbnails &owner, int side, std::size_t byteLimit)
        : owner_(owner), side_(side), byteLimit_(byteLimit) {}

    Picture thumbnail(const std::string &path) {
        if (const auto found = entries_.find(path); found != entries_.end()) {
            uses_.splice(uses_.begin(), uses_, found->second.use);
            return found->second.picture;
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
    struct Entry {
        Picture picture; ///< null: it cannot be shown
        std::list<std::string>::iterator use;
    };

    void makeNext() {
        if (waiting_.empty() || job_.isRunning()) {
            return;
        }
        inWork_ = std::move(waiting_.back());
        waiting_.pop_back();
        job_.start([this, path = inWork_, side = side_]() -> BackgroundJob::Outcome {
            auto image = uprightThumbnail(path, side);
            const Picture picture =
                image ? std::make_shared<const QImage>(std::move(*image)) : nullptr;
            return [this, picture] { take(picture); };
        });
    }

    void take(const Picture &picture) {
        const std::string path = std::exchange(inWork_, {});
        uses_.push_front(path);
        entries_[path] = {picture, uses_.begin()};
        bytes_ += bytesOf(path, picture);
        while (bytes_ > byteLimit_ && uses_.size() > 1) {
            forgetOldest();
        }
        makeNext();
        if (picture) {
            owner_.ready.emit(path);
        }
    }

    void forgetOldest() {
        const auto oldest = entries_.find(uses_.back());
        bytes_ -= bytesOf(oldest->first, oldest->second.picture);
        entries_.erase(oldest);
        uses_.pop_back();
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
    std::unordered_map<std::string, Entry> entries_;
    std::list<std::string> uses_; ///< the paths of the entries, the last used first
    std::size_t bytes_ = 0;
    std::vector<std::string> waiting_; ///< the newest last
    std::string inWork_;
    BackgroundJob job_;
};

Thumbnails::Thumbnails(int side, std::size_t byteLimit)
    : worker_(std::make_unique<Worker>(*this, side, byteLimit)) {}

Thumbnails::~Thumbnails() = default;

Picture Thumbnails::thumbnail(const std::string &path) {
    return worker_->thumbnail(path);
}

} // namespace pinmora
