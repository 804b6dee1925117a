#include "ui/wizard/wizard_texts.h"

#include "platform/translation.h"

#include <QCoreApplication>
#include <QLocale>

namespace pinmora {
namespace {

/// What the texts below belong to, for those who translate them.
class Say {
    Q_DECLARE_TR_FUNCTIONS(Wizard)
};

QString number(std::size_t count) {
    return QLocale().toString(static_cast<qulonglong>(count));
}

PageTexts clockTexts(const Counts &counts) {
    return counts.points == 0
               ? PageTexts{Say::tr("There is no log to set the clock by"),
                           Say::tr(
                               "Go back to load one, or choose the map and put your photos where "
                               "they were taken.")}
               : PageTexts{
                     Say::tr("Was the camera’s clock right?"),
                     Say::tr("A photo gets the position that the log has for the moment it was "
                             "taken. If the camera’s clock was off, say here how to find by how "
                             "much.")};
}

PageTexts mapTexts(const Counts &counts) {
    return counts.points == 0
               ? PageTexts{Say::tr("Put your photos where they were taken"),
                           Say::tr("Select one photo or several, and click the map where they were "
                                   "taken. Press Next when all have their place.")}
               : PageTexts{
                     Say::tr("Put one photo where it was taken"),
                     Say::tr("Choose a photo whose place you recognise and click the map there. "
                             "Then press “Set From This Position”: the clock follows from the "
                             "log.")};
}

PageTexts endTexts(const Counts &counts, bool isApplied) {
    if (counts.photos == 0) {
        return {placedOf(counts), Say::tr("Add the photos first: the step “Photos” leads there.")};
    }
    const QString saving =
        Say::tr("Save Photos writes tagged copies into a folder of your choice. The "
                "originals stay as they are.");
    if (counts.points > 0 && !isApplied) {
        return {
            Say::tr("Apply the log to all photos"),
            Say::tr("Every photo gets the position that the log has for its corrected time. Look "
                    "at a few on the map, then save.")};
    }
    if (counts.withPosition == counts.photos) {
        return {Say::tr("Every photo has its place"), saving};
    }
    return {placedOf(counts), saving};
}

} // namespace

PageTexts textsFor(WizardPage page, const Counts &counts, bool isApplied) {
    switch (page) {
    case WizardPage::Welcome:
        return {
            Say::tr("Put your photos on the map"),
            Say::tr("In a few steps they get the places where they were taken. You can go back at "
                    "any time.")};
    case WizardPage::Photos:
        return {
            Say::tr("Which photos?"),
            Say::tr("Add the photos of one outing, or a whole folder. They are only read, never "
                    "changed.")};
    case WizardPage::GpsData:
        return {
            Say::tr("Is there a GPS log?"),
            counts.points == 0
                ? Say::tr("A log of a GPS receiver or a phone knows where you were, and when. No "
                          "log? Press Next: you can put photos on the map by hand.")
                : Say::tr("A log of a GPS receiver or a phone knows where you were, and when. Load "
                          "all logs of these photos, then press Next.")};
    case WizardPage::OffsetSelect:
        return clockTexts(counts);
    case WizardPage::OffsetByMap:
        return mapTexts(counts);
    case WizardPage::OffsetByLatLon:
        return {Say::tr("Say where one photo was taken"),
                Say::tr("Choose a photo and type the latitude and longitude of its place. Pinmora "
                        "finds the time the log passed there, and sets the clock by it.")};
    case WizardPage::OffsetByKnown:
        return {Say::tr("How far was the clock off?"),
                Say::tr("Choose a photo and set hours, minutes and seconds: its place on the map "
                        "follows. Add where the clock was slow, subtract where it was fast.")};
    case WizardPage::MatchAll:
        return endTexts(counts, isApplied);
    }
    return {};
}

QString placedOf(const Counts &counts) {
    return counts.photos == 0
               ? Say::tr("There are no photos yet")
               : QString::fromStdString(translated("ui", "%1 of %Ln photos have their place",
                                                   "%1 of %Ln photo has its place", counts.photos))
                     .arg(number(counts.withPosition));
}

QString holdings(const Counts &counts) {
    const std::string photos = translated("ui", "%Ln photos", "%Ln photo", counts.photos);
    const std::string tracks = translated("ui", "%Ln tracks", "%Ln track", counts.tracks);
    if (counts.photos + counts.tracks == 0) {
        return {};
    }
    //: what the library holds, "8 photos" and "2 tracks"
    const std::string both = filled(translated("ui", "%1 and %2"), {photos, tracks});
    const std::string held = counts.tracks == 0 ? photos : counts.photos == 0 ? tracks : both;
    const std::string sentence =
        translated("ui", "%1 are here already. Next goes on with them.",
                   "%1 is here already. Next goes on with it.", counts.photos + counts.tracks);
    return QString::fromStdString(filled(sentence, {held}));
}

} // namespace pinmora
