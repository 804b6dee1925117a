#include "options.h"

#include "help.h"

#include "platform/translation.h"

#include <getopt.h>

#include <array>
#include <charconv>
#include <string_view>

namespace pinmora::tag {

namespace {

enum Option { Gps = 1000, Offset, Name, Logs, Lane, NoPlaces, Out, DryRun, Json, Help, Version };

constexpr std::array options{
    option{"gps", required_argument, nullptr, Gps},
    option{"offset", required_argument, nullptr, Offset},
    option{"name", required_argument, nullptr, Name},
    option{"logs", required_argument, nullptr, Logs},
    option{"lane", required_argument, nullptr, Lane},
    option{"no-places", no_argument, nullptr, NoPlaces},
    option{"out", required_argument, nullptr, Out},
    option{"dry-run", no_argument, nullptr, DryRun},
    option{"json", no_argument, nullptr, Json},
    option{"help", no_argument, nullptr, Help},
    option{"version", no_argument, nullptr, Version},
    option{nullptr, 0, nullptr, 0},
};

/// "[+|-]H:M:S"; the fields are whole numbers and need not stay below 60.
std::optional<std::chrono::seconds> parseOffset(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    std::array<unsigned, 3> fields{};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const auto [end, error] =
            std::from_chars(text.data(), text.data() + text.size(), fields[i]);
        constexpr unsigned largest = 1'000'000; // over a century of hours
        if (error != std::errc() || fields[i] > largest) {
            return std::nullopt;
        }
        text.remove_prefix(static_cast<std::size_t>(end - text.data()));
        const bool last = i + 1 == fields.size();
        if (last ? !text.empty() : !text.starts_with(':')) {
            return std::nullopt;
        }
        text.remove_prefix(last ? 0 : 1);
    }
    const std::chrono::seconds sum = std::chrono::hours(fields[0]) +
                                     std::chrono::minutes(fields[1]) +
                                     std::chrono::seconds(fields[2]);
    return negative ? -sum : sum;
}

Usage wrongUsage(const std::string &what) {
    return {"pinmora-tag: " + what + "\n" + translated("tag", "Try 'pinmora-tag --help'.") + "\n",
            true};
}

/// Takes one option over; says what is wrong with it, if anything.
std::optional<Usage> take(int which, const char *argument, Options &into) {
    const std::string_view text = argument ? argument : "";
    switch (which) {
    case Gps:
        into.logs.emplace_back(text);
        break;
    case Offset:
        if (const auto offset = parseOffset(text)) {
            into.offset = *offset;
        } else {
            return wrongUsage(
                filled(translated("tag", "--offset wants [+|-]H:M:S, not \"%1\""), {text}));
        }
        break;
    case Name:
        if (text.empty() || text.find('/') != std::string_view::npos) {
            return wrongUsage(translated("tag", "--name wants a file name, without \"/\""));
        }
        into.name = text;
        break;
    case Logs:
        if (text == "auto" || text == "exact" || text == "tolerant") {
            into.reading = text == "auto"    ? LogsChoice::Auto
                           : text == "exact" ? LogsChoice::Exact
                                             : LogsChoice::Tolerant;
        } else {
            return wrongUsage(filled(
                translated("tag", "--logs wants auto, exact or tolerant, not \"%1\""), {text}));
        }
        break;
    case Lane:
        into.lane = laneNamed(text);
        if (!into.lane) {
            return wrongUsage(
                filled(translated("tag", "--lane wants process or shared, not \"%1\""), {text}));
        }
        break;
    case NoPlaces:
        into.places = false;
        break;
    case Out:
        into.out = text;
        break;
    case DryRun:
        into.dryRun = true;
        break;
    case Json:
        into.json = true;
        break;
    case Help:
        return Usage{helpText()};
    case Version:
        return Usage{"pinmora-tag " PINMORA_VERSION "\n"};
    default:
        return wrongUsage(translated("tag", "there is no such option, or its value is missing"));
    }
    return std::nullopt;
}

} // namespace

std::variant<Options, Usage> parseCommandLine(std::vector<std::string> arguments) {
    std::vector<char *> pointers;
    pointers.reserve(arguments.size() + 1);
    for (std::string &argument : arguments) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    const int count = static_cast<int>(arguments.size());

    Options result;
    optind = 0; // start over, also for a second command line in one process
    opterr = 0; // the messages are ours
    while (true) {
        const int which = getopt_long(count, pointers.data(), ":", options.data(), nullptr);
        if (which == -1) {
            break;
        }
        if (which == '?' || which == ':') {
            // Of letters in a bundle getopt has not moved on, but knows which one it was.
            const bool isLetter = which == '?' && optopt > 0 && optopt < 0x80;
            const std::string culprit = isLetter ? std::string{'-', static_cast<char>(optopt)}
                                                 : pointers[static_cast<std::size_t>(optind - 1)];
            return wrongUsage(which == ':'
                                  ? filled(translated("tag", "%1 wants a value"), {culprit})
                                  : filled(translated("tag", "no such option: %1"), {culprit}));
        }
        if (auto usage = take(which, optarg, result)) {
            return *usage;
        }
    }
    for (int i = optind; i < count; ++i) {
        result.paths.emplace_back(pointers[static_cast<std::size_t>(i)]);
    }
    if (result.paths.empty()) {
        return wrongUsage(translated("tag", "which photos? Give their files or a folder"));
    }
    if (result.out.empty() && !result.dryRun) {
        return wrongUsage(translated("tag", "where to? Give a folder with --out"));
    }
    return result;
}

} // namespace pinmora::tag
