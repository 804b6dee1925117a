#pragma once

#include "outlets/controls.h"
#include "shell/library_counts.h"

#include <vector>

namespace pinmora {

/// The end of the wizard: whether its photos can be saved, and that they have got their places.
class WizardEnd {
public:
    struct Outlets {
        Button &nextButtonAppliedAll; ///< saves the photos
        Control &congrats1;
        Control &congrats2;
        Button &savePhotosButton; ///< disabled while a run is under way
    };

    /// All must outlive it.
    WizardEnd(const Outlets &outlets, LibraryCounts &counts);
    WizardEnd(const WizardEnd &) = delete;
    WizardEnd &operator=(const WizardEnd &) = delete;
    ~WizardEnd() = default;

private:
    void follow(const Counts &counts);
    void enableSave();

    const Outlets outlets_;
    Counts counts_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
