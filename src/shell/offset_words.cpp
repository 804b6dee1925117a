#include "shell/offset_words.h"

#include "platform/translation.h"

#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace pinmora {
namespace {

using std::chrono::seconds;

enum class Measure { Days, Hours, Minutes, Seconds };

struct Unit {
    std::int64_t count;
    Measure measure;
};

/// "12 min"; `padded`: "02 min".
std::string spelled(const Unit &unit, bool padded = false) {
    const std::string number = (padded && unit.count < 10 ? "0" : "") + std::to_string(unit.count);
    switch (unit.measure) {
    case Measure::Days:
        //: A span of days, as short as can be.
        return filled(translated("shell", "%1 d"), {number});
    case Measure::Hours:
        //: A span of hours, as short as can be.
        return filled(translated("shell", "%1 h"), {number});
    case Measure::Minutes:
        //: A span of minutes, as short as can be.
        return filled(translated("shell", "%1 min"), {number});
    case Measure::Seconds:
        break;
    }
    //: A span of seconds, as short as can be.
    return filled(translated("shell", "%1 s"), {number});
}

std::string noTime() {
    return spelled({.count = 0, .measure = Measure::Seconds});
}

/// Days only where hours would be hard to read.
std::vector<Unit> unitsOf(seconds duration) {
    const std::int64_t size = std::abs(duration.count());
    constexpr std::int64_t hour = 3600;
    const bool inDays = size > 48 * hour;
    return {{.count = inDays ? size / (24 * hour) : 0, .measure = Measure::Days},
            {.count = inDays ? size / hour % 24 : size / hour, .measure = Measure::Hours},
            {.count = size / 60 % 60, .measure = Measure::Minutes},
            {.count = size % 60, .measure = Measure::Seconds}};
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

std::string sizeWords(seconds offset, bool isApproximate) {
    const std::string words = durationWords(offset);
    return isApproximate ? aboutWords(words) : words;
}

} // namespace

std::string durationWords(seconds duration) {
    std::string words;
    for (const Unit &unit : unitsOf(duration)) {
        if (unit.count > 0) {
            words.append(words.empty() ? "" : " ").append(spelled(unit));
        }
    }
    return words.empty() ? noTime() : words;
}

std::string aboutWords(std::string_view span) {
    //: %1: a span of time, or an offset of the camera's clock; within a sentence
    return filled(translated("shell", "about %1"), {span});
}

std::string offsetSentence(seconds offset, bool isApproximate) {
    if (offset.count() == 0) {
        return translated("shell", "The camera’s clock was right.");
    }
    return filled(offset.count() > 0 ? translated("shell", "The camera was %1 slow.")
                                     : translated("shell", "The camera was %1 fast."),
                  {sizeWords(offset, isApproximate)});
}

std::string offsetSentenceOf(std::string_view camera, seconds offset, bool isApproximate) {
    if (camera.empty()) {
        return offsetSentence(offset, isApproximate);
    }
    if (offset.count() == 0) {
        return filled(translated("shell", "%1: its clock was right"), {cameraName(camera)});
    }
    //: %1: the name of a camera, %2: a span of time; no full stop
    return filled(offset.count() > 0 ? translated("shell", "%1: %2 slow")
                                     : translated("shell", "%1: %2 fast"),
                  {cameraName(camera), sizeWords(offset, isApproximate)});
}

std::string shortOffset(seconds offset) {
    std::string words;
    for (const Unit &unit : unitsOf(offset)) {
        const bool isSecond = unit.measure == Measure::Seconds;
        // Whole minutes say so where there are hours: "2 h 00 min".
        if (unit.count == 0 && (words.empty() || isSecond)) {
            continue;
        }
        const bool padded = !words.empty() && unit.measure >= Measure::Minutes;
        words.append(words.empty() ? "" : " ").append(spelled(unit, padded));
    }
    return (offset.count() < 0 ? "−" : "+") + (words.empty() ? noTime() : words);
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
