#include "ui/wizard/wizard_texts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace pinmora {
namespace {

QString say(const char *text) {
    return QCoreApplication::translate("Wizard", text);
}

QString number(std::size_t count) {
    return QLocale().toString(static_cast<qulonglong>(count));
}

QString amount(std::size_t count, const char *one, const char *many) {
    return number(count) + QLatin1Char(' ') + say(count == 1 ? one : many);
}

PageTexts clockTexts(const Counts &counts) {
    return counts.points == 0
               ? PageTexts{say("There is no log to set the clock by"),
                           say("Go back to load one, or choose the map and put your photos where "
                               "they were taken.")}
               : PageTexts{say("Was the camera’s clock right?"),
                           say("A photo gets the position that the log has for the moment it was "
                               "taken. If the camera’s clock was off, say here how to find by how "
                               "much.")};
}

PageTexts mapTexts(const Counts &counts) {
    return counts.points == 0
               ? PageTexts{say("Put your photos where they were taken"),
                           say("Select one photo or several, and click the map where they were "
                               "taken. Press Next when all have their place.")}
               : PageTexts{say("Put one photo where it was taken"),
                           say("Choose a photo whose place you recognise and click the map there. "
                               "Then press “Set From This Position”: the clock follows from the "
                               "log.")};
}

PageTexts endTexts(const Counts &counts, bool isApplied) {
    if (counts.photos == 0) {
        return {placedOf(counts), say("Add the photos first: the step “Photos” leads there.")};
    }
    const QString saving = say("Save Photos writes tagged copies into a folder of your choice. The "
                               "originals stay as they are.");
    if (counts.points > 0 && !isApplied) {
        return {say("Apply the log to all photos"),
                say("Every photo gets the position that the log has for its corrected time. Look "
                    "at a few on the map, then save.")};
    }
    if (counts.withPosition == counts.photos) {
        return {say("Every photo has its place"), saving};
    }
    return {placedOf(counts), saving};
}

} // namespace

PageTexts textsFor(WizardPage page, const Counts &counts, bool isApplied) {
    switch (page) {
    case WizardPage::Welcome:
        return {say("Put your photos on the map"),
                say("In a few steps they get the places where they were taken. You can go back at "
                    "any time.")};
    case WizardPage::Photos:
        return {say("Which photos?"),
                say("Add the photos of one outing, or a whole folder. They are only read, never "
                    "changed.")};
    case WizardPage::GpsData:
        return {say("Is there a GPS log?"),
                counts.points == 0
                    ? say("A log of a GPS receiver or a phone knows where you were, and when. No "
                          "log? Press Next: you can put photos on the map by hand.")
                    : say("A log of a GPS receiver or a phone knows where you were, and when. Load "
                          "all logs of these photos, then press Next.")};
    case WizardPage::OffsetSelect:
        return clockTexts(counts);
    case WizardPage::OffsetByMap:
        return mapTexts(counts);
    case WizardPage::OffsetByLatLon:
        return {say("Say where one photo was taken"),
                say("Choose a photo and type the latitude and longitude of its place. Pinmora "
                    "finds the time the log passed there, and sets the clock by it.")};
    case WizardPage::OffsetByKnown:
        return {say("How far was the clock off?"),
                say("Choose a photo and set hours, minutes and seconds: its place on the map "
                    "follows. Add where the clock was slow, subtract where it was fast.")};
    case WizardPage::MatchAll:
        return endTexts(counts, isApplied);
    }
    return {};
}

QString placedOf(const Counts &counts) {
    return counts.photos == 0 ? say("There are no photos yet")
                              : say("%1 of %2 photos have their place")
                                    .arg(number(counts.withPosition), number(counts.photos));
}

QString holdings(const Counts &counts) {
    QStringList words;
    if (counts.photos > 0) {
        words << amount(counts.photos, "photo", "photos");
    }
    if (counts.tracks > 0) {
        words << amount(counts.tracks, "track", "tracks");
    }
    return words.join(say(" and "));
}

} // namespace pinmora
