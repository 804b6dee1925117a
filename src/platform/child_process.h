#pragma once

#include "platform/file_descriptor.h"

#include <string>
#include <sys/types.h>
#include <vector>

namespace pinmora {

/// A started child process that leads a process group of its own. If it was not collected by then,
/// it and its group are ended by force when this goes.
class ChildProcess {
public:
    ChildProcess() = default;
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;
    ~ChildProcess();

    /// Starts the program words[0] with the arguments `words`, its standard output and error going
    /// to the given descriptors, its standard input empty. errno, 0 for success.
    int start(std::vector<std::string> words, int output, int errors);

    /// Whether it has ended; it is kept uncollected, so that its number stays its own.
    bool hasEnded() const;

    /// Sends a signal to it and to its group.
    void signal(int number) const;

    /// Waits for its end and returns its status as waitpid() tells it.
    int collect();

    /// A descriptor that is readable when the child has ended; -1 where there is no such thing.
    int watch() const { return watch_.get(); }

private:
    pid_t id_ = -1;
    FileDescriptor watch_;
};

} // namespace pinmora
