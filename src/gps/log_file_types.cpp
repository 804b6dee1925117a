#include "gps/log_file_types.h"

#include <filesystem>

namespace pinmora {

const std::map<std::string_view, std::string_view> &gpsLogTypeTable() {
    static const auto table = [] {
        std::map<std::string_view, std::string_view> types;
        for (const std::string_view type : gpsLogTypes) {
            types.emplace(type, type);
        }
        return types;
    }();
    return table;
}

bool namesGpsLog(std::string_view path) {
    const std::string extension = std::filesystem::path(path).extension().string();
    return !path.starts_with('.') && extension.size() > 1 &&
           gpsLogTypeTable().contains(std::string_view(extension).substr(1));
}

} // namespace pinmora
