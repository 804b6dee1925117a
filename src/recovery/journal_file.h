#pragma once

#include "platform/input_file.h"
#include "recovery/journal_format.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace pinmora {

/// Walks over the frames of a journal from its start, one in memory at a time.
class JournalFile {
public:
    /// The system's error when it cannot be read; `illegal_byte_sequence` when it is no journal of
    /// this format.
    [[nodiscard]] std::error_code open(const std::filesystem::path &path);

    /// The next frame, good until the one after it is asked for. Null at the end, which is where
    /// the first torn or damaged frame begins.
    const Frame *next();

    /// How many bytes, from the start, are good as far as has been read.
    std::uint64_t goodBytes() const { return good_; }
    /// Whether there are bytes that are no frame behind the good ones; known at the end.
    bool isTorn() const { return good_ != size_; }

private:
    bool read(std::string &bytes, std::size_t size);

    InputFile file_;
    std::uint64_t size_ = 0;
    std::uint64_t good_ = 0;
    std::string head_;
    Frame frame_{};
};

} // namespace pinmora
