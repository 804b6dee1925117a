#pragma once

#include "outlets/observable.h"
#include "persistence/change_observer.h"
#include "platform/end_of_turn.h"

#include <cstddef>
#include <string_view>

namespace pinmora {

class Context;

/// How much the library holds.
struct Counts {
    std::size_t photos = 0;
    std::size_t withPosition = 0;
    std::size_t tracks = 0;
    std::size_t points = 0;

    friend bool operator==(const Counts &, const Counts &) = default;
};

/// Counts the library anew once a turn of the event loop when it has changed.
class LibraryCounts : private ChangeObserver {
public:
    /// The context must outlive it.
    explicit LibraryCounts(Context &context);
    ~LibraryCounts() override;
    LibraryCounts(const LibraryCounts &) = delete;
    LibraryCounts &operator=(const LibraryCounts &) = delete;

    Observable<Counts> counts;

private:
    void didChange(Record &record, std::string_view key) override;
    void didInsert(Record &) override { endOfTurn_.ask(); }
    void didDelete(Record &) override { endOfTurn_.ask(); }
    Counts count() const;

    Context &context_;
    EndOfTurn endOfTurn_;
};

} // namespace pinmora
