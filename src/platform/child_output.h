#pragma once

#include "platform/file_descriptor.h"

#include <cstddef>
#include <functional>
#include <string_view>

namespace pinmora {

/// A stream that a child process writes to and we read.
class ChildOutput {
public:
    using Taker = std::function<void(std::string_view bytes)>;

    /// errno, 0 for success. Closed on exec, so that a program started at the same time by another
    /// thread does not hold the stream open.
    int open();

    /// What the child is to be started with; then to be closed on this side.
    int childsEnd() const { return writing_.get(); }
    void closeChildsEnd() { writing_.close(); }

    /// To be polled for reading; -1 when the stream has come to its end.
    int watch() const { return reading_.get(); }

    /// Hands on what can be read at once, without waiting; returns how many bytes these were.
    std::size_t read(const Taker &take);

    /// Hands on all that waits at this moment; more may follow without end from a process left
    /// behind.
    void drain(const Taker &take);

private:
    FileDescriptor reading_;
    FileDescriptor writing_;
};

} // namespace pinmora
