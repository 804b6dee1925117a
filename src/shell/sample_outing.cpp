#include "shell/sample_outing.h"

#include "photos/photo_intake.h"

#include <system_error>

namespace pinmora {

bool SampleOuting::isThere() const {
    std::error_code notReached;
    return std::filesystem::is_directory(folder_, notReached);
}

void SampleOuting::load() {
    intake_.openFiles({std::filesystem::absolute(folder_).lexically_normal().string()});
}

} // namespace pinmora
