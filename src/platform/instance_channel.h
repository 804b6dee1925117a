#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace pinmora {

/// The way by which a program that is started a second time hands its files to the one that runs
/// already. Only programs of the same person reach each other.
class InstanceChannel {
public:
    /// Paths as bytes, absolute; none: the running program is only to come to the front.
    using Received = std::function<void(const std::vector<std::string> &paths)>;

    /// What becomes of a program that starts.
    enum class Start {
        Runs,       ///< it is the running one
        HandedOver, ///< another is, and has the paths
        Stuck,      ///< another is, and does not answer
    };

    /// `name` tells those apart who do not mean each other: nameFor().
    InstanceChannel(const std::string &name, Received received);
    ~InstanceChannel();
    InstanceChannel(const InstanceChannel &) = delete;
    InstanceChannel &operator=(const InstanceChannel &) = delete;

    /// Becomes the running one, before it listens, or hands the paths to the one that is; waits at
    /// most that long for it to listen or to end. Where no lock can be made, the program runs.
    /// Needs no application.
    Start start(const std::vector<std::string> &paths, std::chrono::milliseconds timeout);

    /// Becomes the running one, if it is not yet, and takes and confirms messages on a thread of
    /// its own, however busy this one is; `received` is called by the event loop of this thread,
    /// once that turns. False when another is the running one, or no socket can be made. What a
    /// crashed one left is taken over.
    bool listen();

    /// Ends listening; a later start waits until this object is gone and then runs. Returns what
    /// was confirmed and will not be received any more.
    std::vector<std::vector<std::string>> stop();

    /// Hands the paths to the running one; true only when that has confirmed them. Waits for it at
    /// most that long. Any thread.
    static bool handOver(const std::string &name, const std::vector<std::string> &paths,
                         std::chrono::milliseconds timeout);

    /// The name of those who work on one library.
    static std::string nameFor(const std::filesystem::path &libraryFolder);

private:
    class Server;
    const std::string name_;
    std::unique_ptr<Server> server_;
};

} // namespace pinmora
