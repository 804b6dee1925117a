#pragma once

#include "outlets/observable.h"
#include "platform/defaults.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace pinmora {

/// A setting as a value that is shown and chosen. It follows the settings, whoever writes them, and
/// stores at once what is chosen; whoever goes by the setting hears of it from there.
template <class T>
class Preference {
public:
    using Read = std::function<T(const Defaults &)>;
    using Write = std::function<std::string(T)>;

    /// The settings must outlive it. What `write` makes of a value, `read` gives back.
    Preference(Defaults &defaults, std::string_view key, Read read, Write write)
        : defaults_(defaults), key_(key), read_(std::move(read)), write_(std::move(write)),
          value_(read_(defaults)),
          changed_(defaults.onChange(key, [this] { value_.set(read_(defaults_)); })) {}

    /// To be watched; what sets it is the setting.
    Observable<T> &value() { return value_; }

    void choose(T value) {
        if (value != value_.get()) {
            defaults_.setText(key_, write_(value));
            defaults_.synchronize();
        }
    }

private:
    Defaults &defaults_;
    const std::string_view key_; ///< a constant's
    const Read read_;
    const Write write_;
    Observable<T> value_;
    const NotificationCentre::Observation changed_;
};

} // namespace pinmora
