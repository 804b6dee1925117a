#pragma once

#include "platform/file_descriptor.h"

#include <string>
#include <sys/types.h>
#include <vector>

namespace pinmora {

/// The descriptors that become a child's standard streams; -1 for none: nothing is read from it,
/// and what is written to it is lost.
struct ChildStreams {
    int input = -1;
    int output = -1;
    int errors = -1;
};

/// A started child process that leads a process group of its own. If it was not collected by then,
/// it and its group are ended by force when this goes.
class ChildProcess {
public:
    ChildProcess() = default;
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;
    ~ChildProcess() { end(); }

    /// Starts the program words[0] with the arguments `words`. errno, 0 for success.
    int start(std::vector<std::string> words, const ChildStreams &streams);

    /// Whether it has ended; it is kept uncollected, so that its number stays its own. Also true
    /// when there is none.
    bool hasEnded() const;

    /// Whether it has ended of its own accord, not by a signal.
    bool hasExited() const;

    /// Sends a signal to it and to its group.
    void signal(int number) const;

    /// Waits for its end and returns its status as waitpid() tells it.
    int collect();

    /// Ends it and its group by force, if it was not collected; the status as collect() tells it.
    int end();

    /// A descriptor that is readable when the child has ended; -1 where there is no such thing.
    int watch() const { return watch_.get(); }

private:
    pid_t id_ = -1;
    FileDescriptor watch_;
};

} // namespace pinmora
