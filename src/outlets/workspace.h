#pragma once

#include "outlets/signal.h"

#include <string>
#include <string_view>

namespace pinmora {

/// Whether an address begins with "http://", "https://" or "mailto:", in whatever case.
bool canOpenAddress(std::string_view address);

/// What the program asks of the desktop around it. Paths are bytes.
struct Workspace {
    /// A file or folder is to be opened with the program that the person has chosen for its kind.
    Signal<const std::string &> opened;
    /// A file has appeared or become another one, and those who show its folder may look again.
    Signal<const std::string &> fileSystemChanged;
    /// An address on the web, or of mail, is to be opened; no other ever is.
    Signal<const std::string &> addressOpened;

    void openFile(const std::string &path) const { opened.emit(path); }
    /// Nothing happens with an address that canOpenAddress() does not know.
    void openAddress(const std::string &address) const {
        if (canOpenAddress(address)) {
            addressOpened.emit(address);
        }
    }
    void noteFileSystemChanged(const std::string &path) const { fileSystemChanged.emit(path); }
};

} // namespace pinmora
