#include "shell/offset_words.h"

#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace pinmora {
namespace {

using std::chrono::seconds;

struct Unit {
    std::int64_t count;
    const char *name;
    bool twoDigits; ///< behind a larger unit, in the short form
};

/// Days only where hours would be hard to read.
std::vector<Unit> unitsOf(seconds duration) {
    const std::int64_t size = std::abs(duration.count());
    constexpr std::int64_t hour = 3600;
    const bool inDays = size > 48 * hour;
    return {{.count = inDays ? size / (24 * hour) : 0, .name = " d", .twoDigits = false},
            {.count = inDays ? size / hour % 24 : size / hour, .name = " h", .twoDigits = false},
            {.count = size / 60 % 60, .name = " min", .twoDigits = true},
            {.count = size % 60, .name = " s", .twoDigits = true}};
}

std::string slowOrFast(seconds offset) {
    return durationWords(offset) + (offset.count() > 0 ? " slow" : " fast");
}

bool startsWithWord(std::string_view text, std::string_view word) {
    if (word.empty() || text.size() <= word.size() || text[word.size()] != ' ') {
        return false;
    }
    for (std::size_t i = 0; i < word.size(); ++i) {
        const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
        if (lower(text[i]) != lower(word[i])) {
            return false;
        }
    }
    return true;
}

struct CameraParts {
    std::string_view make;
    std::string_view model; ///< without the make, which most models begin with
};

CameraParts partsOf(std::string_view camera) {
    constexpr std::string_view between = ", ";
    const std::size_t makeEnd = camera.find(between);
    if (makeEnd == std::string_view::npos) {
        return {.make = {}, .model = camera};
    }
    CameraParts parts{.make = camera.substr(0, makeEnd),
                      .model = camera.substr(makeEnd + between.size())};
    parts.model = parts.model.substr(0, parts.model.find(between));
    // "NIKON CORPORATION" makes the "NIKON D70".
    const std::string_view firstWord = parts.make.substr(0, parts.make.find(' '));
    for (const std::string_view prefix : {parts.make, firstWord}) {
        if (startsWithWord(parts.model, prefix)) {
            parts.make = parts.model.substr(0, prefix.size());
            parts.model.remove_prefix(prefix.size() + 1);
            break;
        }
    }
    return parts;
}

} // namespace

std::string durationWords(seconds duration) {
    std::string words;
    for (const Unit &unit : unitsOf(duration)) {
        if (unit.count > 0) {
            words += (words.empty() ? "" : " ") + std::to_string(unit.count) + unit.name;
        }
    }
    return words.empty() ? "0 s" : words;
}

std::string offsetSentence(seconds offset) {
    return offset.count() == 0 ? "The camera’s clock was right."
                               : "The camera was " + slowOrFast(offset) + ".";
}

std::string offsetSentenceOf(std::string_view camera, seconds offset) {
    return cameraName(camera) + ": " +
           (offset.count() == 0 ? "its clock was right" : slowOrFast(offset));
}

std::string shortOffset(seconds offset) {
    std::string words;
    for (const Unit &unit : unitsOf(offset)) {
        const bool isSecond = std::string_view(unit.name) == " s";
        // Whole minutes say so where there are hours: "2 h 00 min".
        if (unit.count == 0 && (words.empty() || isSecond)) {
            continue;
        }
        const bool padded = unit.twoDigits && !words.empty() && unit.count < 10;
        words += (words.empty() ? "" : " ") + std::string(padded ? "0" : "") +
                 std::to_string(unit.count) + unit.name;
    }
    return (offset.count() < 0 ? "−" : "+") + (words.empty() ? "0 s" : words);
}

std::string cameraName(std::string_view camera) {
    const CameraParts parts = partsOf(camera);
    return parts.make.empty() ? std::string(parts.model)
                              : std::string(parts.make) + " " + std::string(parts.model);
}

std::string modelName(std::string_view camera) {
    return std::string(partsOf(camera).model);
}

} // namespace pinmora
