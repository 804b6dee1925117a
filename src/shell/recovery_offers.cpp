#include "shell/recovery_offers.h"

#include "outlets/error_sheet.h"
#include "outlets/quiet_bar.h"
#include "outlets/status_line.h"
#include "platform/date.h"
#include "recovery/unsaved_work_keeper.h"
#include "store/calendar_formats.h"

#include <string>

namespace pinmora {
namespace {

std::string counted(std::size_t number, const std::string &one, const std::string &many) {
    return std::to_string(number) + " " + (number == 1 ? one : many);
}

std::string whatIsInIt(const RecoveryOffer &offer) {
    std::string words;
    if (offer.photos > 0) {
        words = counted(offer.photos, "photo", "photos");
    }
    if (offer.points > 0) {
        words += (words.empty() ? "" : " and ") + counted(offer.points, "point", "points");
    }
    return words.empty() ? words : ", with " + words;
}

std::string subjectOf(const RecoveryOffer &offer) {
    return "recovered " + offer.folder.path.string();
}

std::string textOf(const RecoveryOffer &offer) {
    LocalZone zone;
    std::string text =
        "from " + textFromDate(offer.time, shownTimeFormat, zone) + whatIsInIt(offer) + ".";
    if (!offer.fault.empty()) {
        text += " It cannot be brought back: " + offer.fault;
    }
    return text;
}

} // namespace

RecoveryOffers::RecoveryOffers(UnsavedWorkKeeper &keeper, QuietBar &bar, ErrorSheet &errors,
                               StatusLine &statusLine)
    : keeper_(keeper), bar_(bar), errors_(errors), statusLine_(statusLine), tellFailure_([this] {
          errors_.present("Unsaved work is not being kept.",
                          failure_ + ". Save the library (File menu) to keep what you have done.");
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
    BarMessage message{
        .subject = subjectOf(offer), .head = "Unsaved work", .text = textOf(offer), .choices = {}};
    if (offer.fault.empty()) {
        message.choices.push_back({"Bring Back", [this, offer] { bringBack(offer); }});
    }
    message.choices.push_back({"Discard", [this, offer] { discard(offer); }});
    bar_.post(std::move(message));
}

void RecoveryOffers::bringBack(const RecoveryOffer &offer) {
    statusLine_.show("Bringing back unsaved work");
    const std::optional<std::string> problem = keeper_.recovered().bringBack(offer);
    statusLine_.show("");
    if (problem) {
        errors_.present("Not all unsaved work could be brought back.", *problem);
    }
}

/// A slip of the hand must not cost a person's work.
void RecoveryOffers::discard(const RecoveryOffer &offer) {
    unwanted_.push_back(offer);
    bar_.post({.subject = subjectOf(offer),
               .head = "Unsaved work",
               .text = textOf(offer) + " It will be removed when you quit.",
               .choices = {{"Keep It", [this, offer] {
                                std::erase_if(unwanted_, [&](const RecoveryOffer &other) {
                                    return other.folder.path == offer.folder.path;
                                });
                                post(offer);
                            }}}});
}

} // namespace pinmora
