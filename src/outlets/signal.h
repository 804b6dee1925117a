#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace pinmora {

/// Ends a connection to a Signal when it is destroyed; may outlive the signal.
class Connection {
public:
    Connection() = default;
    explicit Connection(std::shared_ptr<void> handler) : handler_(std::move(handler)) {}

private:
    std::shared_ptr<void> handler_;
};

/// Calls whoever is connected, at once and in the order of connection. One thread only. A handler
/// may connect and disconnect handlers, also itself, while it is called.
template <class... Arguments>
class Signal {
public:
    using Handler = std::function<void(Arguments...)>;

    [[nodiscard]] Connection connect(Handler handler) {
        auto shared = std::make_shared<Handler>(std::move(handler));
        handlers_.push_back(shared);
        return Connection(shared);
    }

    void emit(Arguments... arguments) const {
        const std::vector<std::weak_ptr<Handler>> present = handlers_;
        for (const std::weak_ptr<Handler> &weak : present) {
            if (const std::shared_ptr<Handler> handler = weak.lock()) {
                (*handler)(arguments...);
            }
        }
        std::erase_if(handlers_, [](const auto &weak) { return weak.expired(); });
    }

private:
    mutable std::vector<std::weak_ptr<Handler>> handlers_;
};

} // namespace pinmora
