#pragma once

#include "persistence/entity_description.h"
#include "persistence/record.h"

#include <initializer_list>
#include <type_traits>

/// Makes the rows of an entity's table from the members of its record class, so that an attribute
/// is told once: attribute<&track_part::lat, &track_part::setLat, &track_part::lat_>("lat").
namespace pinmora {

namespace detail {

template <class>
struct Member;
template <class R, class T>
struct Member<T R::*> {
    using Class = R;
    using Type = T;
};
template <class R, class Result>
struct Member<Result (R::*)() const> {
    using Class = R;
    using Type = std::remove_cvref_t<Result>;
};
template <class R, class Argument>
struct Member<void (R::*)(Argument)> {
    using Class = R;
    using Type = std::remove_cvref_t<Argument>;
};

template <class T>
T fromValue(const Value &value) {
    if constexpr (std::is_same_v<T, Value>) {
        return value;
    } else if constexpr (std::is_same_v<T, Text>) {
        return value.toText();
    } else if constexpr (std::is_same_v<T, std::optional<std::int32_t>>) {
        return value.toInteger();
    } else if constexpr (std::is_same_v<T, std::optional<bool>>) {
        return value.toBool();
    } else if constexpr (std::is_same_v<T, std::optional<Date>>) {
        return value.toDate();
    } else if constexpr (std::is_same_v<T, std::optional<Bytes>>) {
        return value.toBytes();
    } else if constexpr (std::is_same_v<T, std::optional<float>>) {
        const std::optional<double> number = value.toNumber();
        return number ? T(static_cast<float>(*number)) : T();
    } else if constexpr (std::is_same_v<T, std::optional<double>>) {
        return value.toNumber();
    } else {
        static_assert(std::is_pointer_v<T>, "no such attribute type");
        return static_cast<T>(value.toRecord());
    }
}

template <class T>
constexpr ValueType valueTypeOf() {
    if constexpr (std::is_same_v<T, std::optional<std::int32_t>>) {
        return ValueType::Integer;
    } else if constexpr (std::is_same_v<T, std::optional<float>>) {
        return ValueType::Float;
    } else if constexpr (std::is_same_v<T, std::optional<double>>) {
        return ValueType::Number;
    } else if constexpr (std::is_same_v<T, std::optional<bool>>) {
        return ValueType::Bool;
    } else if constexpr (std::is_same_v<T, std::optional<Date>>) {
        return ValueType::DateTime;
    } else if constexpr (std::is_same_v<T, std::optional<Bytes>>) {
        return ValueType::Data;
    } else {
        static_assert(std::is_same_v<T, Text>, "no such attribute type");
        return ValueType::String;
    }
}

template <auto Getter>
Value get(const Record &record) {
    using R = typename Member<decltype(Getter)>::Class;
    return Value((static_cast<const R &>(record).*Getter)());
}

template <auto Setter>
void set(Record &record, Value value) {
    using Setting = Member<decltype(Setter)>;
    (static_cast<typename Setting::Class &>(record).*
     Setter)(fromValue<typename Setting::Type>(value));
}

template <auto Field>
Value rawGet(const Record &record) {
    return Value(static_cast<const typename Member<decltype(Field)>::Class &>(record).*Field);
}

template <auto Field>
void rawSet(Record &record, Value value) {
    using F = Member<decltype(Field)>;
    static_cast<typename F::Class &>(record).*Field = fromValue<typename F::Type>(value);
}

} // namespace detail

/// A stored attribute.
template <auto Getter, auto Setter, auto Field>
Property attribute(std::string_view name) {
    return {.name = name,
            .type = detail::valueTypeOf<typename detail::Member<decltype(Field)>::Type>(),
            .get = detail::get<Getter>,
            .set = detail::set<Setter>,
            .primitive = detail::rawGet<Field>,
            .setPrimitive = detail::rawSet<Field>};
}

/// A relationship to one record. RawSetter stores the link without notices and keeps the set at the
/// other end, if there is one, in step.
template <auto Getter, auto Setter, auto Field, auto RawSetter>
Property toOne(std::string_view name, std::string_view inverse = {}) {
    return {.name = name,
            .kind = Property::Kind::ToOne,
            .inverse = inverse,
            .target =
                std::remove_pointer_t<typename detail::Member<decltype(Field)>::Type>::description,
            .get = detail::get<Getter>,
            .set = detail::set<Setter>,
            .primitive = detail::rawGet<Field>,
            .setPrimitive = detail::set<RawSetter>};
}

/// A relationship to a set of records, changed through its members.
template <auto Getter>
Property toMany(std::string_view name, std::string_view inverse, DeleteRule deleteRule) {
    return {.name = name,
            .kind = Property::Kind::ToMany,
            .inverse = inverse,
            .deleteRule = deleteRule,
            .get = detail::get<Getter>,
            .primitive = detail::get<Getter>};
}

/// A value worked out from others, whose observers are told when one of those changes.
template <auto Getter>
Property derived(std::string_view name, std::initializer_list<std::string_view> dependsOn = {}) {
    return {.name = name,
            .kind = Property::Kind::Derived,
            .get = detail::get<Getter>,
            .dependsOn = dependsOn};
}

/// A key that can only be written, stored by its setter under another.
template <auto Setter>
Property writeOnly(std::string_view name) {
    return {.name = name, .kind = Property::Kind::WriteOnly, .set = detail::set<Setter>};
}

} // namespace pinmora
