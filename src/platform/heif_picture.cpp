#include "platform/heif_picture.h"

#include <QColorSpace>
#include <libheif/heif.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

#include "platform/picture_fit.h"

namespace pinmora {
namespace {

template <auto release>
struct Release {
    template <class T>
    void operator()(T *object) const {
        release(object);
    }
};
using Context = std::unique_ptr<heif_context, Release<heif_context_free>>;
using Handle = std::unique_ptr<heif_image_handle, Release<heif_image_handle_release>>;
using Pixels = std::unique_ptr<heif_image, Release<heif_image_release>>;
using Options = std::unique_ptr<heif_decoding_options, Release<heif_decoding_options_free>>;

bool succeeded(heif_error error) {
    return error.code == heif_error_Ok;
}

/// The main picture of a file, or null; it keeps what it needs of the file.
Handle openMain(const std::filesystem::path &file) {
    const Context context(heif_context_alloc());
    heif_image_handle *handle = nullptr;
    if (!context || !succeeded(heif_context_read_from_file(context.get(), file.c_str(), nullptr)) ||
        !succeeded(heif_context_get_primary_image_handle(context.get(), &handle))) {
        return nullptr;
    }
    return Handle(handle);
}

PixelSize sizeOf(const Handle &handle) {
    return {heif_image_handle_get_width(handle.get()), heif_image_handle_get_height(handle.get())};
}

/// The thumbnail of a picture, where it is as large as what is wanted; else null.
Handle thumbnailThatCovers(const Handle &main, std::optional<PixelSize> fit) {
    const auto wanted = sizeWithin(sizeOf(main), fit);
    heif_item_id id = 0;
    heif_image_handle *handle = nullptr;
    if (!wanted || heif_image_handle_get_list_of_thumbnail_IDs(main.get(), &id, 1) != 1 ||
        !succeeded(heif_image_handle_get_thumbnail(main.get(), id, &handle))) {
        return nullptr;
    }
    Handle thumbnail(handle);
    const PixelSize size = sizeOf(thumbnail);
    return size.width >= wanted->width && size.height >= wanted->height ? std::move(thumbnail)
                                                                        : nullptr;
}

QColorSpace colourSpaceOf(const Handle &handle) {
    const auto size = heif_image_handle_get_raw_color_profile_size(handle.get());
    QByteArray profile(static_cast<qsizetype>(size), '\0');
    if (size == 0 ||
        !succeeded(heif_image_handle_get_raw_color_profile(handle.get(), profile.data()))) {
        return {};
    }
    return QColorSpace::fromIccProfile(profile);
}

std::optional<QImage> decode(const Handle &handle) {
    const bool hasAlpha = heif_image_handle_has_alpha_channel(handle.get()) != 0;
    const Options options(heif_decoding_options_alloc());
    options->convert_hdr_to_8bit = 1;
    heif_image *decoded = nullptr;
    const auto chroma = hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
    if (!succeeded(heif_decode_image(handle.get(), &decoded, heif_colorspace_RGB, chroma,
                                     options.get()))) {
        return std::nullopt;
    }
    const Pixels pixels(decoded);
    int line = 0;
    const auto *bytes =
        heif_image_get_plane_readonly(pixels.get(), heif_channel_interleaved, &line);
    const int width = heif_image_get_width(pixels.get(), heif_channel_interleaved);
    const int height = heif_image_get_height(pixels.get(), heif_channel_interleaved);
    if (bytes == nullptr || width <= 0 || height <= 0) {
        return std::nullopt;
    }
    QImage image = QImage(bytes, width, height, line,
                          hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888)
                       .copy();
    image.setColorSpace(colourSpaceOf(handle));
    return image;
}

} // namespace

bool isHeif(std::string_view head) {
    static constexpr std::array<std::string_view, 12> brands{"heic", "heix", "heim", "heis",
                                                             "hevc", "hevx", "hevm", "hevs",
                                                             "mif1", "msf1", "avif", "avis"};
    return head.size() >= 12 && head.substr(4, 4) == "ftyp" &&
           std::find(brands.begin(), brands.end(), head.substr(8, 4)) != brands.end();
}

std::optional<PixelSize> sizeSeenByHeif(const std::filesystem::path &file) {
    const Handle main = openMain(file);
    return main ? std::optional(sizeOf(main)) : std::nullopt;
}

std::optional<QImage> decodeWithHeif(const std::filesystem::path &file,
                                     std::optional<PixelSize> fit) {
    const Handle main = openMain(file);
    if (!main) {
        return std::nullopt;
    }
    std::optional<QImage> image;
    if (const Handle thumbnail = thumbnailThatCovers(main, fit)) {
        image = decode(thumbnail);
    }
    if (!image) {
        image = decode(main);
    }
    return image ? std::optional(scaledWithin(*image, fit)) : std::nullopt;
}

} // namespace pinmora
