#include "saving/missing_words.h"

#include "platform/translation.h"

#include <filesystem>

namespace pinmora {

std::string searchingText(const std::string &searched, const std::string &folder) {
    const std::filesystem::path root(searched);
    std::string name = std::filesystem::path(folder).lexically_relative(root).string();
    if (name.empty() || name == ".") {
        name = root.has_filename() ? root.filename().string() : searched;
    }
    return filled(translated("saving", "Searching %1…"), {name});
}

std::string foundText(std::size_t found, std::size_t wanted) {
    if (found == 0) {
        return translated("saving", "None of the %n was found there.",
                          "The photo was not found there.", wanted);
    }
    if (found < wanted) {
        return filled(translated("saving", "%n of %1 found.", "%n of %1 found.", found),
                      {std::to_string(wanted)});
    }
    return translated("saving", "All %n found.", "The photo was found.", wanted);
}

} // namespace pinmora
