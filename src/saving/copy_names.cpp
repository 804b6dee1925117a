#include "saving/copy_names.h"

#include <algorithm>
#include <unordered_set>

namespace pinmora {

std::string copyFileName(std::string_view name, std::string_view extension, int attempt) {
    std::string fileName{name};
    if (attempt > 0) {
        fileName += '_' + std::to_string(attempt);
    }
    fileName += '.';
    fileName += extension;
    std::replace(fileName.begin(), fileName.end(), '/', '-');
    return fileName;
}

bool isTaken(const std::filesystem::path &path) {
    std::error_code unreadable; // then making the file says why
    return std::filesystem::exists(std::filesystem::symlink_status(path, unreadable));
}

std::vector<std::string> numberedNames(std::vector<std::string> names,
                                       const std::vector<std::size_t> &chosen,
                                       std::string_view base) {
    std::unordered_multiset<std::string> held{names.begin(), names.end()};
    std::vector<std::string> newNames;
    int number = 0;
    for (const std::size_t index : chosen) {
        std::string candidate;
        do {
            candidate = std::string{base} + '_' + std::to_string(++number);
        } while (held.contains(candidate));
        held.erase(held.find(names[index]));
        held.insert(candidate);
        names[index] = candidate;
        newNames.push_back(std::move(candidate));
    }
    return newNames;
}

} // namespace pinmora
