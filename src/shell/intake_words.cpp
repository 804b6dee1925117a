#include "shell/intake_words.h"

#include "photos/file_names.h"
#include "platform/translation.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace pinmora {

namespace {

constexpr std::size_t mostKinds = 5; ///< as many as fit into a line
constexpr std::size_t mostNames = 2;
constexpr std::size_t mostLogs = 5; ///< their names stand alone

struct Kind {
    std::string name; ///< ".heic"; "" for files without an extension
    std::size_t count = 0;
    bool isFirst = false;
};

std::string inLowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char letter) {
        return static_cast<char>(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter);
    });
    return lower;
}

std::string kindOf(const std::string &path, const std::function<bool(std::string_view)> &loads) {
    const std::string_view spelled = pathExtension(path);
    if (spelled.empty()) {
        return {};
    }
    const std::string lower = inLowerCase(spelled);
    const bool isMisspelled = !loads(spelled) && loads(lower);
    return std::string(".").append(isMisspelled ? spelled : lower);
}

std::vector<Kind> kindsOf(const std::vector<std::string> &files,
                          const std::function<bool(const std::string &)> &first,
                          const std::function<bool(std::string_view)> &loads) {
    std::map<std::string, Kind> byName;
    for (const std::string &file : files) {
        const std::string name = kindOf(file, loads);
        Kind &kind = byName[name];
        kind.name = name;
        ++kind.count;
        kind.isFirst = kind.isFirst || first(file);
    }
    std::vector<Kind> kinds;
    kinds.reserve(byName.size());
    for (auto &[name, kind] : byName) {
        kinds.push_back(std::move(kind));
    }
    std::stable_sort(kinds.begin(), kinds.end(), [](const Kind &a, const Kind &b) {
        return a.isFirst != b.isFirst ? a.isFirst : a.count > b.count;
    });
    return kinds;
}

std::string joined(const std::vector<std::string> &parts, std::string_view between) {
    std::string text;
    for (const std::string &part : parts) {
        text.append(text.empty() ? "" : between).append(part);
    }
    return text;
}

/// Leaves the first `most` and answers with the number of the others; one alone stays.
std::size_t shorten(std::vector<std::string> &parts, std::size_t most) {
    const std::size_t more = parts.size() > most + 1 ? parts.size() - most : 0;
    if (more > 0) {
        parts.resize(most);
    }
    return more;
}

std::string withReason(const std::string &name, const std::string &reason) {
    //: A file or folder, and why it could not be loaded.
    return filled(translated("shell", "%1: %2"), {name, reason});
}

std::string reasonText(const LogReport &log) {
    switch (log.error) {
    case LogError::MalformedGpx:
        //: Why a log could not be loaded; follows its name and a colon, as the next four do.
        return log.points == 0
                   ? translated("shell", "damaged GPX")
                   : translated("shell", "damaged GPX; %n points before the damage came in",
                                "damaged GPX; %n point before the damage came in", log.points);
    case LogError::NotALog:
        return translated("shell", "neither GPX nor NMEA");
    case LogError::Unreadable:
    case LogError::None:
        break;
    }
    return translated("shell", "not to be read");
}

std::string nameOf(const LogReport &log) {
    return log.path.filename().native();
}

std::string logsText(const std::vector<LogReport> &logs) {
    if (logs.size() == 1) {
        return withReason(nameOf(logs.front()), reasonText(logs.front()));
    }
    std::vector<std::string> names;
    std::transform(logs.begin(), logs.end(), std::back_inserter(names), nameOf);
    const std::size_t more = shorten(names, mostLogs);
    std::string text = joined(names, ", ");
    return more == 0
               ? text
               //: %1: names of files with commas between them
               : filled(translated("shell", "%1, and %n more", "%1, and %n more", more), {text});
}

/// Folders and photos with their reasons.
std::string othersText(const NotLoaded &notLoaded) {
    std::vector<std::string> parts;
    for (const UnreadFolder &folder : notLoaded.folders) {
        parts.push_back(withReason(splitPath(folder.path).name, folder.error.message()));
    }
    for (const LeftOutFile &file : notLoaded.files) {
        parts.push_back(withReason(splitPath(file.path).name, std::string(reasonText(file.why))));
    }
    const std::size_t more = shorten(parts, mostNames);
    std::string text = joined(parts, "; ");
    return more == 0
               ? text
               //: %1: names of files and reasons with semicolons between them
               : filled(translated("shell", "%1; and %n more", "%1; and %n more", more), {text});
}

} // namespace

std::string kindsText(const std::vector<std::string> &files, std::size_t folders,
                      const std::function<bool(const std::string &)> &first,
                      const std::function<bool(std::string_view)> &loads) {
    std::vector<std::string> parts;
    std::size_t others = 0;
    for (const Kind &kind : kindsOf(files, first, loads)) {
        if (kind.name.empty() || parts.size() >= mostKinds) {
            others += kind.count;
        } else {
            parts.push_back(std::to_string(kind.count) + " " + kind.name);
        }
    }
    if (others > 0) {
        parts.push_back(parts.empty()
                            ? translated("shell", "%n files", "%n file", others)
                            : translated("shell", "%n other files", "%n other file", others));
    }
    if (folders > 0) {
        //: Folders inside of the one that was loaded; their files were not.
        parts.push_back(translated("shell", "%n folders inside", "%n folder inside", folders));
    }
    return joined(parts, ", ");
}

std::string notLoadedText(const NotLoaded &notLoaded) {
    std::vector<std::string> parts;
    if (!notLoaded.logs.empty()) {
        parts.push_back(logsText(notLoaded.logs));
    }
    if (!notLoaded.folders.empty() || !notLoaded.files.empty()) {
        parts.push_back(othersText(notLoaded));
    }
    return joined(parts, "; ");
}

std::string emptyFoldersText(const std::vector<std::string> &folders) {
    if (folders.size() == 1) {
        return filled(translated("shell", "There are no photos and no logs in “%1”."),
                      {splitPath(folders.front()).name});
    }
    return folders.empty()
               ? ""
               : translated("shell", "There are no photos and no logs in %n folders.",
                            "There are no photos and no logs in %n folder.", folders.size());
}

std::vector<LogReport> failedLogsToTell(const std::vector<LogReport> &logs) {
    std::vector<LogReport> failed;
    std::copy_if(logs.begin(), logs.end(), std::back_inserter(failed),
                 [](const LogReport &log) { return log.failed(); });
    if (failed.size() == 1 &&
        failed.front().message.find(nameOf(failed.front())) != std::string::npos) {
        failed.clear();
    }
    return failed;
}

std::string doublesText(std::size_t doubles, std::size_t loaded) {
    if (doubles < loaded) {
        return filled(translated("shell", "%n of %1 photos were there already.",
                                 "%n of %1 photos was there already.", doubles),
                      {std::to_string(loaded)});
    }
    return translated("shell", "All %n photos were there already.", "The photo was there already.",
                      loaded);
}

} // namespace pinmora
