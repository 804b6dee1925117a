#pragma once

#include "persistence/value.h"

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

class EntityDescription;
class Record;

/// How an attribute's value is stored.
enum class ValueType { Integer, Float, Number, Bool, DateTime, String, Data };

/// What becomes of the records at the other end when a record is deleted.
enum class DeleteRule { Nullify, Cascade };

/// One key of an entity: its name, what it holds, and the ways to it. `get` and `set` go through
/// the record class's own getter and setter, `primitive` and `setPrimitive` straight to the field;
/// a way that a key does not have is null.
struct Property {
    enum class Kind {
        Attribute, ///< a stored value
        ToOne,     ///< one other record
        ToMany,    ///< an unordered set of other records
        Derived,   ///< worked out from others, read only
        WriteOnly, ///< a setter that stores under another key
    };

    std::string_view name;
    Kind kind = Kind::Attribute;
    ValueType type = ValueType::String;             ///< attributes only
    std::string_view inverse = {};                  ///< relationships: the key at the other end
    DeleteRule deleteRule = DeleteRule::Nullify;    ///< relationships
    const EntityDescription &(*target)() = nullptr; ///< to-one: the entity at the other end
    Value (*get)(const Record &) = nullptr;
    void (*set)(Record &, Value) = nullptr;
    Value (*primitive)(const Record &) = nullptr;
    void (*setPrimitive)(Record &, Value) = nullptr;
    std::vector<std::string_view> dependsOn = {}; ///< derived: the keys it is worked out from

    bool isRelationship() const { return kind == Kind::ToOne || kind == Kind::ToMany; }
};

/// Thrown when a record is asked for a key that its entity does not have, or cannot be read or
/// written by: a fault of the program, never of its input.
class UnknownKeyError : public std::logic_error {
public:
    UnknownKeyError(std::string_view entity, std::string_view key)
        : std::logic_error("no such key: " + std::string(entity) + "." + std::string(key)) {}
};

/// Where an entity's records live: in the library, with everything that keeps a person's work (the
/// file, undo, recovery), or in memory only, for what the program shows at the moment.
enum class Lifetime { Library, Memory };

/// The one table that says what a record class holds. Access by key, change notices and the file
/// format all come from it.
class EntityDescription {
public:
    using Factory = std::unique_ptr<Record> (*)();

    EntityDescription(std::string_view name, Factory factory, std::vector<Property> properties,
                      Lifetime lifetime = Lifetime::Library);

    std::string_view name() const { return name_; }
    bool isStored() const { return lifetime_ == Lifetime::Library; }
    std::unique_ptr<Record> make() const;
    const std::vector<Property> &properties() const { return properties_; }

    /// Null when there is no such key.
    const Property *find(std::string_view key) const;
    /// Throws UnknownKeyError.
    const Property &property(std::string_view key) const;

    /// The derived keys that change when `key` does.
    std::vector<std::string_view> dependentsOf(std::string_view key) const;

private:
    std::string_view name_;
    Factory factory_;
    std::vector<Property> properties_;
    Lifetime lifetime_;
};

/// The entities that a context can hold.
class Model {
public:
    explicit Model(std::vector<const EntityDescription *> entities)
        : entities_(std::move(entities)) {}
    virtual ~Model() = default;

    const std::vector<const EntityDescription *> &entities() const { return entities_; }
    /// Throws UnknownKeyError.
    const EntityDescription &entity(std::string_view name) const;

private:
    std::vector<const EntityDescription *> entities_;
};

} // namespace pinmora
