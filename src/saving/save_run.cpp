#include "saving/save_run.h"

#include "photos/file_names.h"
#include "saving/copy_names.h"
#include "saving/hidden_copy.h"
#include "saving/metadata_arguments.h"

#include <QThread>
#include <QThreadPool>

#include <condition_variable>
#include <mutex>

namespace pinmora {

namespace {

using Status = SavedPhoto::Status;

/// Hands ended photos from the tool's threads to the run's own.
class EndedPhotos {
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

/// A copy under its real name, as the tool needs it.
struct PlacedCopy {
    std::filesystem::path path;
    FileTimes times;
    std::string failure; ///< why there is none
};

std::string copyFailure(const std::error_code &error, const std::filesystem::path &source) {
    std::error_code ignored;
    const bool missing =
        error == std::errc::no_such_file_or_directory && !std::filesystem::exists(source, ignored);
    return "Not copied: " + (missing ? "the original is missing" : error.message());
}

PlacedCopy copyUnderFreeName(const PhotoSnapshot &photo, const std::filesystem::path &folder) {
    PlacedCopy copy;
    std::error_code error = readFileTimes(photo.source, copy.times);
    if (error) {
        copy.failure = copyFailure(error, photo.source);
        return copy;
    }
    HiddenCopy hidden{photo.source, folder};
    error = hidden.error();
    if (!error) {
        int attempt = 0;
        do {
            do {
                copy.path = folder / copyFileName(photo.imageName, photo.extension, attempt++);
            } while (isTaken(copy.path));
            error = hidden.placeAs(copy.path); // somebody else may have been quicker
        } while (error == std::errc::file_exists);
    }
    if (error) {
        copy.failure = copyFailure(error, photo.source);
    }
    return copy;
}

/// Puts a whole copy in the place of one that the tool left half written. The damaged one goes
/// first, for the disk may be full.
void makeAnew(SavedPhoto &saved, const PhotoSnapshot &photo) {
    std::error_code ignored;
    if (!std::filesystem::exists(photo.source, ignored)) {
        saved.message += "; the copy may be damaged, and the original is missing";
        return;
    }
    std::filesystem::remove(*saved.savedAs, ignored);
    const PlacedCopy copy = copyUnderFreeName(photo, saved.savedAs->parent_path());
    if (copy.failure.empty()) {
        saved.savedAs = copy.path;
    } else {
        saved.savedAs.reset();
        saved.message += "; " + copy.failure;
    }
}

MetadataLayout layoutOf(const PhotoSnapshot &photo) {
    return needsLayout(photo) ? readMetadataLayout(photo.source) : MetadataLayout{};
}

SavedPhoto tag(const MetadataTool &tool, std::size_t index, const PhotoSnapshot &photo,
               const PlacedCopy &copy) {
    const ToolResult result =
        tool.write(metadataArguments(photo, layoutOf(photo), copy.path), copy.times);
    SavedPhoto saved{index, copy.path, Status::Saved, result.words};
    using End = ToolResult::End;
    if (result.end == End::NotWritten || result.end == End::HalfWritten) {
        saved.status = Status::Failed;
        saved.message = "Copied, but not tagged: " + result.words;
    }
    if (result.end == End::HalfWritten) {
        makeAnew(saved, photo);
    }
    return saved;
}

} // namespace

SaveRun::SaveRun(const MetadataTool &tool, const std::filesystem::path &folder,
                 SaveObserver observer)
    : tool_(tool), folder_(absolutePath(folder.native())), observer_(std::move(observer)) {}

SaveOutcome SaveRun::run(const std::vector<PhotoSnapshot> &photos) {
    if (!tool_.locate()) {
        return {toolMissingMessage(), {}};
    }
    SaveOutcome outcome;
    outcome.photos.resize(photos.size());
    std::size_t waitedFor = photos.size();
    const auto note = [&](const std::vector<SavedPhoto> &ended) {
        for (const SavedPhoto &photo : ended) {
            outcome.photos[photo.index] = photo;
            --waitedFor;
            if (observer_.ended) {
                observer_.ended(photo);
            }
        }
    };

    EndedPhotos ended;
    QThreadPool pool; // goes first, waiting for its threads: they use what stands above
    pool.setMaxThreadCount(QThread::idealThreadCount());
    for (std::size_t index = 0; index < photos.size(); ++index) {
        if (observer_.stopped && observer_.stopped()) {
            ended.put({index, std::nullopt, Status::Failed, "Not copied: the run was stopped"});
            continue;
        }
        if (observer_.begins) {
            observer_.begins(index, photos.size());
        }
        const PhotoSnapshot &photo = photos[index];
        PlacedCopy copy = copyUnderFreeName(photo, folder_);
        if (!copy.failure.empty()) {
            ended.put({index, std::nullopt, Status::Failed, copy.failure});
        } else {
            pool.start([this, index, copy = std::move(copy), &photo, &ended] {
                ended.put(tag(tool_, index, photo, copy));
            });
        }
        note(ended.take());
    }
    while (waitedFor > 0) {
        note(ended.await());
    }
    return outcome;
}

} // namespace pinmora
