#include "saving/open_tool.h"

#include "platform/patience.h"
#include "saving/marked_answer.h"

#include <array>
#include <charconv>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <random>
#include <sys/socket.h>

namespace pinmora {

namespace {

/// How long an idle tool may take to end by itself.
constexpr std::chrono::milliseconds farewell{1000};

/// Says goodbye when its input ends. Should a list have been cut off before, no file is written for
/// it.
constexpr const char *guardScript = R"(read -r end; printf '\n-if\n0\n-stay_open\nFalse\n')";

std::optional<int> statusIn(const std::optional<std::string> &mark) {
    int status = 0;
    if (!mark || !mark->starts_with(' ')) {
        return std::nullopt;
    }
    const char *const last = mark->data() + mark->size();
    const auto [end, error] = std::from_chars(mark->data() + 1, last, status);
    return error == std::errc{} && end == last ? std::optional{status} : std::nullopt;
}

} // namespace

/// One list and its answer.
class OpenTool::Exchange {
public:
    Exchange(OpenTool &tool, const std::string &lines, std::size_t limit)
        : tool_(tool), number_(std::to_string(++tool.number_)),
          list_(lines + "-echo4\n{status" + number_ + " ${status}}\n-execute" + number_ + '\n'),
          rest_(list_), said_("ready" + number_, limit), complained_("status" + number_, limit) {}

    bool isAnswered() const { return said_.mark() && status().has_value(); }
    std::optional<int> status() const { return statusIn(complained_.mark()); }

    /// Writes and reads what can be, waiting at most so long for something to happen.
    void goOn(std::chrono::milliseconds wait) {
        std::array<pollfd, 4> polled{{{tool_.output_.watch(), POLLIN, 0},
                                      {tool_.errors_.watch(), POLLIN, 0},
                                      {tool_.process_.watch(), POLLIN, 0},
                                      {rest_.empty() ? -1 : tool_.input_.get(), POLLOUT, 0}}};
        if (::poll(polled.data(), polled.size(), static_cast<int>(wait.count())) <= 0) {
            return;
        }
        if (polled[0].revents != 0) {
            tool_.output_.read([this](std::string_view bytes) { said_.take(bytes); });
        }
        if (polled[1].revents != 0) {
            tool_.errors_.read([this](std::string_view bytes) { complained_.take(bytes); });
        }
        if (polled[3].revents != 0) {
            write();
        }
    }

    void readTheRest() {
        tool_.output_.drain([this](std::string_view bytes) { said_.take(bytes); });
        tool_.errors_.drain([this](std::string_view bytes) { complained_.take(bytes); });
    }

    void tell(ProcessOutcome &outcome) const {
        outcome.output = said_.text();
        outcome.errors = complained_.text();
    }

private:
    void write() {
        const ssize_t count =
            ::send(tool_.input_.get(), rest_.data(), rest_.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count >= 0) {
            rest_.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EAGAIN && errno != EINTR) {
            rest_ = {}; // it reads no more; whether it answers all the same will show
        }
    }

    OpenTool &tool_;
    std::string number_;
    std::string list_;
    std::string_view rest_; ///< of the list: still to be written
    MarkedAnswer said_;
    MarkedAnswer complained_;
};

OpenTool::~OpenTool() {
    dismiss();
    const auto end = std::chrono::steady_clock::now() + farewell;
    while (!process_.hasEnded() && std::chrono::steady_clock::now() < end) {
        constexpr int glance = 20; // ms, where the kernel cannot wake us
        pollfd ended{process_.watch(), POLLIN, 0};
        ::poll(&ended, 1, glance);
    }
}

int OpenTool::start(const std::filesystem::path &tool) {
    std::array<int, 2> ends{};
    // No pipe: writing to a socket can be told not to raise SIGPIPE.
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return errno;
    }
    input_ = FileDescriptor{ends[0]};
    const FileDescriptor toolsInput{ends[1]};
    for (ChildOutput *stream : {&output_, &errors_}) {
        if (const int error = stream->open()) {
            return error;
        }
    }
    if (const int error = process_.start({tool.native(), "-stay_open", "True", "-@", "-"},
                                         {.input = toolsInput.get(),
                                          .output = output_.childsEnd(),
                                          .errors = errors_.childsEnd()})) {
        return error;
    }
    output_.closeChildsEnd();
    errors_.closeChildsEnd();
    // Begun anywhere, so that no text in a photo holds the mark that is waited for.
    number_ = std::random_device{}();
    return startGuard();
}

int OpenTool::startGuard() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        return errno;
    }
    const FileDescriptor reading{ends[0]};
    guardInput_ = FileDescriptor{ends[1]};
    return guard_.start({"/bin/sh", "-c", guardScript},
                        {.input = reading.get(), .output = input_.get()});
}

ProcessOutcome OpenTool::run(const std::string &lines, const ProcessLimits &limits) {
    for (ChildOutput *stream : {&output_, &errors_}) {
        stream->drain([](std::string_view) {}); // belongs to no list
    }
    Exchange exchange{*this, lines, limits.output};
    Patience patience{process_, limits};
    while (!exchange.isAnswered() && !process_.hasEnded()) {
        exchange.goOn(patience.enforce());
    }
    exchange.readTheRest();

    ProcessOutcome outcome;
    if (patience.isOver()) {
        process_.end();
        outcome.end = ProcessOutcome::End::TimedOut;
    } else if (exchange.isAnswered()) {
        outcome.end = ProcessOutcome::End::Exited;
        outcome.code = *exchange.status();
    } else {
        outcome = outcomeOf(process_.end());
        if (outcome.succeeded()) {
            outcome.end = ProcessOutcome::End::Crashed;
        }
    }
    exchange.tell(outcome);
    return outcome;
}

} // namespace pinmora
