#include "saving/missing_words.h"

#include <filesystem>

namespace pinmora {

std::string searchingText(const std::string &searched, const std::string &folder) {
    const std::filesystem::path root(searched);
    std::string name = std::filesystem::path(folder).lexically_relative(root).string();
    if (name.empty() || name == ".") {
        name = root.has_filename() ? root.filename().string() : searched;
    }
    return "Searching " + name + "…";
}

std::string foundText(std::size_t found, std::size_t wanted) {
    const std::string all = std::to_string(wanted);
    if (found == 0) {
        return wanted == 1 ? "The photo was not found there."
                           : "None of the " + all + " was found there.";
    }
    if (found < wanted) {
        return std::to_string(found) + " of " + all + " found.";
    }
    return wanted == 1 ? "The photo was found." : "All " + all + " found.";
}

} // namespace pinmora
