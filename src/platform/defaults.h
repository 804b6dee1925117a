#pragma once

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
    /// Writes to disk; false when that failed.
    bool synchronize();

private:
    std::unique_ptr<QSettings> settings_;
};

} // namespace pinmora
