#pragma once

#include <filesystem>

namespace pinmora {

class PhotoIntake;

/// The photos and the log that the program brings along to be tried with.
class SampleOuting {
public:
    /// The intake must outlive it. `resourceFolder` is the program's own.
    SampleOuting(PhotoIntake &intake, const std::filesystem::path &resourceFolder)
        : intake_(intake), folder_(resourceFolder / "outing") {}

    bool isThere() const;
    void load();

private:
    PhotoIntake &intake_;
    const std::filesystem::path folder_;
};

} // namespace pinmora
