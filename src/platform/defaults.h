#pragma once

#include "platform/notification_centre.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QSettings;

namespace pinmora {

/// The person's settings: texts by name, in the configuration folder of the desktop's conventions
/// (XDG_CONFIG_HOME or ~/.config, file "Pinmora/Pinmora.ini"). What was set and not yet written is
/// written at the latest when the object goes. One thread only.
class Defaults {
public:
    Defaults();
    ~Defaults();
    Defaults(const Defaults &) = delete;
    Defaults &operator=(const Defaults &) = delete;

    std::optional<std::string> text(std::string_view key) const;
    void setText(std::string_view key, std::string_view value);
    /// The key is then as if it had never been set.
    void remove(std::string_view key);
    /// Writes to disk; false when that failed.
    bool synchronize();

    /// Calls after the text of a key has become another one, or has come or gone.
    [[nodiscard]] NotificationCentre::Observation onChange(std::string_view key,
                                                           std::function<void()> told);

private:
    std::unique_ptr<QSettings> settings_;
    NotificationCentre changes_; ///< by key
};

} // namespace pinmora
