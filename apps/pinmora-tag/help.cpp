#include "help.h"

#include "platform/translation.h"

#include <QtGlobal>

#include <algorithm>
#include <array>

namespace pinmora::tag {

namespace {

struct OptionHelp {
    const char *option;
    const char *words; ///< to be translated; a line of it has room for 54 characters
};

constexpr std::array<OptionHelp, 9> optionHelps{{
    {"--gps FILE", QT_TRANSLATE_NOOP("tag", "a GPS log: GPX or NMEA; may be given several times")},
    {"--offset [+|-]H:M:S",
     QT_TRANSLATE_NOOP("tag", "what the camera's clock lacks; added to the photos' times\n"
                              "(or with - taken off) before they are compared")},
    {"--name BASE",
     QT_TRANSLATE_NOOP("tag", "save the copies as BASE_1, BASE_2, ... in order of time")},
    {"--logs auto|exact|tolerant",
     QT_TRANSLATE_NOOP("tag", "how logs are read. exact: whole-second times, read as\n"
                              "clock time; tolerant: any time form, universal time,\n"
                              "modern receivers, gaps in the log. auto (the default)\n"
                              "takes your setting, and tolerant where only that fits")},
    {"--lane process|shared",
     QT_TRANSLATE_NOOP("tag", "how ExifTool is run. process: anew for each photo; shared:\n"
                              "a few that are kept open, which is much faster. Without\n"
                              "it your setting holds, which is process at first")},
    {"--no-places",
     QT_TRANSLATE_NOOP("tag", "do not look up city, province and country of the new\n"
                              "positions; your setting may say so too")},
    {"--out DIR", QT_TRANSLATE_NOOP("tag", "the folder for the copies; made if it is missing.\n"
                                           "Nothing in it is ever replaced")},
    {"--dry-run", QT_TRANSLATE_NOOP("tag", "say what would be done, and save nothing; needs no\n"
                                           "--out")},
    {"--json", QT_TRANSLATE_NOOP("tag", "print one JSON document instead of the table")},
}};

/// The words stand beside the option, or below one that is too long.
std::string linesOf(const OptionHelp &help) {
    constexpr std::size_t indent = 26;
    constexpr std::size_t gap = 2;
    std::string lines = std::string("  ") + help.option;
    if (lines.size() + gap > indent) {
        lines.append("\n").append(indent, ' ');
    }
    lines.resize(std::max(lines.size(), indent), ' ');
    for (const char letter : translated("tag", help.words)) {
        lines += letter;
        lines.append(letter == '\n' ? indent : 0, ' ');
    }
    return lines + '\n';
}

} // namespace

std::string helpText() {
    const std::string blankLine = "\n\n";
    std::string text =
        filled(translated("tag", "Usage: %1"), {"pinmora-tag [OPTION]... --out DIR PATH..."}) +
        blankLine +
        translated("tag", "Gives every photo the position of the GPS track point nearest in time "
                          "and the\n"
                          "names of the place there, and saves tagged copies. The photos "
                          "themselves are never changed.") +
        blankLine +
        //: PATH and what else is written in capitals stays as it is
        translated("tag", "PATHs are photos, folders of photos (one level deep) and GPS logs; "
                          "logs found in\n"
                          "a folder are read too.") +
        blankLine;
    for (const OptionHelp &help : optionHelps) {
        text += linesOf(help);
    }
    return text + "  --help, --version" + blankLine +
           translated("tag", "Exit status: 0 all done; 1 a photo failed or found no track point, "
                             "or something\n"
                             "that was named could not be read; 2 wrong usage.") +
           '\n';
}

} // namespace pinmora::tag
