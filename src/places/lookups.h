#pragma once

#include "outlets/observable.h"
#include "persistence/change_observer.h"
#include "persistence/text.h"
#include "persistence/undo_observer.h"
#include "places/place_names.h"
#include "places/request_queue.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace pinmora {

class Context;
class image;

/// The photos whose names are asked for, and the steps of undo that the names will belong to.
///
/// Which names a step has asked for and never got is remembered for as long as it can be done
/// again. A step that can names only records that are there: photos of other steps, which may have
/// been destroyed, are never looked at.
class PlaceNames::Lookups : private ChangeObserver, private UndoObserver {
public:
    Lookups(Context &context, FindService findService, PlaceLimits limits,
            Observable<std::size_t> &awaited);
    ~Lookups() override;
    Lookups(const Lookups &) = delete;
    Lookups &operator=(const Lookups &) = delete;

    void lookUp(image &photo);
    void setEnabled(bool enabled);
    void serviceChanged() { queue_.serviceChanged(); }

private:
    using Names = std::array<Text, 3>;
    struct Lookup {
        RequestQueue::Number number;
        std::uint64_t step; ///< of undo, that wrote the position; 0 without undo
        Names held;         ///< those that may be written over
    };

    void didChange(Record &record, std::string_view key) override;
    void didInsert(Record &record) override;
    void didDelete(Record &record) override;
    void didUndo(const UndoStep &step) override { follow(step); }
    void didRedo(const UndoStep &step) override;
    void didChangeHistory() override;

    void ask(image &photo, std::uint64_t step, const Names &held);
    /// What was held when the step asked for the first time still counts: names that have been
    /// typed since are to stay.
    void askAgain(image &photo, std::uint64_t step);
    void cancel(image &photo);
    void follow(const UndoStep &step);
    void ended(RequestQueue::Number number, const PlaceOutcome &outcome);
    void write(image &photo, const Lookup &lookup, const PlaceAnswer &answer);
    void countAwaited() { awaited_.set(lookups_.size()); }

    Context &context_;
    Observable<std::size_t> &awaited_;
    bool enabled_ = true;
    std::unordered_map<image *, Lookup> lookups_;
    std::unordered_map<RequestQueue::Number, image *> photos_;
    /// By step: whose names it has asked for and not got, and those held then.
    std::unordered_map<std::uint64_t, std::unordered_map<image *, Names>> unanswered_;
    /// By serial: photos that were deleted while their names were asked for, and for which step.
    std::unordered_map<std::uint32_t, std::uint64_t> deleted_;
    std::vector<image *> broughtBack_; ///< by what is being undone or done again
    RequestQueue queue_;
};

} // namespace pinmora
