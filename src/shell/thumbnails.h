#pragma once

#include "outlets/image_well.h"
#include "outlets/signal.h"

#include <cstddef>
#include <memory>
#include <string>

namespace pinmora {

/// Small upright pictures of photo files, made in the background when they are first asked for and
/// kept in memory within a limit; those asked for last are made first. Main thread.
class Thumbnails {
public:
    /// Pixels along the longer side, and bytes kept.
    explicit Thumbnails(int side = 160, std::size_t byteLimit = 64U << 20U);
    ~Thumbnails();
    Thumbnails(const Thumbnails &) = delete;
    Thumbnails &operator=(const Thumbnails &) = delete;

    /// Null while it is being made, and for a file that cannot be shown.
    Picture thumbnail(const std::string &path);
    /// A thumbnail has been made, for this path.
    Signal<const std::string &> ready;

private:
    class Worker;
    std::unique_ptr<Worker> worker_;
};

} // namespace pinmora
