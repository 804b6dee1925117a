#include "shell/intake_words.h"

#include "photos/file_names.h"

#include <algorithm>
#include <map>

namespace pinmora {

namespace {

constexpr std::size_t mostKinds = 5; ///< as many as fit into a line
constexpr std::size_t mostNames = 2;

struct Kind {
    std::string name; ///< ".heic"; "" for files without an extension
    std::size_t count = 0;
    bool isFirst = false;
};

std::string kindOf(const std::string &path) {
    std::string kind(pathExtension(path));
    std::transform(kind.begin(), kind.end(), kind.begin(), [](char letter) {
        return static_cast<char>(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter);
    });
    return kind.empty() ? kind : "." + kind;
}

std::vector<Kind> kindsOf(const std::vector<std::string> &files,
                          const std::function<bool(const std::string &)> &first) {
    std::map<std::string, Kind> byName;
    for (const std::string &file : files) {
        Kind &kind = byName[kindOf(file)];
        kind.name = kindOf(file);
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

} // namespace

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

std::string kindsText(const std::vector<std::string> &files, std::size_t folders,
                      const std::function<bool(const std::string &)> &first) {
    std::vector<std::string> parts;
    std::size_t others = 0;
    for (const Kind &kind : kindsOf(files, first)) {
        if (kind.name.empty() || parts.size() >= mostKinds) {
            others += kind.count;
        } else {
            parts.push_back(std::to_string(kind.count) + " " + kind.name);
        }
    }
    if (others > 0) {
        parts.push_back(parts.empty() ? counted(others, "file", "files")
                                      : counted(others, "other file", "other files"));
    }
    if (folders > 0) {
        parts.push_back(counted(folders, "folder inside", "folders inside"));
    }
    return joined(parts, ", ");
}

std::string unreadText(const IntakeReport &report,
                       const std::function<bool(const LeftOutFile &)> &isTold) {
    std::vector<std::string> parts;
    for (const UnreadFolder &folder : report.unreadFolders) {
        parts.push_back(splitPath(folder.path).name + ": " + folder.error.message());
    }
    for (const LeftOutFile &file : report.leftOut) {
        if (isTold(file)) {
            parts.push_back(splitPath(file.path).name + ": " + std::string(reasonText(file.why)));
        }
    }
    if (parts.size() > mostNames + 1) {
        const std::size_t more = parts.size() - mostNames;
        parts.resize(mostNames);
        parts.push_back("and " + std::to_string(more) + " more");
    }
    return joined(parts, "; ");
}

std::string doublesText(std::size_t doubles, std::size_t loaded) {
    if (doubles < loaded) {
        return std::to_string(doubles) + " of " + std::to_string(loaded) + " photos " +
               (doubles == 1 ? "was" : "were") + " there already.";
    }
    return loaded == 1 ? "The photo was there already."
                       : "All " + std::to_string(loaded) + " photos were there already.";
}

} // namespace pinmora
