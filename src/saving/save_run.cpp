#include "saving/save_run.h"

#include "photos/file_names.h"
#include "platform/file_descriptor.h"
#include "platform/translation.h"
#include "saving/metadata_arguments.h"
#include "saving/photo_copy.h"

#include <QThread>
#include <QThreadPool>

#include <condition_variable>
#include <fcntl.h>
#include <mutex>

namespace pinmora {

using Status = SavedPhoto::Status;

/// Hands ended photos from the tool's threads to the run's own.
class SaveRun::EndedPhotos {
public:
    void put(SavedPhoto photo) {
        const std::lock_guard lock{mutex_};
        photos_.push_back(std::move(photo));
        change_.notify_one();
    }

    /// Those that have come since the last call.
    std::vector<SavedPhoto> take() {
        const std::lock_guard lock{mutex_};
        return std::exchange(photos_, {});
    }

    /// As take(), waiting for at least one.
    std::vector<SavedPhoto> await() {
        std::unique_lock lock{mutex_};
        change_.wait(lock, [this] { return !photos_.empty(); });
        return std::exchange(photos_, {});
    }

private:
    std::mutex mutex_;
    std::condition_variable change_;
    std::vector<SavedPhoto> photos_; ///< guarded by mutex_
};

namespace {

MetadataLayout layoutOf(const PhotoSnapshot &photo) {
    return needsLayout(photo) ? readMetadataLayout(photo.source) : MetadataLayout{};
}

SavedPhoto tag(const MetadataTool &tool, std::size_t index, const PhotoSnapshot &photo,
               const PhotoCopy &copy) {
    const ToolResult result =
        tool.write(metadataArguments(photo, layoutOf(photo), copy.path), copy.times);
    SavedPhoto saved{index, copy.path, Status::Saved, result.words};
    saved.hasPosition = pinmora::hasPosition(photo);
    using End = ToolResult::End;
    if (result.end == End::NotWritten || result.end == End::Doubtful) {
        saved.status = Status::Failed;
        saved.message = filled(translated("saving", "Copied, but not tagged: %1"), {result.words});
    }
    if (result.end == End::Doubtful) {
        const PhotoCopy whole = madeWhole(copy, photo);
        saved.savedAs = whole.path.empty() ? std::nullopt : std::optional{whole.path};
        saved.message += whole.failure.empty() ? "" : "; " + whole.failure;
    }
    return saved;
}

/// Whether the photo is one that was missing all along.
bool isSkipped(const PhotoSnapshot &photo) {
    std::error_code ignored;
    return photo.wasMissing && !std::filesystem::exists(photo.source, ignored);
}

} // namespace

SaveRun::SaveRun(const MetadataTool &tool, const std::filesystem::path &folder,
                 SaveObserver observer)
    : tool_(tool), folder_(absolutePath(folder.native())), observer_(std::move(observer)) {}

SaveOutcome SaveRun::run(const std::vector<PhotoSnapshot> &photos) {
    if (!tool_.locate()) {
        return {toolMissingMessage(), {}, {}};
    }
    // Open from the beginning: what fails to get to the disk later is told to who has it open.
    const FileDescriptor folder{::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    SaveOutcome outcome;
    outcome.photos.resize(photos.size());
    std::size_t waitedFor = photos.size();
    const auto note = [&](std::vector<SavedPhoto> ended) {
        for (SavedPhoto &photo : ended) {
            --waitedFor;
            if (observer_.ended) {
                observer_.ended(photo);
            }
            outcome.photos[photo.index] = std::move(photo);
        }
    };

    EndedPhotos ended;
    QThreadPool pool; // goes first, waiting for its threads: they use what stands above
    pool.setMaxThreadCount(QThread::idealThreadCount());
    for (std::size_t index = 0; index < photos.size(); ++index) {
        if (observer_.stopped && observer_.stopped()) {
            ended.put({index, std::nullopt, Status::Stopped,
                       translated("saving", "Not copied: the run was stopped")});
        } else {
            begin(index, photos, ended, pool);
        }
        note(ended.take());
    }
    if (observer_.copied) {
        observer_.copied();
    }
    while (waitedFor > 0) {
        note(ended.await());
    }
    if (folder.isOpen() && ::syncfs(folder.get()) != 0) {
        outcome.notOnDisk = lastError().message();
    }
    return outcome;
}

void SaveRun::begin(std::size_t index, const std::vector<PhotoSnapshot> &photos, EndedPhotos &ended,
                    QThreadPool &pool) const {
    if (observer_.begins) {
        observer_.begins(index, photos.size());
    }
    const PhotoSnapshot &photo = photos[index];
    if (isSkipped(photo)) {
        ended.put({index, std::nullopt, Status::Skipped, {}});
        return;
    }
    PhotoCopy copy = copyPhoto(photo, folder_);
    if (!copy.failure.empty()) {
        ended.put({index, std::nullopt, Status::Failed, copy.failure});
        return;
    }
    pool.start([this, index, copy, &photo, &ended] { ended.put(tag(tool_, index, photo, copy)); });
    if (observer_.placed) {
        observer_.placed(copy.path);
    }
}

} // namespace pinmora
