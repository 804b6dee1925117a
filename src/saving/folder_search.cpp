#include "saving/folder_search.h"

#include <QObject>

#include <chrono>
#include <mutex>
#include <utility>

namespace pinmora {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds betweenNews{60};

} // namespace

struct FolderSearch::News {
    std::mutex mutex;
    std::unique_ptr<QObject> receiver = std::make_unique<QObject>(); ///< null: stopped
    std::function<void(const std::string &folder)> turn;
    Clock::time_point told;

    /// Whether to go on. Called by the thread that searches.
    bool tell(const std::string &folder) {
        const std::lock_guard lock(mutex);
        const Clock::time_point now = Clock::now();
        if (receiver && now - told >= betweenNews) {
            told = now;
            QMetaObject::invokeMethod(
                receiver.get(), [this, folder] { turn(folder); }, Qt::QueuedConnection);
        }
        return receiver != nullptr;
    }

    bool isStopped() {
        const std::lock_guard lock(mutex);
        return receiver == nullptr;
    }

    void stop() {
        const std::lock_guard lock(mutex);
        receiver.reset(); // and with it what has been posted
    }
};

FolderSearch::FolderSearch(std::function<void(const std::string &folder)> turn,
                           std::function<void(const Found &)> ended)
    : ended_(std::move(ended)), news_(std::make_shared<News>()) {
    news_->turn = std::move(turn);
}

FolderSearch::~FolderSearch() {
    stop();
}

void FolderSearch::start(const std::string &folder, std::vector<WantedFile> wanted) {
    job_.start(
        [this, news = news_, folder, wanted = std::move(wanted)]() -> BackgroundJob::Outcome {
            Found found = findFiles(folder, wanted, [&news](const SearchProgress &progress) {
                return news->tell(progress.folder);
            });
            return [this, news, found = std::move(found)] {
                if (!news->isStopped()) {
                    news->stop(); // news of before would come after the outcome
                    ended_(found);
                }
            };
        });
}

void FolderSearch::stop() {
    news_->stop();
}

bool FolderSearch::isRunning() const {
    return job_.isRunning() && !news_->isStopped();
}

} // namespace pinmora
