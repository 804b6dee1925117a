#pragma once

#include "persistence/value.h"

#include <span>
#include <string_view>

namespace pinmora {

class EntityDescription;

/// How a to-many set is about to change.
enum class SetMutation { Union = 1, Minus = 2 };

/// What an observer wants to hear of. To be told of values that nobody looks at costs an import of
/// a million points more than reading them.
struct Interest {
    const EntityDescription *entity = nullptr; ///< whose records; null: all
    bool values = true;                        ///< also of their values, not only come and go
    bool access = false;                       ///< also of every reading of a value
};

/// Hears of every change in a context. The calls come in pairs around the change, so that a
/// listener can look at the value before and after; keys that depend on the changed one follow
/// inside the same pair. Undo, recovery and the windows' models stand on this.
class ChangeObserver {
public:
    virtual ~ChangeObserver() = default;

    virtual void willAccess(const Record &, std::string_view /*key*/) {}
    virtual void didAccess(const Record &, std::string_view /*key*/) {}
    virtual void willChange(Record &, std::string_view /*key*/) {}
    virtual void didChange(Record &, std::string_view /*key*/) {}
    virtual void willMutateSet(Record &, std::string_view /*key*/, SetMutation,
                               std::span<Record *const> /*objects*/) {}
    virtual void didMutateSet(Record &, std::string_view /*key*/, SetMutation,
                              std::span<Record *const> /*objects*/) {}
    virtual void didInsert(Record &) {}
    /// The record still has its values and its place.
    virtual void willDelete(Record &) {}
    /// The record is out of the context and kept only until the changes are committed.
    virtual void didDelete(Record &) {}
};

} // namespace pinmora
