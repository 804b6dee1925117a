#pragma once

#include "outlets/controls.h"
#include "shell/library_counts.h"

#include <vector>

namespace pinmora {

/// The end of the wizard: whether its photos can be saved, that they have got their places, and
/// the name that was typed for them.
class WizardEnd {
public:
    struct Outlets {
        Button &nextButtonAppliedAll; ///< saves the photos
        Control &congrats1;
        Control &congrats2;
        Button &savePhotosButton; ///< disabled while a run is under way
        const bool &inWizard;
        Button &changeName;
        Button &changeName2;
        Button &changeName3; ///< gives the typed name to all photos
    };

    /// All must outlive it.
    WizardEnd(const Outlets &outlets, LibraryCounts &counts);
    WizardEnd(const WizardEnd &) = delete;
    WizardEnd &operator=(const WizardEnd &) = delete;
    ~WizardEnd() = default;

    /// The name for all photos has been typed, or taken away again.
    void nameTyped(bool isThere) { nameWaits_ = isThere; }
    /// A name that was typed and not given yet is given to all photos: they are to be saved.
    void takeName();

private:
    void follow(const Counts &counts);
    void enableSave();

    const Outlets outlets_;
    Counts counts_;
    bool nameWaits_ = false;
    std::vector<Connection> connections_;
};

} // namespace pinmora
