#include "platform/raw_picture.h"

#include <libraw/libraw.h>

#include <algorithm>
#include <memory>

#include "platform/picture_fit.h"
#include "platform/qt_picture.h"

namespace pinmora {
namespace {

/// A preview with a longer side of fewer pixels is a mere thumbnail.
constexpr int smallestPreview = 1000;

/// A raw file whose header has been read, or null. The object is too big for the stack.
std::unique_ptr<LibRaw> openRaw(const std::filesystem::path &file) {
    auto raw = std::make_unique<LibRaw>();
    raw->set_dataerror_handler(nullptr, nullptr); // the default writes to standard error
    if (raw->open_file(file.c_str()) != LIBRAW_SUCCESS) {
        return nullptr;
    }
    return raw;
}

std::optional<QImage> imageFrom(libraw_processed_image_t *made, std::optional<PixelSize> fit) {
    const std::unique_ptr<libraw_processed_image_t, void (*)(libraw_processed_image_t *)> owned(
        made, LibRaw::dcraw_clear_mem);
    if (!owned) {
        return std::nullopt;
    }
    const auto *bytes = static_cast<const uchar *>(owned->data);
    if (owned->type == LIBRAW_IMAGE_JPEG) {
        return decodeWithQt(QByteArray(reinterpret_cast<const char *>(bytes),
                                       static_cast<qsizetype>(owned->data_size)),
                            fit);
    }
    const int line = owned->width * owned->colors;
    const auto needed = static_cast<std::size_t>(line) * owned->height;
    if (owned->bits != 8 || needed == 0 || owned->data_size < needed ||
        (owned->colors != 3 && owned->colors != 1)) {
        return std::nullopt;
    }
    const QImage view(bytes, owned->width, owned->height, line,
                      owned->colors == 3 ? QImage::Format_RGB888 : QImage::Format_Grayscale8);
    return scaledWithin(view.copy(), fit);
}

std::optional<QImage> embeddedPreview(LibRaw &raw, std::optional<PixelSize> fit) {
    if (raw.unpack_thumb() != LIBRAW_SUCCESS) {
        return std::nullopt;
    }
    return imageFrom(raw.dcraw_make_mem_thumb(), fit);
}

std::optional<QImage> develop(LibRaw &raw, std::optional<PixelSize> fit) {
    const auto &sizes = raw.imgdata.sizes;
    auto &how = raw.imgdata.params;
    how.user_flip = 0;
    how.use_camera_wb = 1;
    how.half_size = fit && sizeWithin({sizes.width / 2, sizes.height / 2}, fit).has_value() ? 1 : 0;
    if (raw.unpack() != LIBRAW_SUCCESS || raw.dcraw_process() != LIBRAW_SUCCESS) {
        return std::nullopt;
    }
    return imageFrom(raw.dcraw_make_mem_image(), fit);
}

/// Whether a preview shows as much as is wanted of the picture.
bool isEnough(const QImage &preview, PixelSize picture, std::optional<PixelSize> fit) {
    const PixelSize wanted = sizeWithin(picture, fit).value_or(picture);
    return std::max(preview.width(), preview.height()) >=
           std::min(smallestPreview, std::max(wanted.width, wanted.height));
}

} // namespace

std::optional<PixelSize> sizeSeenByLibRaw(const std::filesystem::path &file) {
    const auto raw = openRaw(file);
    if (!raw) {
        return std::nullopt;
    }
    return PixelSize{raw->imgdata.sizes.width, raw->imgdata.sizes.height};
}

std::optional<QImage> decodeWithLibRaw(const std::filesystem::path &file,
                                       std::optional<PixelSize> fit) {
    const auto raw = openRaw(file);
    if (!raw) {
        return std::nullopt;
    }
    const PixelSize size{raw->imgdata.sizes.width, raw->imgdata.sizes.height};
    auto preview = embeddedPreview(*raw, fit);
    if (preview && isEnough(*preview, size, fit)) {
        return preview;
    }
    auto developed = develop(*raw, fit);
    return developed ? developed : preview;
}

} // namespace pinmora
