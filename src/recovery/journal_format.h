#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace pinmora {

/// What a frame of the journal holds. The letters are in files on people's disks: none may change
/// its meaning.
enum class FrameKind : char {
    Start = 'B',    ///< JournalStart: the library that everything after it goes on from
    Inserted = 'i', ///< records with all their values
    Changed = 'c',  ///< some values of records
    Removed = 'r',  ///< serials of records that have gone
    PutBack = 'p',  ///< serials of records that have come back as they went
    StepEnd = 'e',  ///< all since the last one belongs together; StepMark tells whose doing it is
    Saved = 's',    ///< a store file of this state holds all up to here
    ImportBegin = 'I',  ///< ImportFacts: a log begins to be read
    ImportBytes = 'D',  ///< some of its bytes
    ImportEntity = 'X', ///< what the log has asked for beside itself: name, bytes
    ImportEnd = 'E',    ///< ImportResult: what came of it
};

/// One entry of the journal.
struct Frame {
    FrameKind kind;
    std::string payload;
};

/// The journal is a line that names its format, then frames:
///
///     kind       1 byte
///     length     4 bytes, the least significant first: how long the payload is
///     checksum   4 bytes, likewise: CRC-32 of kind, length and payload
///     payload
///
/// It is only ever appended to. A crash can leave the last frame torn and, where the disk wrote out
/// of order, blank or old bytes within it; the checksum tells, and reading ends there.
inline constexpr std::string_view journalHeading = "pinmora-journal 1\n";
inline constexpr std::size_t frameHeadSize = 9;
/// No payload is longer, whatever a damaged length says.
inline constexpr std::size_t framePayloadLimit = std::size_t{256} << 20U;

/// Appends a frame as the file has it.
void appendFrame(std::string &out, FrameKind kind, std::string_view payload);

/// The first bytes of a frame, taken apart.
struct FrameHead {
    FrameKind kind;
    std::uint32_t length;
    std::uint32_t checksum;
};

/// `bytes` are frameHeadSize.
FrameHead frameHead(std::string_view bytes);
/// Whether the payload is the one that the head was written for.
bool fits(std::string_view headBytes, std::string_view payload);

} // namespace pinmora
