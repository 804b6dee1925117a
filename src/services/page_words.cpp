#include "services/page_words.h"

#include "platform/translation.h"
#include "services/escaped_text.h"

#include <QtGlobal>

#include <array>

namespace pinmora {
namespace {

constexpr std::array texts{
    //: The language of the translation as web pages name it, for dates and numbers: "de"
    QT_TRANSLATE_NOOP("services", "en-GB"),
    QT_TRANSLATE_NOOP("services", "Map"),
    //: name of the group of buttons beneath: zoom in, zoom out, fit to track
    QT_TRANSLATE_NOOP("services", "View"),
    QT_TRANSLATE_NOOP("services", "Zoom in"),
    QT_TRANSLATE_NOOP("services", "Zoom out"),
    QT_TRANSLATE_NOOP("services", "Fit to track"),
    QT_TRANSLATE_NOOP("services", "Fit to photos"),
    QT_TRANSLATE_NOOP("services", "Find a place"),
    QT_TRANSLATE_NOOP("services", "Places found"),
    QT_TRANSLATE_NOOP("services", "No place of that name is known."),
    QT_TRANSLATE_NOOP("services", "That is not clearly one position."),
    QT_TRANSLATE_NOOP("services", "That is no place on Earth."),
    QT_TRANSLATE_NOOP("services", "What was pasted is no position."),
    //: photos that lie at one place: %1 is the name of the first, %2 the number of the others
    QT_TRANSLATE_NOOP("services", "%1 and %2 more"),
    //: name of the pin on the map
    QT_TRANSLATE_NOOP("services", "Position"),
    //: name of the pin that is still to be put in its place
    QT_TRANSLATE_NOOP("services", "New position"),
    QT_TRANSLATE_NOOP("services", "Select photos first, then add the marker"),
    QT_TRANSLATE_NOOP("services", "Drag the pin or click the map to place the photo"),
    QT_TRANSLATE_NOOP("services", "Drag the pin or click the map to place the photos"),
    //: button: the selected photos are to be at this point of the track
    QT_TRANSLATE_NOOP("services", "Use This Point"),
    QT_TRANSLATE_NOOP("services", "Select photos first"),
    QT_TRANSLATE_NOOP("services", "Click the point of the track where the photo was taken."),
    QT_TRANSLATE_NOOP("services", "There is no track here. Click on the track, or press Escape."),
    QT_TRANSLATE_NOOP("services", "Online map"),
    QT_TRANSLATE_NOOP("services", "Bundled map"),
    //: the online map does not come; "Try again" follows
    QT_TRANSLATE_NOOP("services", "Offline map."),
    QT_TRANSLATE_NOOP("services", "Try again"),
    QT_TRANSLATE_NOOP("services", "© OpenStreetMap contributors"),
};

} // namespace

std::string pageWords() {
    std::string members;
    for (const char *text : texts) {
        if (const std::string words = translated("services", text); words != text) {
            members.append(members.empty() ? "" : ",")
                .append(jsonString(text) + ':' + jsonString(words));
        }
    }
    return '{' + members + '}';
}

} // namespace pinmora
