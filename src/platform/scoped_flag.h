#pragma once

namespace pinmora {

/// Sets a flag while it lives; afterwards it is what it was before.
class ScopedFlag {
public:
    explicit ScopedFlag(bool &flag) : flag_(flag), before_(flag) { flag_ = true; }
    ScopedFlag(const ScopedFlag &) = delete;
    ScopedFlag &operator=(const ScopedFlag &) = delete;
    ~ScopedFlag() { flag_ = before_; }

private:
    bool &flag_;
    const bool before_;
};

} // namespace pinmora
