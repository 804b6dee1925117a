#pragma once

#include "outlets/signal.h"

#include <utility>

namespace pinmora {

/// A value that tells its observers when it has become another one.
template <class T>
class Observable {
public:
    Observable() = default;
    explicit Observable(T value) : value_(std::move(value)) {}
    ~Observable() = default;
    Observable(const Observable &) = delete;
    Observable &operator=(const Observable &) = delete;

    const T &get() const { return value_; }
    void set(T value) {
        if (!(value == value_)) {
            value_ = std::move(value);
            changed_.emit(value_);
        }
    }
    [[nodiscard]] Connection onChange(std::function<void(const T &)> handler) {
        return changed_.connect(std::move(handler));
    }

private:
    T value_{};
    Signal<const T &> changed_;
};

} // namespace pinmora
