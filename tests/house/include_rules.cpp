#include "house/include_rules.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <set>

namespace fs = std::filesystem;

namespace house {
namespace {

using Rooms = std::set<std::string>;

Rooms operator+(Rooms rooms, const Rooms &more) {
    rooms.insert(more.begin(), more.end());
    return rooms;
}

/// Which rooms a room may include beside itself: arrows go down only.
std::map<std::string, Rooms> allowedArrows() {
    const Rooms ground{"platform"};
    const Rooms middle = ground + Rooms{"persistence", "outlets"};
    const Rooms records = middle + Rooms{"store"};
    const Rooms subsystems{"gps",    "photos", "coords", "matching",
                           "saving", "places", "map",    "update"};
    std::map<std::string, Rooms> arrows{
        {"platform", {}},     {"persistence", ground}, {"outlets", ground},
        {"services", ground}, {"store", middle},
    };
    for (const std::string &subsystem : subsystems) {
        arrows[subsystem] = records;
    }
    arrows["matching"].insert("coords");
    arrows["saving"].insert("photos");
    arrows["recovery"] = records;
    arrows["shell"] = records + subsystems + Rooms{"recovery"};
    arrows["ui"] = arrows["shell"] + Rooms{"shell"};
    arrows["apps/pinmora-tag"] = arrows["ui"] + Rooms{"services"};
    arrows["apps/pinmora"] = arrows["apps/pinmora-tag"] + Rooms{"ui"};
    return arrows;
}

struct Include {
    fs::path file; ///< the file it stands in, from the root of the tree
    std::size_t line;
    std::string name;
    bool quoted;

    std::string complaint(const std::string &reason) const {
        return file.generic_string() + ":" + std::to_string(line) + ": " + name + ": " + reason;
    }
};

std::vector<Include> includesOf(const fs::path &root, const fs::path &file) {
    static const std::regex directive(R"(^\s*#\s*include\s*(["<])([^">]+)[">])");
    std::vector<Include> includes;
    std::ifstream text(root / file);
    std::size_t number = 0;
    for (std::string line; std::getline(text, line);) {
        ++number;
        std::smatch match;
        if (std::regex_search(line, match, directive)) {
            includes.push_back({file, number, match[2], match[1] == "\""});
        }
    }
    return includes;
}

/// The room of a path from the root of the tree ("src/gps/gpx.h": "gps"); empty outside any room.
std::string roomOf(const fs::path &path) {
    auto part = path.begin();
    const auto next = [&] { return part == path.end() ? std::string() : (part++)->string(); };
    const std::string top = next();
    const std::string room = next();
    return part == path.end() ? std::string() : top == "src" ? room : top + "/" + room;
}

bool isWindowHeader(const std::string &name) {
    static const std::regex module("^(QtWidgets/|QtWebEngine|QWebEngine|qwebengine)");
    return std::regex_search(name, module) ||
           (name.find('/') == std::string::npos &&
            fs::exists(fs::path(QT_HEADERS) / "QtWidgets" / name));
}

class Checker {
public:
    explicit Checker(fs::path root) : root_(std::move(root)) {}

    std::vector<std::string> complaints() {
        for (const fs::path &file : sources()) {
            if (!arrows_.contains(roomOf(file))) {
                complaints_.push_back(file.generic_string() + ": is in no room of the design");
                continue;
            }
            const std::vector<Include> includes = includesOf(root_, file);
            checkOwnHeader(file, includes);
            for (const Include &include : includes) {
                include.quoted ? checkQuoted(include) : checkLibrary(include);
            }
        }
        return complaints_;
    }

private:
    std::vector<fs::path> sources() const {
        std::vector<fs::path> files;
        for (const char *top : {"src", "apps"}) {
            if (!fs::exists(root_ / top)) {
                continue;
            }
            for (const auto &entry : fs::recursive_directory_iterator(root_ / top)) {
                const fs::path extension = entry.path().extension();
                if (extension == ".h" || extension == ".cpp") {
                    files.push_back(entry.path().lexically_relative(root_));
                }
            }
        }
        std::sort(files.begin(), files.end());
        return files;
    }

    /// A header that its source file includes first is known to compile alone.
    void checkOwnHeader(const fs::path &file, const std::vector<Include> &includes) {
        const fs::path own = fs::path(file).replace_extension(".h");
        const bool isFirst =
            !includes.empty() && fs::path(includes.front().name).filename() == own.filename();
        if (file.extension() == ".cpp" && fs::exists(root_ / own) && !isFirst) {
            complaints_.push_back(file.generic_string() + ": must include its own header first");
        }
    }

    void checkQuoted(const Include &include) {
        if (include.name.ends_with(".moc")) {
            return;
        }
        const fs::path beside = (include.file.parent_path() / include.name).lexically_normal();
        const fs::path target = fs::exists(root_ / beside)
                                    ? beside
                                    : (fs::path("src") / include.name).lexically_normal();
        const std::string from = roomOf(include.file);
        const std::string to = roomOf(target);
        if (!fs::exists(root_ / target)) {
            complaints_.push_back(include.complaint("there is no such file"));
        } else if (to != from && !arrows_.at(from).contains(to)) {
            complaints_.push_back(include.complaint(from + " must not include " + to));
        }
    }

    void checkLibrary(const Include &include) {
        const std::string room = roomOf(include.file);
        if (isWindowHeader(include.name) && room != "ui" && room != "apps/pinmora") {
            complaints_.push_back(include.complaint("only ui and apps/pinmora know windows"));
        }
        if (include.name.starts_with("exiv2/")) {
            if (exiv2User_.empty()) {
                exiv2User_ = include.file;
            }
            if (room != "platform" || include.file != exiv2User_) {
                complaints_.push_back(include.complaint("Exiv2 belongs to one file of platform"));
            }
        }
    }

    const fs::path root_;
    const std::map<std::string, Rooms> arrows_ = allowedArrows();
    fs::path exiv2User_;
    std::vector<std::string> complaints_;
};

} // namespace

std::vector<std::string> forbiddenIncludes(const fs::path &root) {
    return Checker(root).complaints();
}

} // namespace house
