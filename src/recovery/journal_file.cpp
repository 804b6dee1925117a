#include "recovery/journal_file.h"

namespace pinmora {

std::error_code JournalFile::open(const std::filesystem::path &path) {
    if (const std::error_code error = file_.open(path)) {
        return error;
    }
    std::error_code error;
    size_ = std::filesystem::file_size(path, error);
    if (error) {
        return error;
    }
    if (!read(head_, journalHeading.size()) || head_ != journalHeading) {
        return file_.lastFailure() ? file_.lastFailure()
                                   : std::make_error_code(std::errc::illegal_byte_sequence);
    }
    good_ = journalHeading.size();
    return {};
}

const Frame *JournalFile::next() {
    if (!read(head_, frameHeadSize)) {
        return nullptr;
    }
    const auto [kind, length, checksum] = frameHead(head_);
    // A damaged length must not have us ask for memory that the file could never fill.
    if (length > framePayloadLimit || length > size_ - good_ || !read(frame_.payload, length) ||
        !fits(head_, frame_.payload)) {
        return nullptr;
    }
    frame_.kind = kind;
    good_ += frameHeadSize + length;
    return &frame_;
}

bool JournalFile::read(std::string &bytes, std::size_t size) {
    bytes.resize(size);
    const auto got = file_.read(bytes);
    return got && got->size() == size;
}

} // namespace pinmora
