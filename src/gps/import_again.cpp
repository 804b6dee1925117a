#include "gps/gps.h"
#include "platform/text_encoding.h"
#include "platform/zone_scope.h"
#include "store/track.h"

namespace pinmora {

namespace {

/// What the readers show themselves on, where nobody looks.
struct Unseen {
    Window window;
    ProgressSheet progress{[this]() -> Window & { return window; }};
    ErrorSheet errors{[this]() -> Window & { return window; }};
};

LogReading readingOf(const ImportFacts &facts) {
    return facts.reading == policyOf(LogReading::Tolerant).name ? LogReading::Tolerant
                                                                : LogReading::Exact;
}

void readNmeaAgain(Context &context, const ImportFacts &facts, ImportSource &source) {
    std::string bytes;
    for (std::string_view block = source.next(); !block.empty(); block = source.next()) {
        bytes += block;
    }
    Unseen unseen;
    NmeaReader reader(context, unseen.progress, unseen.errors);
    const std::chrono::year year(facts.currentYear);
    if (facts.path.empty()) { // a text that was no file was text already
        reader.read(bytes, {}, readingOf(facts), year);
    } else {
        const std::string text = utf8OrLatin1(std::move(bytes));
        reader.read(withoutByteOrderMark(text), facts.path, readingOf(facts), year);
    }
}

} // namespace

void Gps::importAgain(Context &context, const ImportFacts &facts, Record *currentTrack,
                      ImportSource &source) {
    const ZoneScope zone(facts.zone);
    if (facts.format == ImportFacts::Format::Nmea) {
        readNmeaAgain(context, facts, source);
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
