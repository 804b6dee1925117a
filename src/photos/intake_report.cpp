#include "photos/intake_report.h"

#include "platform/file_descriptor.h"
#include "platform/translation.h"

#include <fcntl.h>
#include <filesystem>

namespace pinmora {

std::string reasonText(WhyLeftOut why) {
    switch (why) {
    case WhyLeftOut::NotAnImage:
        return translated("photos", "not readable as an image");
    case WhyLeftOut::Missing:
        return translated("photos", "there is no such file");
    case WhyLeftOut::NoPermission:
        return translated("photos", "no permission to read it");
    case WhyLeftOut::NotAFile:
        return translated("photos", "not a regular file");
    case WhyLeftOut::NoKnownType:
        return translated("photos", "neither a photo nor a GPS log by its name");
    }
    return {};
}

WhyLeftOut whyNoImage(const std::string &path) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        return WhyLeftOut::Missing;
    }
    if (error == std::errc::permission_denied) {
        return WhyLeftOut::NoPermission;
    }
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        return WhyLeftOut::NotAFile;
    }
    const FileDescriptor opened(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    const bool barred = !opened.isOpen() && lastError() == std::errc::permission_denied;
    return barred ? WhyLeftOut::NoPermission : WhyLeftOut::NotAnImage;
}

} // namespace pinmora
