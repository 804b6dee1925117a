#pragma once

#include "platform/file_system.h"

#include <atomic>

namespace pinmora::test {

/// No waiting for the disk, which is there as long as the machine is.
class QuickFiles : public FileSystem {
public:
    std::error_code sync(int) override { return {}; }
    std::error_code syncFolder(const std::filesystem::path &) override { return {}; }
};

/// The real file system until its calls have used up `callsLeft`; from then on every one fails, as
/// on a disk that is full or gone.
class FailingFiles : public QuickFiles {
public:
    std::atomic<int> callsLeft{1'000'000};
    std::atomic<int> syncs{0};
    bool hasLinks = true;

    static std::error_code failure() { return std::make_error_code(std::errc::no_space_on_device); }

    std::error_code createNew(const std::filesystem::path &path, mode_t mode,
                              FileDescriptor &file) override {
        return isOver() ? failure() : FileSystem::createNew(path, mode, file);
    }
    /// Half of the bytes still fit.
    std::error_code write(int file, std::string_view bytes, std::size_t &written) override {
        if (!isOver()) {
            return FileSystem::write(file, bytes, written);
        }
        static_cast<void>(FileSystem::write(file, bytes.substr(0, bytes.size() / 2), written));
        return failure();
    }
    std::error_code sync(int file) override {
        ++syncs;
        return isOver() ? failure() : QuickFiles::sync(file);
    }
    std::error_code rename(const std::filesystem::path &from,
                           const std::filesystem::path &to) override {
        return isOver() ? failure() : FileSystem::rename(from, to);
    }
    std::error_code remove(const std::filesystem::path &path) override {
        return isOver() ? failure() : FileSystem::remove(path);
    }
    std::error_code link(const std::filesystem::path &file,
                         const std::filesystem::path &newName) override {
        return isOver() || !hasLinks ? failure() : FileSystem::link(file, newName);
    }
    std::error_code syncFolder(const std::filesystem::path &folder) override {
        return isOver() ? failure() : QuickFiles::syncFolder(folder);
    }

private:
    bool isOver() { return callsLeft-- <= 0; }
};

} // namespace pinmora::test
