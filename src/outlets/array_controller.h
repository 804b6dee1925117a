#pragma once

#include "outlets/signal.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <unordered_set>
#include <utility>
#include <vector>

namespace pinmora {

/// The objects that a table shows: which of a content, in what order, and which are selected.
///
/// The content is fetched, filtered and sorted only when somebody looks, so that it may change any
/// number of times in between for next to nothing. Objects are known by their addresses; one that
/// has left the content is not touched any more. Handlers of the signals may be called in the
/// middle of a change of the content; they look when it is over.
template <class T>
class ArrayController {
public:
    using Objects = std::vector<T *>;
    using Filter = std::function<bool(const T &)>;
    using Less = std::function<bool(const T &, const T &)>;
    /// Where the objects are. `count` may be left out; it spares fetching them to be counted.
    struct Content {
        std::function<Objects()> fetch;
        std::function<void(T &)> remove;
        std::function<std::size_t()> count;
    };

    explicit ArrayController(Content content) : content_(std::move(content)) {}
    ArrayController(const ArrayController &) = delete;
    ArrayController &operator=(const ArrayController &) = delete;
    ~ArrayController() = default;

    /// Sent when the arrangement has become another one, once until somebody looks at it.
    Signal<> arrangementChanged;
    /// Sent when another selection has been made, and when it has lost an object (the latter once
    /// until somebody looks at it).
    Signal<> selectionChanged;

    void contentChanged() {
        arrangedStale_ = true;
        selectedStale_ = true;
        if (!std::exchange(changeTold_, true)) {
            arrangementChanged.emit();
        }
    }
    /// contentChanged() by an object that has left, which the selection forgets at once: another
    /// may come to stand at its address.
    void contentLost(T *object) {
        const bool wasSelected = chosen_.erase(object) > 0;
        contentChanged();
        if (wasSelected && !std::exchange(lossTold_, true)) {
            selectionChanged.emit();
        }
    }
    /// An empty filter lets all objects pass.
    void setFilter(Filter filter) {
        filter_ = std::move(filter);
        contentChanged();
    }
    /// Objects that are not less than each other keep the order of the content, as all do without
    /// one.
    void setSort(Less less) {
        less_ = std::move(less);
        contentChanged();
    }

    const Objects &arrangedObjects() const {
        changeTold_ = false;
        if (std::exchange(arrangedStale_, false)) {
            arranged_ = content_.fetch();
            if (filter_) {
                std::erase_if(arranged_, [this](const T *object) { return !filter_(*object); });
            }
            if (less_) {
                std::stable_sort(arranged_.begin(), arranged_.end(),
                                 [this](const T *a, const T *b) { return less_(*a, *b); });
            }
        }
        return arranged_;
    }
    std::size_t count() const {
        changeTold_ = false;
        return arrangedStale_ && !filter_ && content_.count ? content_.count()
                                                            : arrangedObjects().size();
    }

    /// In arranged order.
    const Objects &selectedObjects() const {
        if (std::exchange(selectedStale_, false)) {
            gatherSelected();
        }
        lossTold_ = false;
        return selected_;
    }
    /// Null when none is selected.
    T *firstSelectedObject() const {
        return selectedObjects().empty() ? nullptr : selectedObjects().front();
    }
    /// Objects that are not arranged are left out.
    void setSelectedObjects(const Objects &objects) {
        std::unordered_set<T *> chosen(objects.begin(), objects.end());
        if (chosen != chosen_) {
            chosen_ = std::move(chosen);
            selectedStale_ = true;
            selectionChanged.emit();
        }
    }
    void select(T *object) { setSelectedObjects({object}); }

    /// Removes the selected objects from the content.
    void remove() { removeObjects(Objects(selectedObjects())); }
    /// The selection is told of its loss once, after the last has gone.
    void removeObjects(const Objects &objects) {
        const std::size_t before = chosen_.size();
        for (T *object : objects) {
            chosen_.erase(object);
        }
        selectedStale_ = true;
        for (T *object : objects) {
            content_.remove(*object);
        }
        contentChanged();
        if (chosen_.size() != before) {
            selectionChanged.emit();
        }
    }

private:
    void gatherSelected() const {
        selected_.clear();
        if (chosen_.empty()) {
            return;
        }
        for (T *object : arrangedObjects()) {
            if (chosen_.contains(object)) {
                selected_.push_back(object);
            }
        }
        if (selected_.size() < chosen_.size()) {
            chosen_ = {selected_.begin(), selected_.end()};
            selectionChanged.emit();
        }
    }

    const Content content_;
    Filter filter_;
    Less less_;
    mutable Objects arranged_;
    mutable Objects selected_;
    mutable std::unordered_set<T *> chosen_; ///< the selected, perhaps with some that have left
    mutable bool arrangedStale_ = true;
    mutable bool selectedStale_ = true;
    mutable bool changeTold_ = false; ///< and nobody has looked since
    mutable bool lossTold_ = false;   ///< likewise
};

} // namespace pinmora
