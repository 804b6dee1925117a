#include "platform/process.h"
#include "rows.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <csignal>
#include <ctime>
#include <fstream>
#include <future>
#include <thread>

using namespace pinmora;
using namespace std::chrono_literals;
using End = ProcessOutcome::End;

namespace {

ProcessOutcome shell(const std::string &script, const ProcessLimits &limits = {}) {
    return runProcess("/bin/sh", {"-c", script}, limits);
}

ProcessLimits within(std::chrono::milliseconds time) {
    ProcessLimits limits;
    limits.patience = time;
    return limits;
}

/// What calls at the same time return.
template <class Result>
std::vector<Result> inThreads(std::size_t count, const std::function<Result(std::size_t)> &work) {
    std::vector<std::future<Result>> running;
    for (std::size_t i = 0; i < count; ++i) {
        running.push_back(std::async(std::launch::async, work, i));
    }
    std::vector<Result> results;
    for (auto &one : running) {
        results.push_back(one.get());
    }
    return results;
}

} // namespace

class ProcessTest : public QObject {
    Q_OBJECT

    QElapsedTimer clock_;

    /// The children of these tests that hang would do so for a minute.
    bool wasQuick() const { return clock_.elapsed() < 20000; }

private Q_SLOTS:
    void init() { clock_.start(); }

    void endings_data() {
        const auto row = test::rows<std::string, End, int>();
        row("success", "true", End::Exited, 0);
        row("exit status", "exit 3", End::Exited, 3);
        row("signal", "kill -KILL $$", End::Crashed, SIGKILL);
        row("hangs", "sleep 60", End::TimedOut, 0);
        row("refuses to end", "trap '' TERM; while :; do sleep 60; done", End::TimedOut, 0);
        row("ends well when asked", "trap 'exit 0' TERM; while :; do :; done", End::TimedOut, 0);
        row("hangs with its output closed", "exec >&- 2>&-; sleep 60", End::TimedOut, 0);
        row("floods without end", "while :; do echo flood; done", End::TimedOut, 0);
    }

    void endings() {
        const auto [script, end, code] = test::fetch<std::string, End, int>();
        const auto outcome = shell(script, end == End::TimedOut ? within(200ms) : ProcessLimits{});
        QCOMPARE(outcome.end, end);
        QCOMPARE(outcome.code, code);
        QVERIFY(wasQuick());
    }

    void streamsAreKeptApart() {
        const auto outcome = shell("echo out; echo err >&2; cat; exit 1");
        QCOMPARE(outcome.output, "out\n");
        QCOMPARE(outcome.errors, "err\n");
        QVERIFY(!outcome.succeeded());
    }

    void outputIsCappedWithoutBlockingTheChild() {
        ProcessLimits limits;
        limits.output = 1000;
        const auto outcome = shell("i=0; while [ $i -lt 20000 ]; do echo 0123456789; "
                                   "echo abcdefghij >&2; i=$((i+1)); done",
                                   limits);
        QVERIFY(outcome.succeeded());
        QCOMPARE(outcome.output.size(), 1000U);
        QCOMPARE(outcome.errors.size(), 1000U);
        QVERIFY(outcome.output.starts_with("0123456789\n0"));
    }

    void closedOutputIsNotTheEnd() {
        const auto outcome = shell("echo said; exec >&- 2>&-; i=0; "
                                   "while [ $i -lt 9999 ]; do i=$((i+1)); done; exit 7");
        QCOMPARE(outcome.output, "said\n");
        QCOMPARE(outcome.code, 7);
    }

    void waitingTakesNoProcessorTime() {
        const std::clock_t before = std::clock();
        shell("exec >&- 2>&-; sleep 60", within(400ms));
        QVERIFY(std::clock() - before < CLOCKS_PER_SEC / 25);
    }

    void processLeftBehindIsNotWaitedFor() {
        const auto outcome = shell("sleep 60 & echo $!");
        QVERIFY(outcome.succeeded());
        QVERIFY(wasQuick());
        const int leftBehind = std::stoi(outcome.output);
        QCOMPARE(kill(leftBehind, SIGKILL), 0); // alive until now
    }

    void timeLimitEndsTheWholeGroup() {
        // Both hold the fifo open for writing; it reads to its end only when both are gone.
        const QTemporaryDir folder;
        const std::string fifo = folder.filePath(QStringLiteral("fifo")).toStdString();
        QVERIFY(shell("mkfifo " + fifo).succeeded());
        std::thread reader([&] { shell("cat " + fifo); });
        const auto outcome =
            shell("exec 3>" + fifo + "; (trap '' TERM; sleep 60; :) & sleep 60", within(200ms));
        reader.join();
        QCOMPARE(outcome.end, End::TimedOut);
        QVERIFY(wasQuick());
    }

    void argumentsAreBytes() {
        const std::vector<std::string> arguments{"%s|%s|%s", "caf\xE9 \xFF", "", "a 'b' \"c\"\n"};
        const auto outcome = runProcess("/usr/bin/printf", arguments);
        QCOMPARE(outcome.output, "caf\xE9 \xFF||a 'b' \"c\"\n");
        QCOMPARE(runProcess("/usr/bin/printf", {std::string{"a\0b", 3}}).end, End::NotStarted);
    }

    void programThatCannotBeRun() {
        const QTemporaryDir folder;
        const std::filesystem::path file = folder.filePath(QStringLiteral("tool")).toStdString();
        QCOMPARE(runProcess(file, {}).end, End::NotStarted);
        QCOMPARE(runProcess(file, {}).code, ENOENT);
        std::ofstream{file} << "#!/bin/sh\n";
        QCOMPARE(runProcess(file, {}).code, EACCES);
    }

    void manyAtOnce() {
        // A stream inherited by a neighbour would keep its `cat` from ending.
        const auto wrong = inThreads<int>(16, [](std::size_t i) {
            int count = 0;
            for (int n = 0; n < 10; ++n) {
                const std::string word = std::to_string(i * 100) + std::to_string(n);
                count += shell("echo " + word + " | cat").output == word + "\n" ? 0 : 1;
            }
            return count;
        });
        QCOMPARE(wrong, std::vector<int>(16));
        QVERIFY(wasQuick());
    }

    void childInheritsNoStrayDescriptors() {
        const auto descriptors = [](std::size_t) {
            return shell("ls /proc/self/fd | wc -l").output;
        };
        QCOMPARE(inThreads<std::string>(8, descriptors),
                 std::vector<std::string>(8, descriptors(0)));
    }

    void findsTheFirstExecutableFile() {
        const QTemporaryDir folder;
        const std::filesystem::path root = folder.path().toStdString();
        for (const char *name : {"folder", "plain", "good", "later"}) {
            std::filesystem::create_directory(root / name);
        }
        std::filesystem::create_directory(root / "folder" / "tool");
        for (const char *name : {"plain", "good", "later"}) {
            std::ofstream{root / name / "tool"} << "#!/bin/sh\n";
        }
        for (const char *name : {"good", "later"}) {
            std::filesystem::permissions(root / name / "tool", std::filesystem::perms::owner_all);
        }
        const QByteArray before = qgetenv("PATH");
        const std::string at = root.string();
        const auto search =
            "::" + at + "/none:" + at + "/folder:" + at + "/plain:" + at + "/good:" + at + "/later";
        qputenv("PATH", QByteArray::fromStdString(search));
        const auto found = findOnPath("tool");
        const auto missing = findOnPath("no such tool");
        const auto outside = findOnPath("../good/tool");
        qputenv("PATH", before);
        QCOMPARE(found.value(), root / "good" / "tool");
        QVERIFY(!missing);
        QVERIFY(!outside);
    }
};

QTEST_GUILESS_MAIN(ProcessTest)
#include "process_test.moc"
