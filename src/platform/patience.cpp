#include "platform/patience.h"

#include <algorithm>
#include <csignal>

namespace pinmora {

namespace {

using std::chrono::milliseconds;

/// Between the friendly signal and the one that cannot be refused.
constexpr milliseconds grace{500};
/// How often to look whether the child has ended where the kernel cannot wake us for it.
constexpr milliseconds glance{20};
constexpr milliseconds longest = std::chrono::hours{24 * 365};

/// How often to look whether the child has got on: that much longer than its patience it may last.
milliseconds lookEvery(milliseconds patience) {
    return std::clamp(patience / 8, milliseconds{10}, milliseconds{1000});
}

} // namespace

Patience::Patience(const ChildProcess &child, const ProcessLimits &limits)
    : child_(child), limits_(limits),
      patience_(std::clamp(limits.patience, milliseconds{0}, longest)),
      deadline_(Clock::now() + patience_), nextLook_(Clock::now() + lookEvery(patience_)) {}

milliseconds Patience::enforce() {
    const auto now = Clock::now();
    if (signals_ == 0 && limits_.hasGotOn && now >= nextLook_) {
        nextLook_ = now + lookEvery(patience_);
        if (limits_.hasGotOn()) {
            deadline_ = now + patience_;
        }
    }
    if (now >= deadline_) {
        child_.signal(signals_++ == 0 ? SIGTERM : SIGKILL);
        deadline_ = now + grace;
    }
    const auto next =
        limits_.hasGotOn && signals_ == 0 ? std::min(deadline_, nextLook_) : deadline_;
    return std::min<milliseconds>(std::chrono::ceil<milliseconds>(next - now),
                                  child_.watch() >= 0 ? std::chrono::hours{1} : glance);
}

} // namespace pinmora
