#pragma once

#include "outlets/controls.h"
#include "outlets/signal.h"
#include "persistence/change_observer.h"

#include <string_view>
#include <vector>

namespace pinmora {

class ClockOffset;
class Context;
struct MatchingOutlets;

/// Says in words how far the clock in hand is off, also while it is being turned.
class ClockSaying : private ChangeObserver {
public:
    /// All must outlive it.
    ClockSaying(Context &context, MatchingOutlets &matching, ClockOffset &clockOffset);
    ~ClockSaying() override;
    ClockSaying(const ClockSaying &) = delete;
    ClockSaying &operator=(const ClockSaying &) = delete;

    /// "Camera clock", and whose it is where a camera has one of its own: "Camera clock · EOS 5D".
    TextField heading;
    /// "The camera was 3 min 12 s slow.", "Canon EOS 5D: 3 min 12 s slow"
    TextField words;

private:
    void didChange(Record &, std::string_view) override { say(); }
    void say();

    Context &context_;
    MatchingOutlets &matching_;
    ClockOffset &clockOffset_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
