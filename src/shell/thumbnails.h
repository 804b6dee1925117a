#pragma once

#include "outlets/image_well.h"
#include "outlets/signal.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>

namespace pinmora {

/// Small upright pictures of photo files, made in the background when they are first asked for and
/// kept in memory within a limit; those asked for last are made first. A file that is asked for
/// again is looked at again now and then, also in the background: it may have been replaced, or
/// have come with a card. Main thread.
class Thumbnails {
public:
    /// Pixels along the longer side, bytes kept, and how long a file is not looked at again.
    explicit Thumbnails(int side = 160, std::size_t byteLimit = 64U << 20U,
                        std::chrono::milliseconds restTime = std::chrono::seconds(3));
    ~Thumbnails();
    Thumbnails(const Thumbnails &) = delete;
    Thumbnails &operator=(const Thumbnails &) = delete;

    /// Null while it is being made for the first time, and for a file that cannot be shown. That of
    /// a file which has gone stays.
    Picture thumbnail(const std::string &path);
    /// Another thumbnail has come, or none is left, for this path.
    Signal<const std::string &> ready;

private:
    class Worker;
    std::unique_ptr<Worker> worker_;
};

} // namespace pinmora
