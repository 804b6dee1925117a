#pragma once

#include "store/import_journal.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// The library that a journal goes on from.
struct JournalStart {
    std::string state; ///< of the store document that holds it
    // What is in that document when it is the journal's own base.
    std::uint32_t photos = 0;
    std::uint32_t points = 0;
    bool hasContent = false; ///< anything that is not there in every library
};

/// What came of an import: the records made, numbered in a row.
struct ImportResult {
    std::uint32_t firstSerial = 0;
    std::uint32_t records = 0;
    std::uint32_t points = 0;
};

// The payloads of frames. What is no such payload gives nothing.

std::string payloadOf(const JournalStart &start);
std::string payloadOf(const ImportFacts &facts);
std::string payloadOf(const ImportResult &result);
std::string entityPayload(std::string_view name, const std::optional<std::string> &content);

std::optional<JournalStart> startFrom(std::string_view payload);
std::optional<ImportFacts> factsFrom(std::string_view payload);
std::optional<ImportResult> resultFrom(std::string_view payload);

struct ImportedEntity {
    std::string name;
    std::optional<std::string> content;
};
std::optional<ImportedEntity> entityFrom(std::string_view payload);

/// Of StepEnd: whether a person did it, or the program by itself.
inline constexpr std::string_view personsStep = "1";
inline constexpr std::string_view programsStep = "0";

} // namespace pinmora
