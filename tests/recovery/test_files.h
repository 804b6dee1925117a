#pragma once

#include "platform/told_files.h"

#include <atomic>

namespace pinmora::test {

/// The real file system, but that nobody waits for the disk, which is there as long as the machine
/// is. Once its calls have used up `callsLeft`, `over` is done instead of every one, by default as
/// on a disk that is full or gone.
class FailingFiles : public ToldFiles {
public:
    std::atomic<int> callsLeft{1'000'000};
    std::atomic<int> syncs{0};
    bool hasLinks = true;
    std::function<std::error_code()> over = failure;

    static std::error_code failure() { return std::make_error_code(std::errc::no_space_on_device); }

    FailingFiles() : ToldFiles([this](Call call) { return answer(call); }) {}

private:
    Answer answer(Call call) {
        const bool isSync = call == Call::Sync || call == Call::SyncFolder;
        syncs += call == Call::Sync ? 1 : 0;
        if (call == Call::Close || call == Call::SetMode) {
            return std::nullopt;
        }
        if (callsLeft-- <= 0 || (call == Call::Link && !hasLinks)) {
            return over();
        }
        return isSync ? Answer(std::error_code()) : std::nullopt;
    }
};

} // namespace pinmora::test
