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

    /// `name` tells those apart who do not mean each other: nameFor().
    InstanceChannel(const std::string &name, Received received);
    ~InstanceChannel();
    InstanceChannel(const InstanceChannel &) = delete;
    InstanceChannel &operator=(const InstanceChannel &) = delete;

    /// Becomes the running one; `received` is called by the event loop of this thread. False when
    /// another is that already, or no socket can be made. What a crashed one left is taken over.
    bool listen();

    /// Hands the paths to the running one; true only when that has confirmed them. Waits for it at
    /// most that long. Any thread.
    static bool handOver(const std::string &name, const std::vector<std::string> &paths,
                         std::chrono::milliseconds timeout);

    /// The name of those who work on one library.
    static std::string nameFor(const std::filesystem::path &libraryFolder);

private:
    class Server;
    std::unique_ptr<Server> server_;
};

} // namespace pinmora
