#pragma once

#include "outlets/image_well.h"
#include "outlets/observable.h"
#include "platform/decoded_picture.h"

#include <memory>
#include <string>

namespace pinmora {

/// Where the picture of the one selected photo is shown.
struct PreviewOutlets {
    ImageWell theImageView;
    ImageWell theImageView1;
    ImageWell theImageView2;
    ImageWell theImageViewLarge;
};

/// Shows the picture of one photo file in four places at once: decoded once, upright, and with
/// pixels made square. It is decoded in the background; the last one asked for counts.
class Preview {
public:
    /// The outlets must outlive it. Pictures larger than `screen` (pixels) are decoded to fit into
    /// it, unless showFullSize() says otherwise.
    Preview(PreviewOutlets &outlets, PixelSize screen);
    ~Preview();
    Preview(const Preview &) = delete;
    Preview &operator=(const Preview &) = delete;

    /// Loads the file at a path into the four views; where there is none, or none that can be
    /// read, a built-in picture says so.
    void dealWithPict(const std::string &path);
    /// Empties the four views.
    void noPict();

    /// While it is on, the picture is decoded at its full size.
    void showFullSize(bool yes);
    /// Whether a picture is being decoded.
    Observable<bool> loading{false};
    /// For those who cannot wait for the event loop: returns once the views show what was asked
    /// for last.
    void waitForPicture();

private:
    class Decoding;
    std::unique_ptr<Decoding> decoding_;
};

} // namespace pinmora
