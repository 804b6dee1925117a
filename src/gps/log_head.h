#pragma once

#include "gps/log_reading.h"
#include "gps/text_log.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>

namespace pinmora {

/// As much of a file as is looked at to tell what it is.
inline constexpr std::size_t logHeadSize = 4096;

/// Where a text starts behind a byte-order mark (UTF-8, UTF-16) and blanks.
struct DocumentStart {
    std::size_t markSize = 0;       ///< bytes of the mark
    std::size_t begin = 0;          ///< the first byte that is neither mark nor blank
    std::size_t lines = 0;          ///< line feeds among the blanks
    char first = '\0';              ///< the character there; NUL for one beyond ASCII
    const char *encoding = nullptr; ///< "UTF-16LE" or "UTF-16BE" where the first bytes show it
};

/// Nothing while `head` holds no more than a mark, or part of one, and blanks.
std::optional<DocumentStart> documentStart(std::string_view head);

/// Whether a file with this head goes to the GPX reader; all others go to the NMEA reader. The
/// file's name says nothing.
bool beginsWithXml(std::string_view head, const ReadingPolicy &policy);

/// Whether a line of a text begins with "$".
bool hasSentence(std::string_view text);

/// Whether a file found in a folder is worth reading as a log: it begins with XML or as one of the
/// formats does, or at least one of its lines begins with "$". A file that cannot be read is, so
/// that reading it tells why.
bool looksLikeLog(const std::filesystem::path &path, LogReading reading,
                  TextLogFormats formats = textLogFormats());

} // namespace pinmora
