#include "gps/log_report.h"

#include "platform/translation.h"

namespace pinmora {

namespace {

/// A line of a log, fit for a terminal: a damaged log holds anything.
std::string shown(std::string_view text) {
    constexpr std::size_t longest = 100;
    std::size_t end = text.size();
    if (end > longest) {
        end = longest;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80) {
            --end; // not within a character
        }
    }
    std::string result(text.substr(0, end));
    for (std::size_t i = 0; i < result.size(); ++i) {
        const auto code = static_cast<unsigned char>(result[i]);
        if (code < 0x20 || code == 0x7f) {
            result[i] = '.';
        } else if (code == 0xc2 && static_cast<unsigned char>(result[i + 1]) < 0xa0) {
            result.replace(i, 2, "."); // U+0080 to U+009F: terminals take some as commands
        }
    }
    return end < text.size() ? result + "..." : result;
}

} // namespace

void LogReport::addUnusable(std::string_view text, std::size_t line) {
    ++unusable;
    if (!sample) {
        sample = Sample{shown(text), line};
    }
}

std::string LogReport::unusableText() const {
    if (!sample) {
        return {};
    }
    //: %1 is the number of the line, %2 the line's text
    const std::string words =
        translated("gps", "%n points or sentences could not be used, the first in line %1: %2",
                   "%n point or sentence could not be used, in line %1: %2", unusable);
    return filled(words, {std::to_string(sample->line), sample->text});
}

} // namespace pinmora
