#pragma once

#include "outlets/array_controller.h"
#include "persistence/change_observer.h"
#include "persistence/context.h"

namespace pinmora {

/// All records of one entity in a context, in the order of their insertion unless sorted. Removing
/// one deletes it.
template <class R>
class EntityArray : public ArrayController<R>, private ChangeObserver {
public:
    /// The context must outlive it.
    explicit EntityArray(Context &context)
        : ArrayController<R>({.fetch = [&context] { return context.fetch<R>(); },
                              .remove = [&context](R &record) { context.deleteObject(record); },
                              .count = [&context] { return context.count<R>(); }}),
          context_(context) {
        context_.addObserver(*this, {.entity = &R::description(), .values = false});
    }
    EntityArray(const EntityArray &) = delete;
    EntityArray &operator=(const EntityArray &) = delete;
    ~EntityArray() override { context_.removeObserver(*this); }

private:
    void didInsert(Record &) override { this->contentChanged(); }
    void didDelete(Record &record) override { this->contentLost(static_cast<R *>(&record)); }

    Context &context_;
};

} // namespace pinmora
