#include "platform/number_text.h"
#include "platform/property_list.h"
#include "shell/pinmora_app_delegate.h"

#include <string_view>

namespace pinmora {

int getOSVersion(const std::filesystem::path &file) {
    const std::string version = stringInPropertyList(file, "ProductVersion").value_or("");
    const std::size_t dot = version.find('.');
    if (leadingInt(version.substr(0, dot)) != 10 || dot == std::string::npos) {
        return 0;
    }
    return leadingInt(std::string_view(version).substr(dot + 1));
}

} // namespace pinmora
