#include "persistence/insertion_list.h"

#include "persistence/record.h"

namespace pinmora {

Record *InsertionList::next(const Record &record) {
    return record.next_;
}

void InsertionList::append(Record &record) {
    record.previous_ = last_;
    record.next_ = nullptr;
    (last_ ? last_->next_ : first_) = &record;
    last_ = &record;
    ++size_;
}

void InsertionList::remove(Record &record) {
    (record.previous_ ? record.previous_->next_ : first_) = record.next_;
    (record.next_ ? record.next_->previous_ : last_) = record.previous_;
    record.next_ = nullptr;
    --size_;
}

void InsertionList::putBack(Record &record) {
    Record *&link = record.previous_ ? record.previous_->next_ : first_;
    record.next_ = link;
    link = &record;
    (record.next_ ? record.next_->previous_ : last_) = &record;
    ++size_;
}

} // namespace pinmora
