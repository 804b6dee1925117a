#include "saving/hidden_copy.h"

#include "platform/file_placement.h"

#include <random>
#include <string>
#include <string_view>

namespace pinmora {

namespace {

std::string hiddenName() {
    // One case only: memory sticks take no notice of it.
    constexpr std::string_view characters = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device dice;
    std::uniform_int_distribution<std::size_t> index{0, characters.size() - 1};
    std::string name = ".pinmora-";
    for (int i = 0; i < 6; ++i) {
        name += characters[index(dice)];
    }
    return name;
}

} // namespace

HiddenCopy::HiddenCopy(const std::filesystem::path &source, const std::filesystem::path &folder) {
    std::filesystem::path file;
    do {
        file = folder / hiddenName();
        error_ = copyFile(source, file);
    } while (error_ == std::errc::file_exists);
    if (!error_) {
        file_ = std::move(file);
    }
}

HiddenCopy::~HiddenCopy() {
    if (!file_.empty()) {
        std::error_code ignored;
        std::filesystem::remove(file_, ignored);
    }
}

std::error_code HiddenCopy::placeAs(const std::filesystem::path &target) {
    const std::error_code error = placeWithoutReplacing(file_, target);
    if (!error) {
        file_.clear();
    }
    return error;
}

std::error_code HiddenCopy::replace(const std::filesystem::path &target) {
    std::error_code error;
    std::filesystem::rename(file_, target, error);
    if (!error) {
        file_.clear();
    }
    return error;
}

} // namespace pinmora
