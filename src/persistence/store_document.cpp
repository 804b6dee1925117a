#include "persistence/store_document.h"

#include "persistence/record.h"
#include "persistence/value_text.h"
#include "persistence/xml_text.h"
#include "platform/translation.h"

#include <algorithm>
#include <map>

namespace pinmora {

StoreDocument::StoreDocument(Context &context)
    : context_(context), parser_(*this), reader_(context.model()),
      find_([this](std::uint32_t serial) { return find(serial); }) {
    for (const EntityDescription *entity : context.model().entities()) {
        for (const Property &property : entity->properties()) {
            if (property.kind == Property::Kind::ToOne) {
                targetEntities_.push_back(&property.target());
            }
        }
    }
}

bool StoreDocument::parse(std::string_view bytes, bool isLast) {
    if (error_.empty() && !parser_.parse(bytes, isLast) && error_.empty()) {
        fail(parser_.fault(), parser_.line());
    }
    if (error_.empty() && isLast) {
        finish();
    }
    return error_.empty();
}

void StoreDocument::didStartElement(std::string_view name, const char *const *attributes) {
    ++elements_;
    if (!error_.empty()) {
        return;
    }
    switch (depth_++) {
    case 0:
        readRoot(name, attributes);
        break;
    case 1:
        readRecord(name, attributes);
        break;
    default:
        fail(translated("persistence", "there is a record within a record"), parser_.line());
    }
}

void StoreDocument::didEndElement(std::string_view) {
    --depth_;
}

void StoreDocument::foundCharacters(std::string_view text) {
    if (text.find_first_not_of(" \t\r\n") != std::string_view::npos && error_.empty()) {
        fail(translated("persistence", "there is text between the records"), parser_.line());
    }
}

void StoreDocument::readRoot(std::string_view name, const char *const *attributes) {
    if (name != rootName) {
        return fail(filled(translated("persistence", "this is no library but %1"), {quoted(name)}),
                    parser_.line());
    }
    std::map<std::string_view, std::string_view> texts;
    for (; *attributes; attributes += 2) {
        texts[attributes[0]] = attributes[1];
    }
    if (serialFromText(texts["version"]) != version) {
        return fail(
            filled(translated("persistence",
                              "the library has the format version %1, this program reads %2"),
                   {quoted(texts["version"]), std::to_string(version)}),
            parser_.line());
    }
    state_ = texts["state"];
    const auto next = serialFromText(texts["next"]);
    const auto records = serialFromText(texts["records"]);
    if (state_.empty() || !next || !records || texts.size() != 4) {
        return fail(translated("persistence",
                               "a library says its version, state, next id and number of records"),
                    parser_.line());
    }
    next_ = *next;
    expected_ = *records;
}

void StoreDocument::readRecord(std::string_view name, const char *const *attributes) {
    if (!reader_.read(name, attributes, RecordReader::Extent::Whole)) {
        return fail(reader_.error(), parser_.line());
    }
    const std::uint32_t serial = reader_.serial();
    if (serial <= lastSerial_ || serial >= next_) {
        return fail(
            filled(translated("persistence", "the id %1 comes after %2 and before %3"),
                   {std::to_string(serial), std::to_string(lastSerial_), std::to_string(next_)}),
            parser_.line());
    }
    lastSerial_ = serial;
    ++records_;
    Record &record = context_.insertStored(reader_.entity(), serial);
    reader_.applyTo(record, find_, open_);
    for (; !open_.empty(); open_.pop_back()) {
        waiting_.push_back({open_.back(), parser_.line()});
    }
    if (std::find(targetEntities_.begin(), targetEntities_.end(), &reader_.entity()) !=
        targetEntities_.end()) {
        targets_.emplace(serial, &record);
    }
}

Record *StoreDocument::find(std::uint32_t serial) {
    if (!lastFound_ || lastFound_->serial() != serial) {
        const auto found = targets_.find(serial);
        if (found == targets_.end()) {
            return nullptr;
        }
        lastFound_ = found->second;
    }
    return lastFound_;
}

void StoreDocument::finish() {
    for (const auto &[link, line] : waiting_) {
        if (!makeLink(*link.record, *link.property, find(link.target))) {
            return fail(
                filled(translated("persistence", "%1.%2 leads to %3, which is no such record"),
                       {link.record->entity().name(), link.property->name,
                        std::to_string(link.target)}),
                line);
        }
    }
    if (records_ != expected_) {
        return fail(filled(translated("persistence", "there are %1 records, there should be %2"),
                           {std::to_string(records_), std::to_string(expected_)}),
                    parser_.line());
    }
    context_.setNextSerial(next_);
}

void StoreDocument::fail(std::string error, std::size_t line) {
    error_ = std::move(error);
    line_ = line;
    parser_.stop();
}

} // namespace pinmora
