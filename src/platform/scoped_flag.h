#pragma once

namespace pinmora {

/// Sets a flag while it lives.
class ScopedFlag {
public:
    explicit ScopedFlag(bool &flag) : flag_(flag) { flag_ = true; }
    ScopedFlag(const ScopedFlag &) = delete;
    ScopedFlag &operator=(const ScopedFlag &) = delete;
    ~ScopedFlag() { flag_ = false; }

private:
    bool &flag_;
};

} // namespace pinmora
