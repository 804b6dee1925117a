#include "saving/photo_copy.h"

#include "platform/translation.h"
#include "saving/copy_names.h"
#include "saving/hidden_copy.h"
#include "saving/same_bytes.h"

#include <sys/stat.h>
#include <utility>

namespace pinmora {

namespace {

namespace fs = std::filesystem;

std::string copyFailure(const std::error_code &error, const fs::path &source) {
    std::error_code ignored;
    const bool missing =
        error == std::errc::no_such_file_or_directory && !fs::exists(source, ignored);
    return missing ? translated("saving", "Not copied: the original is missing")
                   : filled(translated("saving", "Not copied: %1"), {error.message()});
}

FileIdentity identityOf(const fs::path &file) {
    struct stat state {};
    return ::lstat(file.c_str(), &state) == 0 ? FileIdentity{state.st_dev, state.st_ino}
                                              : FileIdentity{};
}

bool isLackOfRoom(const std::error_code &error) {
    return error == std::errc::no_space_on_device || error.value() == EDQUOT;
}

PhotoCopy stillDoubtful(PhotoCopy copy, std::string why) {
    copy.failure = std::move(why);
    return copy;
}

} // namespace

PhotoCopy copyPhoto(const PhotoSnapshot &photo, const fs::path &folder) {
    PhotoCopy copy;
    std::error_code error = readFileTimes(photo.source, copy.times);
    if (error) {
        return {{}, {}, {}, copyFailure(error, photo.source)};
    }
    HiddenCopy hidden{photo.source, folder};
    error = hidden.error();
    if (!error) {
        copy.identity = identityOf(hidden.path());
        int attempt = 0;
        do {
            do {
                copy.path = folder / copyFileName(photo.imageName, photo.extension, attempt++);
            } while (isTaken(copy.path));
            error = hidden.placeAs(copy.path); // somebody else may have been quicker
        } while (error == std::errc::file_exists);
    }
    if (error) {
        return {{}, {}, {}, copyFailure(error, photo.source)};
    }
    return copy;
}

PhotoCopy madeWhole(const PhotoCopy &copy, const PhotoSnapshot &photo) {
    const fs::path folder = copy.path.parent_path();
    if (identityOf(copy.path) != copy.identity) {
        return copyPhoto(photo, folder);
    }
    std::error_code error;
    if (!fs::exists(photo.source, error)) {
        return stillDoubtful(
            copy, translated("saving", "the copy may be damaged, and the original is missing"));
    }
    if (haveSameBytes(photo.source, copy.path)) {
        return copy;
    }
    {
        // The new one first: while it is made, what there is stays.
        HiddenCopy hidden{photo.source, folder};
        error = hidden.error();
        if (!error) {
            PhotoCopy whole = copy;
            whole.identity = identityOf(hidden.path());
            error = hidden.replace(copy.path);
            if (!error) {
                return whole;
            }
        }
    }
    if (!isLackOfRoom(error)) {
        return stillDoubtful(
            copy,
            filled(translated("saving", "the copy may be damaged, and cannot be made again: %1"),
                   {error.message()}));
    }
    fs::remove(copy.path, error);
    return copyPhoto(photo, folder);
}

} // namespace pinmora
