#include "photos/file_search.h"

#include "photos/file_candidates.h"
#include "photos/file_names.h"
#include "photos/open_folder.h"

#include <algorithm>
#include <set>
#include <unordered_map>

namespace pinmora {
namespace {

/// Walks folders and notes what could be one of the wanted files.
class Walk {
public:
    Walk(const std::vector<WantedFile> &wanted,
         const std::function<bool(const SearchProgress &)> &goOn)
        : wanted_(wanted), goOn_(goOn) {
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            byName_[wanted[i].name].push_back(i);
        }
    }

    /// Links wait until all else has been walked, so that a file is found by its own path where it
    /// has one there.
    void through(const std::string &folder) {
        waiting_.push_back(folder);
        while (!waiting_.empty() || !links_.empty()) {
            if (waiting_.empty()) {
                std::sort(links_.begin(), links_.end(), pathsInOrder);
                waiting_.assign(links_.rbegin(), links_.rend());
                links_.clear();
            }
            const std::string next = std::move(waiting_.back());
            waiting_.pop_back();
            if (!goOn_({.folders = walked_.size(), .folder = next})) {
                return;
            }
            lookInto(next);
        }
    }

    std::vector<FileCandidate> takeFound() { return std::move(found_); }

private:
    void lookInto(const std::string &path) {
        OpenFolder folder(path);
        const auto status = folder.status();
        if (!status || !walked_.insert(identityOf(*status)).second) {
            return;
        }
        const std::string start = path.ends_with('/') ? path : path + "/";
        while (const dirent *entry = folder.next()) {
            take(folder, *entry, start);
        }
    }

    void take(const OpenFolder &folder, const dirent &entry, const std::string &start) {
        const std::string_view name = entry.d_name;
        const unsigned char kind = folder.kindOf(entry);
        if (kind == DT_DIR) {
            if (!name.starts_with('.')) {
                waiting_.push_back(start + entry.d_name);
            }
            return;
        }
        const auto wanted = byName_.find(name);
        if (kind == DT_LNK && !name.starts_with('.') && folder.leadsToFolder(entry.d_name)) {
            links_.push_back(start + entry.d_name);
        } else if (wanted != byName_.end() && (kind == DT_REG || kind == DT_LNK)) {
            note(folder, entry.d_name, start, wanted->second);
        }
    }

    void note(const OpenFolder &folder, const char *name, const std::string &start,
              const std::vector<std::size_t> &wantedOfName) {
        const auto status = folder.statusOf(name);
        if (!status || !S_ISREG(status->st_mode)) {
            return;
        }
        const auto size = static_cast<std::uintmax_t>(status->st_size);
        for (const std::size_t wanted : wantedOfName) {
            if (wanted_[wanted].size.value_or(size) == size) {
                found_.push_back({.wanted = wanted,
                                  .path = start + name,
                                  .identity = identityOf(*status),
                                  .sameFolders = 0});
            }
        }
    }

    static FileIdentity identityOf(const struct stat &status) {
        return {status.st_dev, status.st_ino};
    }

    const std::vector<WantedFile> &wanted_;
    const std::function<bool(const SearchProgress &)> &goOn_;
    std::unordered_map<std::string_view, std::vector<std::size_t>> byName_;
    std::vector<std::string> waiting_;
    std::vector<std::string> links_;
    std::set<FileIdentity> walked_;
    std::vector<FileCandidate> found_;
};

} // namespace

std::vector<std::optional<std::string>>
findFiles(const std::string &folder, const std::vector<WantedFile> &wanted,
          const std::function<bool(const SearchProgress &)> &goOn) {
    Walk walk(wanted, goOn);
    walk.through(folder);
    return shareOut(walk.takeFound(), wanted);
}

} // namespace pinmora
