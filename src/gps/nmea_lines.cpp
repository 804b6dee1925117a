#include "gps/nmea_lines.h"

#include <algorithm>

namespace pinmora {

bool NmeaLines::next() {
    constexpr std::size_t none = std::string_view::npos;
    if (isLast()) {
        return false;
    }
    ++count_;
    // The "\n" is looked for once only, also in a text where all lines end with "\r".
    if (newline_ != none && newline_ < begin_) {
        newline_ = text_.find('\n', begin_);
    }
    const std::string_view upToNewline = text_.substr(begin_, newline_ - begin_);
    const std::size_t carriageReturn = upToNewline.find('\r');
    line_ = upToNewline.substr(0, carriageReturn);
    const std::size_t end = begin_ + line_.size();
    if (end == text_.size()) {
        begin_ = none;
    } else {
        begin_ = end + (text_.substr(end, 2) == "\r\n" ? 2 : 1);
    }
    return true;
}

} // namespace pinmora
