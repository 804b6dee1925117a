#include "photos/browsed_picture.h"

#include "platform/decoded_picture.h"
#include "platform/image_source.h"

#include <QTransform>

#include <chrono>
#include <utility>

namespace pinmora {
namespace {

/// A picture of another file is not left standing for longer than that.
constexpr std::chrono::milliseconds emptyAfter{150};

/// Pixels along the longer side: the view is small, and may stand on a dense screen.
constexpr int longestSide = 640;

/// What turns a picture that lies so (Exif 1 to 8) upright.
QTransform toUpright(int orientation) {
    switch (orientation) {
    case 2:
        return {-1, 0, 0, 1, 0, 0};
    case 3:
        return {-1, 0, 0, -1, 0, 0};
    case 4:
        return {1, 0, 0, -1, 0, 0};
    case 5:
        return {0, 1, 1, 0, 0, 0};
    case 6:
        return {0, 1, -1, 0, 0, 0};
    case 7:
        return {0, -1, -1, 0, 0, 0};
    case 8:
        return {0, -1, 1, 0, 0, 0};
    default:
        return {};
    }
}

Picture pictureAt(const std::string &path) {
    const auto decoded = decodePicture(path, PixelSize{longestSide, longestSide});
    if (!decoded) {
        return nullptr;
    }
    const auto properties = readImageProperties(path, ImageRead::Light);
    const double orientation = properties ? properties->top.number("Orientation").value_or(1) : 1;
    const QTransform turn = toUpright(static_cast<int>(orientation));
    return std::make_shared<const QImage>(turn.isIdentity() ? *decoded
                                                            : decoded->transformed(turn));
}

} // namespace

BrowsedPicture::BrowsedPicture(Observable<Picture> &view, Observable<bool> &loading)
    : view_(view), loading_(loading) {
    patience_.setSingleShot(true);
    patience_.setInterval(emptyAfter);
    QObject::connect(&patience_, &QTimer::timeout, &patience_, [this] { view_.set(nullptr); });
}

void BrowsedPicture::show(const std::string &path) {
    path_ = path;
    isWanted_ = !path.empty();
    loading_.set(isWanted_);
    if (!isWanted_) {
        patience_.stop();
        view_.set(nullptr);
        return;
    }
    if (!patience_.isActive()) {
        patience_.start();
    }
    decodeNext();
}

void BrowsedPicture::decodeNext() {
    if (!isWanted_ || job_.isRunning()) {
        return;
    }
    isWanted_ = false;
    job_.start([this, path = path_]() -> BackgroundJob::Outcome {
        return [this, path, picture = pictureAt(path)] { take(path, picture); };
    });
}

void BrowsedPicture::take(const std::string &path, const Picture &picture) {
    if (!isWanted_ && path_ == path) {
        patience_.stop();
        loading_.set(false);
        view_.set(picture);
    }
    decodeNext();
}

} // namespace pinmora
