#pragma once

#include "outlets/array_controller.h"
#include "persistence/undo_observer.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace pinmora {

class Context;
class Matcher;
class NeighbourPlacing;
class QuietBar;
class image;
struct ApplyOutcome;
struct NeighbourOutcome;

/// What follows "198 photos have got their positions.": how many other positions that has replaced,
/// and what a person should look at: "2 were taken more than 5 minutes from any point of the log; 1
/// does not say when it was taken."
std::string wordsOf(const ApplyOutcome &outcome);
std::string wordsOf(const NeighbourOutcome &outcome);

/// Says on the quiet bar what applying the logs, or placing by neighbours, has come to, and shows
/// the photos that need a look. Taking it back takes the message back.
class ApplyReport : private UndoObserver {
public:
    /// The context must have an undo manager already; all must outlive it. `selectionChanged` is
    /// called when the report has selected photos.
    ApplyReport(Context &context, ArrayController<image> &pictureArray, Matcher &matcher,
                NeighbourPlacing &neighbours, QuietBar &quietBar,
                std::function<void()> selectionChanged);
    ~ApplyReport() override;
    ApplyReport(const ApplyReport &) = delete;
    ApplyReport &operator=(const ApplyReport &) = delete;

private:
    void didUndo(const UndoStep &) override;
    void tell(std::size_t placed, const std::string &text, std::vector<std::uint32_t> toLookAt);
    void show(const std::vector<std::uint32_t> &serials);

    Context &context_;
    ArrayController<image> &pictureArray_;
    QuietBar &quietBar_;
    std::function<void()> selectionChanged_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
