#include "gps/gps.h"
#include "platform/text_encoding.h"
#include "platform/zone_scope.h"
#include "store/track.h"

namespace pinmora {

namespace {

/// What the GPX reader shows itself on, where nobody looks.
struct Unseen {
    Window window;
    ProgressSheet progress{[this]() -> Window & { return window; }};
    ErrorSheet errors{[this]() -> Window & { return window; }};
};

LogReading readingOf(const ImportFacts &facts) {
    return facts.reading == policyOf(LogReading::Tolerant).name ? LogReading::Tolerant
                                                                : LogReading::Exact;
}

void readTextAgain(Context &context, const ImportFacts &facts, TextLogFormats formats,
                   ImportSource &source) {
    std::string bytes;
    for (std::string_view block = source.next(); !block.empty(); block = source.next()) {
        bytes += block;
    }
    const bool isFile = !facts.path.empty(); // a text that was none was text already
    const std::string text = isFile ? utf8OrLatin1(std::move(bytes)) : std::move(bytes);
    TrackWriter writer(context);
    formatOf(facts.format, formats)
        .read({.text = isFile ? withoutByteOrderMark(text) : std::string_view(text),
               .path = facts.path,
               .reading = readingOf(facts),
               .currentYear = std::chrono::year(facts.currentYear)},
              writer);
}

} // namespace

void Gps::importAgain(Context &context, const ImportFacts &facts, Record *currentTrack,
                      ImportSource &source) {
    const ZoneScope zone(facts.zone);
    if (facts.format != ImportFacts::Format::Gpx) {
        readTextAgain(context, facts, formats_, source);
        return;
    }
    Unseen unseen;
    GpxReader reader(context, unseen.progress, unseen.errors);
    reader.elements().restore(facts, dynamic_cast<track *>(currentTrack));
    reader.begin(facts.path, readingOf(facts),
                 [&source](std::string_view name) { return source.entity(name); });
    for (std::string_view block = source.next(); !block.empty() && reader.feed(block);) {
        block = source.next();
    }
    reader.finish();
    gpx_.elements().countOnFrom(reader.elements());
}

} // namespace pinmora
