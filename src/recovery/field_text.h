#pragma once

#include "persistence/text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// Numbers in frames are 4 bytes, the least significant first.
void appendNumber(std::string &out, std::uint32_t number);
/// `bytes` are at least 4.
std::uint32_t numberAt(std::string_view bytes);

/// Writes the fields of a frame one after the other: numbers as above, texts as their length and
/// their bytes.
class FieldWriter {
public:
    explicit FieldWriter(std::string &out) : out_(out) {}

    void number(std::uint32_t number) { appendNumber(out_, number); }
    void wideNumber(std::uint64_t number);
    void flag(bool flag) { out_ += flag ? '\1' : '\0'; }
    /// At most 4 GiB.
    void text(std::string_view text);
    /// No text, or one.
    void optionalText(const Text &text);

private:
    std::string &out_;
};

/// Reads what a FieldWriter wrote, field by field. Behind the end it reads zeros, and isBad().
class FieldReader {
public:
    explicit FieldReader(std::string_view bytes) : rest_(bytes) {}

    std::uint32_t number();
    std::uint64_t wideNumber();
    bool flag();
    std::string_view text();
    Text optionalText();

    bool isBad() const { return bad_; }
    /// Whether all fields were there, and nothing else.
    bool isComplete() const { return !bad_ && rest_.empty(); }

private:
    std::string_view take(std::size_t size);

    std::string_view rest_;
    bool bad_ = false;
};

} // namespace pinmora
