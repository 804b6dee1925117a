#pragma once

#include "shell/library_counts.h"
#include "shell/wizard_pages.h"

#include <QString>

namespace pinmora {

/// What a page of the wizard says above all else.
struct PageTexts {
    QString question;
    QString words; ///< what the page is for, and what to do without what it asks for
};

/// `isApplied`: the log has been applied to all photos.
PageTexts textsFor(WizardPage page, const Counts &counts, bool isApplied);

/// "8 photos and 2 tracks are here already. Next goes on with them."; "" for an empty library.
QString holdings(const Counts &counts);
/// "3 of 8 photos have their place", or that there are none.
QString placedOf(const Counts &counts);

} // namespace pinmora
