#pragma once

#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/prctl.h>
#include <unistd.h>

namespace pinmora {

/// Processes whose parents have ended become children of this one.
inline void adoptOrphans() {
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
}

/// The commands of this process' children that still run.
inline std::string runningChildren() {
    std::string commands;
    for (const auto &entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        if (std::isdigit(static_cast<unsigned char>(name.front())) == 0) {
            continue;
        }
        std::ifstream file(entry.path() / "stat");
        std::string line;
        std::getline(file, line); // number (command) state parent ...
        const std::size_t behind = line.rfind(')');
        std::istringstream rest(behind == std::string::npos ? "" : line.substr(behind + 1));
        char state = 'Z';
        pid_t parent = 0;
        rest >> state >> parent;
        if (parent == ::getpid() && state != 'Z') {
            commands += line.substr(0, behind + 1) + ' ';
        }
    }
    return commands;
}

} // namespace pinmora
