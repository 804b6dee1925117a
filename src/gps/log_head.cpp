#include "gps/log_head.h"

#include "platform/input_file.h"
#include "platform/text_encoding.h"

#include <algorithm>
#include <array>

namespace pinmora {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view utf16BigEndianMark = "\xFE\xFF";
constexpr std::string_view utf16LittleEndianMark = "\xFF\xFE";

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

/// Looks for a line that begins with "$" in text that comes in blocks.
class SentenceFinder {
public:
    bool foundIn(std::string_view block) {
        for (const char c : block) {
            if (atLineStart_ && c == '$') {
                return true;
            }
            atLineStart_ = c == '\n' || c == '\r';
        }
        return false;
    }

private:
    bool atLineStart_ = true;
};

} // namespace

std::optional<DocumentStart> documentStart(std::string_view head) {
    DocumentStart start;
    for (const std::string_view mark : {utf8Mark, utf16BigEndianMark, utf16LittleEndianMark}) {
        if (head.starts_with(mark)) {
            start.markSize = mark.size();
        } else if (mark.starts_with(head)) {
            return std::nullopt;
        }
    }
    // Without a mark, the NUL beside the first character tells: XML begins with ASCII.
    const bool bigEndian = head.starts_with(utf16BigEndianMark) || head[0] == '\0';
    const bool littleEndian =
        head.starts_with(utf16LittleEndianMark) || (head.size() > 1 && head[1] == '\0');
    const bool wide = bigEndian || littleEndian;
    const std::size_t width = wide ? 2 : 1;        // bytes of a character
    const std::size_t asciiAt = bigEndian ? 1 : 0; // which of them holds an ASCII character
    start.encoding = bigEndian ? "UTF-16BE" : littleEndian ? "UTF-16LE" : nullptr;
    for (std::size_t at = start.markSize; head.size() - at >= width; at += width) {
        const bool isAscii = !wide || head[at + 1 - asciiAt] == '\0';
        const char c = isAscii ? head[at + asciiAt] : '\0';
        if (!isBlank(c)) {
            start.begin = at;
            start.first = c;
            return start;
        }
        start.lines += c == '\n' ? 1 : 0;
    }
    return std::nullopt;
}

bool beginsWithXml(std::string_view head, const ReadingPolicy &policy) {
    if (policy.xmlNeedsDeclaration) {
        return withoutByteOrderMark(head).starts_with("<?xml version=");
    }
    const std::optional<DocumentStart> start = documentStart(head);
    return start && start->first == '<';
}

bool hasSentence(std::string_view text) {
    return SentenceFinder().foundIn(text);
}

bool looksLikeLog(const std::filesystem::path &path, LogReading reading, TextLogFormats formats) {
    InputFile file;
    if (file.open(path)) {
        return true;
    }
    std::array<char, inputBlockSize> buffer;
    std::optional<std::string_view> block = file.read(buffer);
    if (!block || beginsWithXml(block->substr(0, logHeadSize), policyOf(reading))) {
        return true;
    }
    *block = withoutByteOrderMark(*block);
    const auto begins = [head = block->substr(0, logHeadSize)](const TextLogFormat &format) {
        return format.begins(head);
    };
    if (std::any_of(formats.begin(), formats.end(), begins)) {
        return true;
    }
    SentenceFinder sentence;
    for (; block && !block->empty(); block = file.read(buffer)) {
        if (sentence.foundIn(*block)) {
            return true;
        }
    }
    return !block;
}

} // namespace pinmora
