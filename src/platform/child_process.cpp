#include "platform/child_process.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace pinmora {

namespace {

void addStream(posix_spawn_file_actions_t &actions, int given, int standard) {
    if (given < 0) {
        const int access = standard == STDIN_FILENO ? O_RDONLY : O_WRONLY;
        posix_spawn_file_actions_addopen(&actions, standard, "/dev/null", access, 0);
    } else {
        posix_spawn_file_actions_adddup2(&actions, given, standard);
    }
}

} // namespace

int ChildProcess::start(std::vector<std::string> words, const ChildStreams &streams) {
    std::vector<char *> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string &word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    addStream(actions, streams.input, STDIN_FILENO);
    addStream(actions, streams.output, STDOUT_FILENO);
    addStream(actions, streams.errors, STDERR_FILENO);

    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes, &signals);
    sigaddset(&signals, SIGPIPE);
    sigaddset(&signals, SIGCHLD);
    posix_spawnattr_setsigdefault(&attributes, &signals);
    posix_spawnattr_setpgroup(&attributes, 0);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK |
                                              POSIX_SPAWN_SETSIGDEF);

    const int error =
        ::posix_spawn(&id_, pointers.front(), &actions, &attributes, pointers.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        id_ = -1;
        return error;
    }
    // The C library of Debian 12 declares its own function for this without regard to C++.
    watch_ = FileDescriptor{static_cast<int>(::syscall(SYS_pidfd_open, id_, 0))};
    return 0;
}

bool ChildProcess::hasEnded() const {
    siginfo_t info{};
    const int result = ::waitid(P_PID, static_cast<id_t>(id_), &info, WEXITED | WNOHANG | WNOWAIT);
    return result == 0 ? info.si_pid != 0 : errno != EINTR;
}

bool ChildProcess::hasExited() const {
    siginfo_t info{};
    const int result = ::waitid(P_PID, static_cast<id_t>(id_), &info, WEXITED | WNOHANG | WNOWAIT);
    return result == 0 && info.si_pid != 0 && info.si_code == CLD_EXITED;
}

void ChildProcess::signal(int number) const {
    ::kill(-id_, number);
    ::kill(id_, number); // it may have left its group
}

int ChildProcess::collect() {
    int status = SIGKILL; // stays when a parent that ignores SIGCHLD left nothing to collect
    while (::waitpid(id_, &status, 0) < 0 && errno == EINTR) {
    }
    id_ = -1;
    return status;
}

int ChildProcess::end() {
    if (id_ <= 0) {
        return 0;
    }
    signal(SIGKILL);
    return collect();
}

} // namespace pinmora
