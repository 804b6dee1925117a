#include "coords/axis_fields.h"

#include "platform/number_text.h"
#include "platform/translation.h"

#include <algorithm>
#include <cmath>

namespace pinmora {

namespace {

constexpr int positionDecimals = 6; // a tenth of a metre on the ground

std::optional<double> plainWhole(std::string_view text) {
    return text.find('.') == std::string_view::npos ? plainDecimal(text) : std::nullopt;
}

} // namespace

bool AxisFields::isEdited(Notation notation) {
    const std::vector<Part> parts = partsOf(notation);
    return std::any_of(parts.begin(), parts.end(),
                       [](const Part &part) { return part.field.isEdited(); });
}

bool AxisFields::hasProblem() {
    const std::vector<CoordinateField *> all = fields();
    return std::any_of(all.begin(), all.end(),
                       [](const CoordinateField *field) { return !field->problem.get().empty(); });
}

std::vector<AxisFields::Part> AxisFields::partsOf(Notation notation) {
    const int limit = kind_.limit;
    const auto degreesIn = [&](CoordinateField &field, std::string_view key) {
        return Part{field, recordKey(key), true, limit + 1,
                    translated("coords", kind_.noWholeDegrees)};
    };
    if (notation == Notation::DegreesMinutes) {
        return {degreesIn(dmDegree, "degree_min_degree_"),
                {dmMinute, recordKey("degree_min_min_"), false, 60,
                 translated("coords", "Minutes are a number from 0 to below 60, such as 22.95.")}};
    }
    return {degreesIn(dmsDegree, "degree_min_sec_degree_"),
            {dmsMinute, recordKey("degree_min_sec_min_"), true, 60,
             translated("coords", "Minutes are a whole number from 0 to 59.")},
            {dmsSecond, recordKey("degree_min_sec_sec_"), false, 60,
             translated("coords", "Seconds are a number from 0 to below 60, such as 57.5.")}};
}

std::string AxisFields::recordKey(std::string_view component) const {
    return std::string(component).append(kind_.key);
}

degrees::Number AxisFields::decimalOf(const degrees &record) const {
    return record.valueForKey(recordKey("degree_")).toNumber();
}

/// None also where the record holds what is no position: then only D can tell.
std::optional<double> AxisFields::angleOf(const degrees &record) const {
    const degrees::Number decimal = decimalOf(record);
    const std::optional<double> angle = decimal == madeOfGiven_ ? given_ : decimal;
    return angle && std::abs(*angle) <= kind_.limit ? angle : std::nullopt;
}

bool AxisFields::isNegative(const degrees &record) const {
    const double angle = angleOf(record).value_or(0);
    return angle == 0 ? (record.*kind_.negative)() : angle < 0;
}

void AxisFields::show(const degrees *record) {
    for (CoordinateField *field : fields()) {
        field->show("");
    }
    hemisphere.selectedTag.set(record && isNegative(*record) ? 1 : 0);
    if (!record) {
        return;
    }
    const std::optional<double> angle = angleOf(*record);
    if (const std::optional<double> decimal = angle ? angle : decimalOf(*record)) {
        d.show(decimalText(*decimal, positionDecimals));
    }
    if (!angle) {
        return;
    }
    const AngleParts dm = shownParts(*angle, Notation::DegreesMinutes);
    dmDegree.show(decimalText(dm[0], 0));
    dmMinute.show(fixedText(static_cast<float>(dm[1]), 3));
    const AngleParts dms = shownParts(*angle, Notation::DegreesMinutesSeconds);
    dmsDegree.show(decimalText(dms[0], 0));
    dmsMinute.show(decimalText(dms[1], 0));
    dmsSecond.show(fixedText(static_cast<float>(dms[2]), 1));
}

std::optional<TypedAngle> AxisFields::readDecimal() {
    const std::string text(d.typedText());
    if (text.empty()) {
        return TypedAngle{text, {}, false, {{recordKey("degree_"), {}}}};
    }
    const std::optional<double> number = readDegrees(d, kind_);
    if (!number) {
        return std::nullopt;
    }
    return TypedAngle{text, number, *number < 0, {{recordKey("degree_"), number}}};
}

std::optional<TypedAngle> AxisFields::readParts(Notation notation, const degrees &record) {
    const std::vector<Part> parts = partsOf(notation);
    const std::optional<double> before = angleOf(record);
    TypedAngle typed;
    typed.negative = isNegative(record);
    const std::optional<AngleParts> read =
        readEdited(parts, before ? std::optional(partsToEdit(*before, notation)) : std::nullopt,
                   typed.negative);
    if (!read) {
        return std::nullopt;
    }
    const double magnitude = degreesOf(*read);
    if (magnitude > kind_.limit) {
        for (const Part &part : parts) {
            if (part.field.isEdited()) {
                part.field.problem.set(translated("coords", kind_.tooFar));
            }
        }
        return std::nullopt;
    }
    typed.angle = typed.negative ? -magnitude : magnitude;
    typed.text = decimalText(*typed.angle, positionDecimals);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const double value = (*read)[i];
        const double held = record.valueForKey(parts[i].key).toNumber().value_or(0);
        // What is not edited stays in the record with its noise, unless rounding carried over.
        if (parts[i].field.isEdited() || std::abs(std::abs(held) - value) > 0.5) {
            const bool minus = i == 0 && typed.negative && value != 0;
            typed.values.emplace_back(parts[i].key, minus ? -value : value);
        }
    }
    return typed;
}

/// All parts of a notation: those that have been edited (without `before` all) from their fields.
/// Minutes and seconds may be empty and are 0 then; degrees must be there, or a photo would land
/// on the equator. Their sign, if there is one, decides about the hemisphere.
std::optional<AngleParts> AxisFields::readEdited(const std::vector<Part> &parts,
                                                 const std::optional<AngleParts> &before,
                                                 bool &negative) {
    AngleParts read = before.value_or(AngleParts{});
    bool fit = true;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const Part &part = parts[i];
        if (before && !part.field.isEdited()) {
            continue;
        }
        const std::string_view text = part.field.typedText();
        std::optional<double> number = part.whole ? plainWhole(text) : plainDecimal(text);
        if (i > 0 && text.empty()) {
            number = 0;
        } else if (i == 0 && number) {
            negative = text.starts_with('-') || (negative && !text.starts_with('+'));
            number = std::abs(*number);
        }
        if (number && *number >= 0 && *number < part.end) {
            read[i] = *number;
        } else {
            part.field.problem.set(part.why);
            fit = false;
        }
    }
    return fit ? std::optional(read) : std::nullopt;
}

void AxisFields::write(const TypedAngle &typed, degrees &record) {
    if ((record.*kind_.negative)() != typed.negative) {
        (record.*kind_.setNegative)(typed.negative);
    }
    for (const auto &[key, number] : typed.values) {
        record.setValue(number, key);
    }
    given_ = typed.angle;
    madeOfGiven_ = decimalOf(record);
}

void AxisFields::setNegative(bool negative, degrees &record) {
    given_ = angleOf(record);
    if (given_) {
        given_ = negative ? -std::abs(*given_) : std::abs(*given_);
    }
    (record.*kind_.setNegative)(negative);
    madeOfGiven_ = decimalOf(record);
}

} // namespace pinmora
