#pragma once

#include "platform/date.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora::tag {

/// How it went with a photo.
enum class Status {
    Saved,     ///< copied and tagged
    Matched,   ///< would be saved (dry run)
    Unmatched, ///< no track point to choose; copied all the same
    Failed,    ///< not copied, or copied but not tagged
};

std::string_view statusName(Status status);

/// One photo of the report.
struct PhotoLine {
    std::string file = {};                    ///< full path of the original
    std::optional<WallClock> taken = {};      ///< as the camera's clock showed it
    std::optional<WallClock> corrected = {};  ///< with the offset
    std::string lat = {}, lon = {}, alt = {}; ///< as the record holds them; "" for none
    std::string city = {}, prov = {}, country = {};
    std::optional<std::int64_t> secondsApart = {}; ///< from the corrected time to the point's
    std::string savedAs = {};                      ///< full path of the copy; "" for none
    Status status = Status::Saved;
    std::string message = {};
};

/// What a run of the command has done.
struct Report {
    std::size_t tracks = 0;
    std::size_t points = 0;
    std::vector<PhotoLine> photos = {};
    bool trouble = false; ///< something that was named could not be used
};

/// 0 when all is done, else 1.
int exitStatus(const Report &report);

/// One line a photo under a line of headings, and a summary (UTF-8).
std::string tableText(const Report &report);

/// One JSON document (UTF-8).
std::string jsonText(const Report &report);

} // namespace pinmora::tag
