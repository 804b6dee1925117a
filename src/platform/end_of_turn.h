#pragma once

#include <functional>
#include <memory>

class QObject;

namespace pinmora {

/// Calls back once the event loop comes to its next turn, once however often it was asked. Without
/// an event loop it never does.
class EndOfTurn {
public:
    explicit EndOfTurn(std::function<void()> handler);
    ~EndOfTurn();
    EndOfTurn(const EndOfTurn &) = delete;
    EndOfTurn &operator=(const EndOfTurn &) = delete;

    void ask();

private:
    std::unique_ptr<QObject> receiver_; ///< events to it die with it
    bool asked_ = false;
};

} // namespace pinmora
