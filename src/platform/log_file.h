#pragma once

#include <cstddef>
#include <filesystem>
#include <mutex>
#include <string>
#include <string_view>

namespace pinmora {

/// A text file that tells what went wrong, for people to read: one entry a line, each with its
/// time.
///
/// When it has grown beyond a limit it is kept beside the new one as "NAME.1", in the place of what
/// was kept there. May be used by several threads. What cannot be written is dropped: there is
/// nowhere left to tell it.
class LogFile {
public:
    static constexpr std::size_t defaultLimit = 1024UL * 1024;

    /// Nothing is made until the first entry.
    explicit LogFile(std::filesystem::path path, std::size_t limit = defaultLimit)
        : path_(std::move(path)), limit_(limit) {}

    /// Appends "YYYY-MM-DD HH:MM:SS ENTRY" in the computer's zone. Line breaks in the entry become
    /// " | ", other control characters and bytes that are not UTF-8 are replaced.
    void append(std::string_view entry);

    const std::filesystem::path &path() const { return path_; }
    /// All that is kept, the oldest first.
    std::string text() const;

private:
    std::filesystem::path path_;
    std::size_t limit_;
    mutable std::mutex mutex_;
};

} // namespace pinmora
