#pragma once

#include "outlets/signal.h"
#include "persistence/change_observer.h"

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace pinmora {

class Context;
class image;

/// Which photos could not be written at the last save, and why.
class SaveMarks : private ChangeObserver {
public:
    /// The context must outlive it.
    explicit SaveMarks(Context &context);
    ~SaveMarks() override;
    SaveMarks(const SaveMarks &) = delete;
    SaveMarks &operator=(const SaveMarks &) = delete;

    struct Mark {
        const image *photo;
        std::string reason;
    };

    void clear();
    /// The photo must be in the library; its mark goes when it leaves.
    void mark(const image &photo, std::string reason) { mark({{&photo, std::move(reason)}}); }
    void mark(std::vector<Mark> marks);
    /// Null for a photo without a mark.
    const std::string *reasonFor(const image &photo) const;

    /// Photos have got or lost marks.
    Signal<> changed;

private:
    void didDelete(Record &record) override;

    Context &context_;
    std::unordered_map<const image *, std::string> reasons_;
};

} // namespace pinmora
