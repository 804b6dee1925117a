#include "platform/atomic_file.h"

#include <optional>
#include <random>
#include <sys/stat.h>

namespace pinmora {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t bufferSize = std::size_t{1} << 20U;
/// How much is written between two requests to write it back: a second or less of a slow disk.
constexpr std::uint64_t writeBackStep = std::uint64_t{8} << 20U;

constexpr std::string_view nameLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
constexpr std::size_t nameLength = 6;

std::string temporaryPrefix(const fs::path &target) {
    return "." + target.filename().native() + ".";
}

/// Where the links at `path` lead, whether there is something or not.
std::error_code followLinks(fs::path &path) {
    constexpr int most = 40; // as the kernel
    std::error_code error;
    for (int links = 0; fs::is_symlink(fs::symlink_status(path, error)); ++links) {
        const fs::path next = fs::read_symlink(path, error);
        if (error || links == most) {
            return error ? error : std::make_error_code(std::errc::too_many_symbolic_link_levels);
        }
        path = path.parent_path() / next;
    }
    return {};
}

/// The permissions of an old file, nothing when there is none.
std::error_code oldMode(const fs::path &target, std::optional<mode_t> &mode) {
    struct stat state {};
    if (::stat(target.c_str(), &state) != 0) {
        return errno == ENOENT ? std::error_code{} : lastError();
    }
    if (S_ISDIR(state.st_mode)) {
        return std::make_error_code(std::errc::is_a_directory);
    }
    if (!S_ISREG(state.st_mode)) {
        return std::make_error_code(std::errc::not_supported);
    }
    mode = state.st_mode & 0777U;
    return {};
}

fs::path temporaryBeside(const fs::path &target) {
    std::random_device random;
    std::string name = temporaryPrefix(target);
    for (std::size_t i = 0; i < nameLength; ++i) {
        name += nameLetters[random() % nameLetters.size()];
    }
    return target.parent_path() / name;
}

fs::path folderOf(const fs::path &target) {
    return target.has_parent_path() ? target.parent_path() : fs::path(".");
}

} // namespace

std::error_code AtomicFile::open(const fs::path &target) {
    constexpr int attempts = 100;
    target_ = target;
    std::optional<mode_t> mode;
    if (auto error = followLinks(target_); error || (error = oldMode(target_, mode))) {
        return fail(error);
    }
    std::error_code error = std::make_error_code(std::errc::file_exists);
    for (int i = 0; i < attempts && error == std::errc::file_exists; ++i) {
        const fs::path candidate = temporaryBeside(target_);
        error = files_.createNew(candidate, mode ? 0600 : 0666, file_);
        if (!error) {
            temporary_ = candidate;
        }
    }
    if (!error && mode) {
        error = files_.setMode(file_.get(), *mode);
    }
    return error ? fail(error) : error;
}

std::error_code AtomicFile::write(std::string_view bytes) {
    if (error_) {
        return error_;
    }
    if (buffer_.size() + bytes.size() < bufferSize) {
        buffer_ += bytes;
        return {};
    }
    if (const auto error = handOver(buffer_)) {
        return error;
    }
    buffer_.clear();
    return handOver(bytes);
}

std::error_code AtomicFile::handOver(std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t count = 0;
        if (const auto error = files_.write(file_.get(), bytes, count)) {
            return fail(error);
        }
        written_ += count;
        bytes.remove_prefix(count);
    }
    if (written_ - writingBack_ >= writeBackStep) {
        files_.startWriteBack(file_.get(), writingBack_, written_ - writingBack_);
        writingBack_ = written_;
    }
    return {};
}

std::error_code AtomicFile::commit() {
    if (error_ || handOver(buffer_)) {
        return error_;
    }
    auto error = files_.sync(file_.get());
    if (error || (error = files_.close(file_)) || (error = files_.rename(temporary_, target_))) {
        return fail(error);
    }
    inPlace_ = true;
    temporary_.clear();
    return error_ = files_.syncFolder(folderOf(target_));
}

std::error_code AtomicFile::fail(std::error_code error) {
    error_ = error;
    discard();
    return error_;
}

void AtomicFile::discard() {
    file_.close();
    if (!temporary_.empty()) {
        files_.remove(temporary_);
        temporary_.clear();
    }
}

void removeLeftTemporaries(const fs::path &target, FileSystem &files) {
    fs::path followed = target;
    if (followLinks(followed)) {
        return;
    }
    const std::string prefix = temporaryPrefix(followed);
    std::error_code error;
    for (fs::directory_iterator entry(folderOf(followed), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().native();
        if (name.starts_with(prefix) && name.size() == prefix.size() + nameLength &&
            name.find_first_not_of(nameLetters, prefix.size()) == std::string::npos) {
            files.remove(entry->path());
        }
    }
}

std::error_code writeAtomically(const fs::path &target, std::string_view bytes, FileSystem &files) {
    AtomicFile file(files);
    if (auto error = file.open(target); error || (error = file.write(bytes))) {
        return error;
    }
    return file.commit();
}

} // namespace pinmora
