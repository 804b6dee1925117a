#include "saving/tool_words.h"

#include "platform/translation.h"

#include <algorithm>
#include <string_view>
#include <system_error>

namespace pinmora {

namespace {

/// In bytes. Enough to know what is wrong; a run over many photos keeps them all.
constexpr std::size_t longestWords = 600;

void removeAll(std::string &text, const std::string &part) {
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at)) {
        text.erase(at, part.size());
    }
}

void append(std::string &line, std::string_view part) {
    if (!line.empty() && !part.empty()) {
        line += "; ";
    }
    line += part;
}

/// Cuts a line that is too long, between two characters of UTF-8.
std::string shortened(std::string line) {
    if (line.size() <= longestWords) {
        return line;
    }
    constexpr std::string_view dots = "\u2026";
    const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) >> 6U) == 2; };
    std::size_t end = longestWords - dots.size();
    while (end > 0 && continues(line[end])) {
        --end;
    }
    line.resize(end);
    line += dots;
    return line;
}

/// The tool's remarks. Those of its interpreter (a locale that is not installed) are no business of
/// the photo's unless there is nothing else.
std::string remarks(std::string errors, const std::filesystem::path &copy, bool succeeded) {
    removeAll(errors, " - " + copy.native());
    std::string own;
    std::string all;
    std::string_view rest = errors;
    while (!rest.empty()) {
        std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        append(all, line);
        if (line.starts_with("Error") || line.starts_with("Warning")) {
            for (const std::string_view prefix : {"Error: ", "Warning: "}) {
                line.remove_prefix(line.starts_with(prefix) ? prefix.size() : 0);
            }
            append(own, line);
        }
    }
    return shortened(own.empty() && !succeeded ? std::move(all) : std::move(own));
}

} // namespace

std::string toolWords(const ProcessOutcome &outcome, const std::filesystem::path &copy) {
    using End = ProcessOutcome::End;
    std::string words = remarks(outcome.errors, copy, outcome.succeeded());
    switch (outcome.end) {
    case End::Exited:
        if (outcome.code != 0 && words.empty()) {
            words = filled(translated("saving", "ExifTool ended with status %1"),
                           {std::to_string(outcome.code)});
        }
        break;
    case End::Crashed:
        append(words, outcome.code == 0
                          ? translated("saving", "ExifTool ended before it was done")
                          : filled(translated("saving", "ExifTool was ended by signal %1"),
                                   {std::to_string(outcome.code)}));
        break;
    case End::TimedOut:
        append(words, translated("saving", "ExifTool took too long and was ended"));
        break;
    case End::NotStarted:
        words = filled(translated("saving", "ExifTool could not be started: %1"),
                       {std::generic_category().message(outcome.code)});
        break;
    }
    return words;
}

} // namespace pinmora
