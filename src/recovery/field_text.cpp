#include "recovery/field_text.h"

namespace pinmora {

void appendNumber(std::string &out, std::uint32_t number) {
    for (unsigned shift = 0; shift < 32; shift += 8) {
        out += static_cast<char>(static_cast<unsigned char>(number >> shift & 0xFFU));
    }
}

std::uint32_t numberAt(std::string_view bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;) {
        number = number << 8U | static_cast<unsigned char>(bytes[i]);
    }
    return number;
}

void FieldWriter::wideNumber(std::uint64_t number) {
    appendNumber(out_, static_cast<std::uint32_t>(number & 0xFFFFFFFFU));
    appendNumber(out_, static_cast<std::uint32_t>(number >> 32U));
}

void FieldWriter::text(std::string_view text) {
    appendNumber(out_, static_cast<std::uint32_t>(text.size()));
    out_ += text;
}

void FieldWriter::optionalText(const Text &text) {
    flag(text.hasValue());
    if (text.hasValue()) {
        this->text(text.view());
    }
}

std::string_view FieldReader::take(std::size_t size) {
    if (bad_ || rest_.size() < size) {
        bad_ = true;
        return "";
    }
    const std::string_view taken = rest_.substr(0, size);
    rest_.remove_prefix(size);
    return taken;
}

std::uint32_t FieldReader::number() {
    const std::string_view bytes = take(4);
    return bytes.empty() ? 0 : numberAt(bytes);
}

std::uint64_t FieldReader::wideNumber() {
    const std::uint64_t low = number();
    return std::uint64_t{number()} << 32U | low;
}

bool FieldReader::flag() {
    return take(1) == std::string_view("\1");
}

std::string_view FieldReader::text() {
    return take(number());
}

Text FieldReader::optionalText() {
    return flag() ? Text(text()) : Text();
}

} // namespace pinmora
