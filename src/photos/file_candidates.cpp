#include "photos/file_candidates.h"

#include "photos/file_names.h"

#include <algorithm>
#include <set>

namespace pinmora {
namespace {

/// Cuts the last component off a path.
std::string_view takeLast(std::string_view &path) {
    while (path.ends_with('/')) {
        path.remove_suffix(1);
    }
    const std::string_view last = path.substr(path.rfind('/') + 1);
    path.remove_suffix(last.size());
    return last;
}

/// Cuts the first component off a path.
std::string_view takeFirst(std::string_view &path) {
    path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
    const std::string_view first = path.substr(0, path.find('/'));
    path.remove_prefix(first.size());
    return first;
}

std::size_t sameFolders(std::string_view a, std::string_view b) {
    takeLast(a); // the names themselves
    takeLast(b);
    std::size_t count = 0;
    for (std::string_view folder = takeLast(a); !folder.empty() && folder == takeLast(b);
         folder = takeLast(a)) {
        ++count;
    }
    return count;
}

} // namespace

bool pathsInOrder(std::string_view a, std::string_view b) {
    while (true) {
        const std::string_view partOfA = takeFirst(a);
        const std::string_view partOfB = takeFirst(b);
        if (partOfA != partOfB || partOfA.empty()) {
            return namesInOrder(partOfA, partOfB);
        }
    }
}

std::vector<std::optional<std::string>> shareOut(std::vector<FileCandidate> candidates,
                                                 const std::vector<WantedFile> &wanted) {
    for (FileCandidate &candidate : candidates) {
        candidate.sameFolders = sameFolders(candidate.path, wanted[candidate.wanted].formerPath);
    }
    std::sort(candidates.begin(), candidates.end(),
              [](const FileCandidate &a, const FileCandidate &b) {
                  if (a.sameFolders != b.sameFolders) {
                      return a.sameFolders > b.sameFolders;
                  }
                  return a.wanted != b.wanted ? a.wanted < b.wanted : pathsInOrder(a.path, b.path);
              });
    std::vector<std::optional<std::string>> places(wanted.size());
    std::set<FileIdentity> given;
    for (FileCandidate &candidate : candidates) {
        if (!places[candidate.wanted] && given.insert(candidate.identity).second) {
            places[candidate.wanted] = std::move(candidate.path);
        }
    }
    return places;
}

} // namespace pinmora
