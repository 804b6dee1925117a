#include "recovery/journal_records.h"

#include "recovery/field_text.h"

#include <type_traits>

namespace pinmora {

namespace {

void write(FieldWriter &fields, std::int32_t number) {
    fields.number(static_cast<std::uint32_t>(number));
}

std::int32_t signedNumber(FieldReader &fields) {
    return static_cast<std::int32_t>(fields.number());
}

template <class T>
std::optional<std::remove_cvref_t<T>> whole(const FieldReader &fields, T &&read) {
    return fields.isComplete() ? std::optional(std::forward<T>(read)) : std::nullopt;
}

} // namespace

std::string payloadOf(const JournalStart &start) {
    std::string payload;
    FieldWriter fields(payload);
    fields.text(start.state);
    fields.number(start.photos);
    fields.number(start.points);
    fields.flag(start.hasContent);
    return payload;
}

std::optional<JournalStart> startFrom(std::string_view payload) {
    FieldReader fields(payload);
    JournalStart start;
    start.state = fields.text();
    start.photos = fields.number();
    start.points = fields.number();
    start.hasContent = fields.flag();
    return whole(fields, std::move(start));
}

std::string payloadOf(const ImportFacts &facts) {
    std::string payload;
    FieldWriter fields(payload);
    fields.number(static_cast<std::uint32_t>(facts.format));
    fields.text(facts.path);
    fields.text(facts.reading);
    fields.text(facts.zone);
    write(fields, facts.currentYear);
    fields.flag(facts.gpxFile);
    fields.flag(facts.activeLog);
    write(fields, facts.trackCount);
    write(fields, facts.track_partCount);
    fields.number(facts.currentTrack);
    for (const Text *text : {&facts.lat, &facts.lon, &facts.ele, &facts.time}) {
        fields.optionalText(*text);
    }
    fields.flag(facts.date.has_value());
    fields.wideNumber(
        static_cast<std::uint64_t>(facts.date.value_or(Date()).time_since_epoch().count()));
    return payload;
}

std::optional<ImportFacts> factsFrom(std::string_view payload) {
    FieldReader fields(payload);
    ImportFacts facts;
    facts.format = static_cast<ImportFacts::Format>(fields.number());
    facts.path = fields.text();
    facts.reading = fields.text();
    facts.zone = fields.text();
    facts.currentYear = signedNumber(fields);
    facts.gpxFile = fields.flag();
    facts.activeLog = fields.flag();
    facts.trackCount = signedNumber(fields);
    facts.track_partCount = signedNumber(fields);
    facts.currentTrack = fields.number();
    for (Text *text : {&facts.lat, &facts.lon, &facts.ele, &facts.time}) {
        *text = fields.optionalText();
    }
    const bool hasDate = fields.flag();
    const Date date{Date::duration(static_cast<std::int64_t>(fields.wideNumber()))};
    facts.date = hasDate ? std::optional(date) : std::nullopt;
    return whole(fields, std::move(facts));
}

std::string payloadOf(const ImportResult &result) {
    std::string payload;
    FieldWriter fields(payload);
    fields.number(result.firstSerial);
    fields.number(result.records);
    fields.number(result.points);
    return payload;
}

std::optional<ImportResult> resultFrom(std::string_view payload) {
    FieldReader fields(payload);
    ImportResult result;
    result.firstSerial = fields.number();
    result.records = fields.number();
    result.points = fields.number();
    return whole(fields, result);
}

std::string entityPayload(std::string_view name, const std::optional<std::string> &content) {
    std::string payload;
    FieldWriter fields(payload);
    fields.text(name);
    fields.optionalText(content);
    return payload;
}

std::optional<ImportedEntity> entityFrom(std::string_view payload) {
    FieldReader fields(payload);
    ImportedEntity entity;
    entity.name = fields.text();
    if (const Text content = fields.optionalText(); content.hasValue()) {
        entity.content = content.string();
    }
    return whole(fields, std::move(entity));
}

} // namespace pinmora
