#pragma once

#include "persistence/change_observer.h"
#include "persistence/context.h"
#include "persistence/entity_description.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <utility>

namespace pinmora {

/// The base of all record classes: access by key and the notices around it. A record belongs to
/// one context, which owns it until it is deleted.
///
/// Invariant: a record's fields change only between a will-change and a did-change notice, except
/// by setPrimitiveValue(), whose caller sends them where observers must know.
class Record {
public:
    Record() = default;
    virtual ~Record() = default;
    Record(const Record &) = delete;
    Record &operator=(const Record &) = delete;

    virtual const EntityDescription &entity() const = 0;
    Context *context() const { return context_; }
    /// The record's number in its context: 1 for the first, higher than all before it, its own also
    /// in the file and while it is outside the context.
    std::uint32_t serial() const { return serial_; }

    /// Reads by key, through the class's own getter. Throws UnknownKeyError.
    Value valueForKey(std::string_view key) const;
    /// Writes by key, through the class's own setter. Throws UnknownKeyError.
    void setValue(Value value, std::string_view key);
    /// Raw access: no notices, no side effects. Throws UnknownKeyError.
    Value primitiveValueForKey(std::string_view key) const;
    void setPrimitiveValue(Value value, std::string_view key);
    /// Whether a value may be written under a key: every value may, if the key can be written.
    bool validateValue(const Value &value, std::string_view key) const;

    void willAccessValueForKey(std::string_view key) const {
        if (context_) {
            context_->willAccess(*this, key);
        }
    }
    void didAccessValueForKey(std::string_view key) const {
        if (context_) {
            context_->didAccess(*this, key);
        }
    }
    void willChangeValueForKey(std::string_view key) {
        if (context_) {
            context_->willChange(*this, key);
        }
    }
    void didChangeValueForKey(std::string_view key) {
        if (context_) {
            context_->didChange(*this, key);
        }
    }
    void willChangeValueForKey(std::string_view key, SetMutation mutation,
                               std::span<Record *const> objects) {
        if (context_) {
            context_->willMutateSet(*this, key, mutation, objects);
        }
    }
    void didChangeValueForKey(std::string_view key, SetMutation mutation,
                              std::span<Record *const> objects) {
        if (context_) {
            context_->didMutateSet(*this, key, mutation, objects);
        }
    }

    /// What else an edit changes about a record in memory: it is taken back together with the edit.
    virtual std::uint8_t changeMark() const { return 0; }
    virtual void setChangeMark(std::uint8_t /*mark*/) {}

    bool isInserted() const { return !outside_ && state_ == RecordState::Inserted; }
    bool isUpdated() const { return !outside_ && state_ == RecordState::Updated; }
    bool isDeleted() const { return outside_; }

protected:
    /// What every plain getter does: a raw read between access notices.
    template <class Field>
    const Field &read(std::string_view key, const Field &field) const {
        willAccessValueForKey(key);
        didAccessValueForKey(key);
        return field;
    }
    /// What every plain setter does: a raw write between change notices.
    template <class Field, class NewValue>
    void change(std::string_view key, Field &field, NewValue &&value) {
        willChangeValueForKey(key);
        field = std::forward<NewValue>(value);
        didChangeValueForKey(key);
    }

private:
    friend class Context;
    friend class InsertionList;
    friend class UndoManager;

    Context *context_ = nullptr;
    Record *previous_ = nullptr; ///< neighbours in the order of insertion
    Record *next_ = nullptr;
    std::uint32_t serial_ = 0;
    RecordState state_ = RecordState::Clean; ///< outside the context: what it was inside
    bool outside_ = false;                   ///< taken out of the context
    bool doomed_ = false;                    ///< part of the deletion under way
    bool fresh_ = false;   ///< came in within this part of a step: its values need no registering
    bool unheard_ = false; ///< fresh, and nobody wants to hear of its values
};

} // namespace pinmora
