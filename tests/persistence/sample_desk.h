#pragma once

#include "persistence/context.h"
#include "persistence/property.h"
#include "persistence/record_reader.h"
#include "platform/xml_parser.h"

#include <QTest>

#include <optional>
#include <string>
#include <vector>

namespace pinmora::test {

/// A record with a key of each type.
class Sample : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    Value got() const { return {}; }
    void set(Value) { QFAIL("a setter was called"); }
    Sample *other() const { return other_; }
    void setOther(Sample *) { QFAIL("a setter was called"); }
    void link(Sample *other) { other_ = other; }

    std::optional<std::int32_t> whole;
    std::optional<float> decimal;
    std::optional<double> number;
    std::optional<bool> flag;
    std::optional<Date> moment;
    Text text;
    Text usual = "usual";
    std::optional<Bytes> bytes;
    Sample *other_ = nullptr;
};

/// An attribute whose getter and setter must not be used.
template <auto Field>
Property stored(std::string_view name) {
    return attribute<&Sample::got, &Sample::set, Field>(name);
}

inline const EntityDescription &Sample::description() {
    using S = Sample;
    static const EntityDescription entity(
        "sample", []() -> std::unique_ptr<Record> { return std::make_unique<S>(); },
        {stored<&S::whole>("whole"), stored<&S::decimal>("decimal"), stored<&S::number>("number"),
         stored<&S::flag>("flag"), stored<&S::moment>("moment"), stored<&S::text>("text"),
         stored<&S::usual>("usual"), stored<&S::bytes>("bytes"),
         toOne<&S::other, &S::setOther, &S::other_, &S::link>("other")});
    return entity;
}

using Extent = RecordReader::Extent;

/// Reads the elements of a text as an XML parser finds them, into new records of a context.
class Desk : private XmlEvents {
public:
    Context context;
    RecordReader reader;
    std::vector<OpenLink> open;
    std::string error;
    std::string seen; ///< "3: text number* other=7", a line an element; * is no value

    explicit Desk(const Model &model, Extent extent = Extent::Whole)
        : context(model), reader(model), extent_(extent) {}

    /// Whether it is XML, and no element was refused.
    bool read(const std::string &elements) {
        XmlParser parser(*this);
        return parser.parse("<all>" + elements + "</all>", true) && error.empty();
    }
    Sample &last() { return *context.fetch<Sample>().back(); }

private:
    void didStartElement(std::string_view name, const char *const *attributes) override {
        if (name == "all" || !error.empty()) {
            return;
        }
        if (!reader.read(name, attributes, extent_)) {
            error = reader.error();
            return;
        }
        seen += std::to_string(reader.serial()) + ":";
        for (const auto &[property, value, target] : reader.values()) {
            seen += " " + std::string(property->name);
            seen += target != 0 ? "=" + std::to_string(target) : value.hasValue() ? "" : "*";
        }
        seen += "\n";
        if (extent_ == Extent::Whole) {
            reader.applyTo(
                context.insertStored(reader.entity(), reader.serial()),
                [this](std::uint32_t serial) { return find(serial); }, open);
        }
    }
    void foundCharacters(std::string_view) override {}
    void didEndElement(std::string_view) override {}

    Record *find(std::uint32_t serial) {
        for (Sample *sample : context.records<Sample>()) {
            if (sample->serial() == serial) {
                return sample;
            }
        }
        return nullptr;
    }

    Extent extent_;
};

} // namespace pinmora::test
