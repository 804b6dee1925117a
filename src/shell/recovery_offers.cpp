#include "shell/recovery_offers.h"

#include "outlets/error_sheet.h"
#include "outlets/quiet_bar.h"
#include "outlets/status_line.h"
#include "platform/date.h"
#include "platform/translation.h"
#include "recovery/unsaved_work_keeper.h"
#include "store/calendar_formats.h"

#include <string>

namespace pinmora {
namespace {

/// Follows the head, "Unsaved work".
std::string whenceText(const RecoveryOffer &offer) {
    if (offer.photos == 0 && offer.points == 0) {
        //: After "Unsaved work". %1: date and time
        return translated("shell", "from %1.");
    }
    if (offer.points == 0) {
        return translated("shell", "from %1, with %n photos.", "from %1, with %n photo.",
                          offer.photos);
    }
    if (offer.photos == 0) {
        return translated("shell", "from %1, with %n points.", "from %1, with %n point.",
                          offer.points);
    }
    //: %2: "12 photos"
    return translated("shell", "from %1, with %2 and %n points.", "from %1, with %2 and %n point.",
                      offer.points);
}

std::string subjectOf(const RecoveryOffer &offer) {
    return "recovered " + offer.folder.path.string();
}

std::string textOf(const RecoveryOffer &offer) {
    LocalZone zone;
    //: Follows "with".
    const std::string photos = translated("shell", "%n photos", "%n photo", offer.photos);
    std::string text = filled(whenceText(offer),
                              {localizedTextFromDate(offer.time, shownTimeFormat, zone), photos});
    if (!offer.fault.empty()) {
        text += " " + filled(translated("shell", "It cannot be brought back: %1"), {offer.fault});
    }
    return text;
}

} // namespace

RecoveryOffers::RecoveryOffers(UnsavedWorkKeeper &keeper, QuietBar &bar, ErrorSheet &errors,
                               StatusLine &statusLine)
    : keeper_(keeper), bar_(bar), errors_(errors), statusLine_(statusLine), tellFailure_([this] {
          errors_.present(
              translated("shell", "Unsaved work is not being kept."),
              //: %1: the reason, with a capital letter and without a full stop
              filled(translated("shell",
                                "%1. Save the library (File menu) to keep what you have done."),
                     {failure_}));
      }),
      failed_(keeper.recorder().failed.connect([this](const std::string &reason) {
          failure_ = reason;
          tellFailure_.ask(); // a step is being closed: nothing may be drawn, and so begun, now
      })) {}

RecoveryOffers::~RecoveryOffers() {
    for (const RecoveryOffer &offer : unwanted_) {
        static_cast<void>(keeper_.recovered().discard(offer)); // else it is offered again
    }
}

void RecoveryOffers::post() {
    for (const RecoveryOffer &offer : keeper_.recovered().offers()) {
        post(offer);
    }
}

void RecoveryOffers::post(const RecoveryOffer &offer) {
    BarMessage message{.subject = subjectOf(offer),
                       .head = translated("shell", "Unsaved work"),
                       .text = textOf(offer),
                       .choices = {}};
    if (offer.fault.empty()) {
        message.choices.push_back(
            {translated("shell", "Bring Back"), [this, offer] { bringBack(offer); }});
    }
    message.choices.push_back({translated("shell", "Discard"), [this, offer] { discard(offer); }});
    message.weight = BarWeight::Offer;
    bar_.post(std::move(message));
}

void RecoveryOffers::bringBack(const RecoveryOffer &offer) {
    statusLine_.show(translated("shell", "Bringing back unsaved work"));
    const std::optional<std::string> problem = keeper_.recovered().bringBack(offer);
    statusLine_.show("");
    if (problem) {
        errors_.present(translated("shell", "Not all unsaved work could be brought back."),
                        *problem);
    }
}

/// A slip of the hand must not cost a person's work.
void RecoveryOffers::discard(const RecoveryOffer &offer) {
    unwanted_.push_back(offer);
    bar_.post(
        {.subject = subjectOf(offer),
         .head = translated("shell", "Unsaved work"),
         .text = textOf(offer) + " " + translated("shell", "It will be removed when you quit."),
         .choices = {{translated("shell", "Keep It"),
                      [this, offer] {
                          std::erase_if(unwanted_, [&](const RecoveryOffer &other) {
                              return other.folder.path == offer.folder.path;
                          });
                          post(offer);
                      }}},
         .weight = BarWeight::Answer});
}

} // namespace pinmora
