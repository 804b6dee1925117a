#pragma once

#include <cstddef>

namespace pinmora {

class EntityDescription;
class Record;

/// The records of one entity in the order of insertion, linked through the records themselves: no
/// memory beyond them, removal in constant time.
class InsertionList {
public:
    explicit InsertionList(const EntityDescription &entity) : entity_(&entity) {}

    const EntityDescription &entity() const { return *entity_; }
    Record *first() const { return first_; }
    std::size_t size() const { return size_; }
    static Record *next(const Record &record);

    void append(Record &record);
    /// A record that is taken out remembers the one before it.
    void remove(Record &record);
    /// Puts a record back where it was. The one before it then must be in the list: records are put
    /// back in the reverse order of their removal.
    void putBack(Record &record);

private:
    const EntityDescription *entity_;
    Record *first_ = nullptr;
    Record *last_ = nullptr;
    std::size_t size_ = 0;
};

} // namespace pinmora
