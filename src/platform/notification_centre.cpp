#include "platform/notification_centre.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace pinmora {

struct NotificationCentre::Observation::Entry {
    std::string name;
    Handler handler;
    Registry *registry = nullptr; ///< none once the observation or the centre has ended
};

struct NotificationCentre::Registry {
    using Entries = std::vector<std::shared_ptr<Observation::Entry>>;

    std::map<std::string, Entries, std::less<>> byName;

    void remove(const std::shared_ptr<Observation::Entry> &entry) {
        const auto found = byName.find(entry->name);
        std::erase(found->second, entry);
        if (found->second.empty()) {
            byName.erase(found);
        }
    }
};

NotificationCentre::Observation::Observation(std::shared_ptr<Entry> entry)
    : entry_(std::move(entry)) {}

NotificationCentre::Observation::Observation(Observation &&) noexcept = default;

NotificationCentre::Observation &
NotificationCentre::Observation::operator=(Observation &&other) noexcept {
    Observation taken(std::move(other));
    std::swap(entry_, taken.entry_);
    return *this;
}

NotificationCentre::Observation::~Observation() {
    if (entry_ && entry_->registry != nullptr) {
        std::exchange(entry_->registry, nullptr)->remove(entry_);
    }
}

NotificationCentre::NotificationCentre() : registry_(std::make_unique<Registry>()) {}

NotificationCentre::~NotificationCentre() {
    for (const auto &[name, entries] : registry_->byName) {
        for (const auto &entry : entries) {
            entry->registry = nullptr;
        }
    }
}

NotificationCentre::Observation NotificationCentre::addObserver(std::string_view name,
                                                                Handler handler) {
    auto entry = std::make_shared<Observation::Entry>(
        Observation::Entry{std::string{name}, std::move(handler), registry_.get()});
    registry_->byName[entry->name].push_back(entry);
    return Observation{std::move(entry)};
}

void NotificationCentre::post(std::string_view name, std::any object) {
    const auto found = registry_->byName.find(name);
    if (found == registry_->byName.end()) {
        return;
    }
    // A copy, for handlers add and remove observers; it also keeps a handler that ends itself
    // alive.
    const Registry::Entries told = found->second;
    const Notification notification{std::string{name}, std::move(object)};
    for (const auto &entry : told) {
        if (entry->registry != nullptr) {
            entry->handler(notification);
        }
    }
}

} // namespace pinmora
