#pragma once

#include "services/local_server.h"
#include "shell/pinmora_app_delegate.h"
#include "ui/program_windows.h"

#include <QObject>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace pinmora::app {

/// The program with its windows, from start to end.
class Program : public QObject {
public:
    /// `resourceFolder` is the program's own; `makePage` makes the view of the map page.
    /// The application must be there.
    Program(const std::filesystem::path &resourceFolder, MapPane::MakePage makePage);
    ~Program() override;
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// Loads files once the window is up; none: only brings the window to the front.
    void open(const std::vector<std::string> &paths);

    Pinmora_AppDelegate &delegate() { return delegate_; }
    ProgramWindows &windows() { return *windows_; }

private:
    LocalServer services_;
    Pinmora_AppDelegate delegate_;
    std::unique_ptr<ProgramWindows> windows_;
    Connection terminating_;
};

} // namespace pinmora::app
