#include "saving/argument_lines.h"

#include <algorithm>
#include <string_view>

namespace pinmora {

namespace {

constexpr std::string_view lineEnds = "\r\n";

bool needsEscapes(std::string_view argument) {
    return argument.find_first_of(lineEnds) != std::string_view::npos ||
           argument.find_first_not_of(" \t\v\f") != 0 || argument.starts_with('#');
}

void appendEscaped(std::string &lines, std::string_view argument) {
    lines += "#[CSTR]";
    for (const char byte : argument) {
        switch (byte) {
        case '\n':
            lines += "\\n";
            break;
        case '\r':
            lines += "\\r";
            break;
        case '\\':
        case '"':
            lines += '\\';
            [[fallthrough]];
        default:
            lines += byte;
        }
    }
}

/// The tool drops one blank after the "=" of such a line.
void appendPlain(std::string &lines, std::string_view argument) {
    const std::size_t equals = argument.starts_with('-') ? argument.find('=') : std::string::npos;
    const std::size_t valueAt = equals == std::string::npos ? argument.size() : equals + 1;
    lines += argument.substr(0, valueAt);
    if (valueAt < argument.size()) {
        lines += ' ';
        lines += argument.substr(valueAt);
    }
}

} // namespace

bool fitsOnALine(const std::string &argument) {
    return argument.find('\0') == std::string::npos &&
           (!needsEscapes(argument) || argument.find_first_of("$@") == std::string::npos);
}

std::string argumentLines(const std::vector<std::string> &arguments) {
    std::string lines;
    for (const std::string &argument : arguments) {
        needsEscapes(argument) ? appendEscaped(lines, argument) : appendPlain(lines, argument);
        lines += '\n';
    }
    return lines;
}

} // namespace pinmora
