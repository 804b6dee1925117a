#pragma once

#include <any>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace pinmora {

/// Something that happened, told by name to whoever asked to hear of it.
struct Notification {
    std::string name;
    std::any object; ///< what it is about; its type is part of the meaning of the name
};

/// Spreads notifications to observers, at once and in the order in which they registered.
/// One thread only. An observer may add or remove observers, also itself, while it is called:
/// one that is added hears the next notification, one that is removed hears no more.
class NotificationCentre {
public:
    using Handler = std::function<void(const Notification &)>;

    /// Ends the observation when it is destroyed; may outlive the centre.
    class Observation {
    public:
        Observation() = default;
        Observation(Observation &&) noexcept;
        Observation &operator=(Observation &&) noexcept;
        Observation(const Observation &) = delete;
        Observation &operator=(const Observation &) = delete;
        ~Observation();

    private:
        friend class NotificationCentre;
        struct Entry;
        explicit Observation(std::shared_ptr<Entry> entry);
        std::shared_ptr<Entry> entry_;
    };

    NotificationCentre();
    ~NotificationCentre();
    NotificationCentre(const NotificationCentre &) = delete;
    NotificationCentre &operator=(const NotificationCentre &) = delete;

    [[nodiscard]] Observation addObserver(std::string_view name, Handler handler);
    void post(std::string_view name, std::any object = {});

private:
    struct Registry;
    std::unique_ptr<Registry> registry_;
};

} // namespace pinmora
