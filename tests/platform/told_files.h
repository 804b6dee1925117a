#pragma once

#include "platform/file_system.h"

#include <functional>
#include <limits>
#include <optional>

namespace pinmora::test {

/// The real file system, which tells of each of its calls before it is made, and of a write when
/// half of its bytes are written. An answer is the call's, which is then not made.
class ToldFiles : public FileSystem {
public:
    enum class Call { CreateNew, SetMode, Write, Sync, Close, Rename, Remove, Link, SyncFolder };
    using Answer = std::optional<std::error_code>;
    using Path = std::filesystem::path;

    explicit ToldFiles(std::function<Answer(Call)> listener) : told(std::move(listener)) {}

    std::function<Answer(Call)> told;
    std::size_t mostAtOnce = std::numeric_limits<std::size_t>::max(); ///< bytes, by one write

    std::error_code createNew(const Path &path, mode_t mode, FileDescriptor &file) override {
        return at(Call::CreateNew, [&] { return FileSystem::createNew(path, mode, file); });
    }
    std::error_code setMode(int file, mode_t mode) override {
        return at(Call::SetMode, [&] { return FileSystem::setMode(file, mode); });
    }
    std::error_code write(int file, std::string_view bytes, std::size_t &written) override {
        bytes = bytes.substr(0, mostAtOnce);
        std::error_code error = FileSystem::write(file, bytes.substr(0, bytes.size() / 2), written);
        if (!error) {
            std::size_t rest = 0;
            error = at(Call::Write,
                       [&] { return FileSystem::write(file, bytes.substr(written), rest); });
            written += rest;
        }
        return error;
    }
    std::error_code sync(int file) override {
        return at(Call::Sync, [&] { return FileSystem::sync(file); });
    }
    std::error_code close(FileDescriptor &file) override {
        return at(Call::Close, [&] { return FileSystem::close(file); });
    }
    std::error_code rename(const Path &from, const Path &to) override {
        return at(Call::Rename, [&] { return FileSystem::rename(from, to); });
    }
    std::error_code remove(const Path &path) override {
        return at(Call::Remove, [&] { return FileSystem::remove(path); });
    }
    std::error_code link(const Path &file, const Path &newName) override {
        return at(Call::Link, [&] { return FileSystem::link(file, newName); });
    }
    std::error_code syncFolder(const Path &folder) override {
        return at(Call::SyncFolder, [&] { return FileSystem::syncFolder(folder); });
    }

private:
    std::error_code at(Call call, const std::function<std::error_code()> &make) const {
        const Answer answer = told(call);
        return answer ? *answer : make();
    }
};

} // namespace pinmora::test
