#pragma once

#include "outlets/signal.h"

#include <string>

namespace pinmora {

/// What the program asks of the desktop around it. Paths are bytes.
struct Workspace {
    /// A file or folder is to be opened with the program that the person has chosen for its kind.
    Signal<const std::string &> opened;
    /// A file has appeared or become another one, and those who show its folder may look again.
    Signal<const std::string &> fileSystemChanged;

    void openFile(const std::string &path) const { opened.emit(path); }
    void noteFileSystemChanged(const std::string &path) const { fileSystemChanged.emit(path); }
};

} // namespace pinmora
