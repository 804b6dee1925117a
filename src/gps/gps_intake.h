#pragma once

#include "gps/log_report.h"
#include "outlets/open_panel.h"
#include "outlets/signal.h"

#include <string>
#include <vector>

namespace pinmora {

class Context;
class Defaults;
class Gps;
class ProgressSheet;
struct Button;

/// The way logs come in through the open panel. A load is one step of undo, and runs to its end
/// before it returns.
class GpsIntake {
public:
    /// All must outlive it. While `loadRunning` no load is begun; it is set during a load.
    GpsIntake(Context &context, Gps &gps, ProgressSheet &progress, Defaults &defaults,
              WorkingWindow workingWindow, bool &loadRunning);

    void menuLoadGPSData() { getGPSFile(); }
    /// Puts the panel up.
    void getGPSFile();
    /// The panel's answer.
    void processGPS(OpenPanel &chosen, int returnCode);

    /// Sent after each load, with a report a file.
    Signal<const std::vector<LogReport> &> loaded;

    OpenPanel panel;

private:
    std::vector<LogReport> load(const std::vector<std::string> &names);

    Context &context_;
    Gps &gps_;
    ProgressSheet &progress_;
    Defaults &defaults_;
    WorkingWindow workingWindow_;
    bool &loadRunning_;
};

} // namespace pinmora
