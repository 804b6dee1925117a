#include "shell/preview.h"

#include "platform/background_job.h"
#include "shell/upright_picture.h"

#include <QFile>
#include <QTimer>

#include <chrono>

namespace pinmora {

namespace {

/// A picture of another photo is not left standing for longer than that.
constexpr std::chrono::milliseconds emptyAfter{150};

Picture shared(std::optional<QImage> image) {
    return image ? std::make_shared<const QImage>(std::move(*image)) : nullptr;
}

/// A picture that the program brings along; null without its resources.
Picture builtInPicture(const char *name) {
    QImage image(QLatin1String(":/pictures/") + QLatin1String(name) + QLatin1String(".tiff"));
    return image.isNull() ? nullptr : shared(std::move(image));
}

Picture pictureAt(const std::string &path, std::optional<PixelSize> fit) {
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        return builtInPicture("nic");
    }
    const Picture picture = shared(uprightPicture(path, fit));
    return picture ? picture : builtInPicture("nic2");
}

} // namespace

class Preview::Decoding {
public:
    Decoding(Preview &owner, PreviewOutlets &outlets, PixelSize screen)
        : owner_(owner), outlets_(outlets), screen_(screen) {
        patience_.setSingleShot(true);
        patience_.setInterval(emptyAfter);
        QObject::connect(&patience_, &QTimer::timeout, &patience_, [this] { show(nullptr); });
    }

    void load(std::optional<std::string> path) {
        const bool isOther = path != path_;
        path_ = std::move(path);
        if (!path_) {
            isWanted_ = false;
            settle();
            show(nullptr);
            return;
        }
        isWanted_ = true;
        if (isOther && !patience_.isActive()) {
            patience_.start();
        }
        owner_.loading.set(true);
        decodeNext();
    }

    void setFullSize(bool yes) {
        if (std::exchange(isFullSize_, yes) != yes && path_) {
            load(path_);
        }
    }

    void wait() {
        while (job_.isRunning()) {
            job_.finish();
        }
    }

private:
    void decodeNext() {
        if (!isWanted_ || job_.isRunning()) {
            return;
        }
        isWanted_ = false;
        const auto fit = isFullSize_ ? std::nullopt : std::optional(screen_);
        job_.start([this, path = *path_, fit]() -> BackgroundJob::Outcome {
            return [this, path, picture = pictureAt(path, fit)] { take(path, picture); };
        });
    }

    void take(const std::string &path, const Picture &picture) {
        if (!isWanted_ && path_ == path) {
            settle();
            show(picture);
        }
        decodeNext();
    }

    void settle() {
        patience_.stop();
        owner_.loading.set(false);
    }

    void show(const Picture &picture) {
        outlets_.theImageView.image.set(picture);
        outlets_.theImageView1.image.set(picture);
        outlets_.theImageView2.image.set(picture);
        outlets_.theImageViewLarge.image.set(picture);
    }

    Preview &owner_;
    PreviewOutlets &outlets_;
    const PixelSize screen_;
    std::optional<std::string> path_; ///< what the views show, or will
    bool isFullSize_ = false;
    bool isWanted_ = false; ///< asked for, and not being decoded yet
    QTimer patience_;
    BackgroundJob job_;
};

Preview::Preview(PreviewOutlets &outlets, PixelSize screen)
    : decoding_(std::make_unique<Decoding>(*this, outlets, screen)) {}

Preview::~Preview() = default;

void Preview::dealWithPict(const std::string &path) {
    decoding_->load(path);
}

void Preview::noPict() {
    decoding_->load(std::nullopt);
}

void Preview::showFullSize(bool yes) {
    decoding_->setFullSize(yes);
}

void Preview::waitForPicture() {
    decoding_->wait();
}

} // namespace pinmora
