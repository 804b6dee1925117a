#include "platform/file_lock.h"

#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/wait.h>

using namespace pinmora;

namespace {

/// Another process, with a pipe to it and one from it.
class Helper {
public:
    template <class Work>
    explicit Helper(Work work) {
        if (::pipe(questions_) != 0 || ::pipe(answers_) != 0) {
            qFatal("no pipe");
        }
        process_ = ::fork();
        if (process_ == 0) {
            work(questions_[0], answers_[1]);
            ::_exit(1);
        }
    }
    void ask(char question) const { QCOMPARE(::write(questions_[1], &question, 1), 1); }
    char answer() const {
        char answer = 0;
        return ::read(answers_[0], &answer, 1) == 1 ? answer : '\0';
    }
    void kill() const {
        QCOMPARE(::kill(process_, SIGKILL), 0);
        QCOMPARE(::waitpid(process_, nullptr, 0), process_);
    }

private:
    int questions_[2]{};
    int answers_[2]{};
    pid_t process_ = 0;
};

} // namespace

class FileLockTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> room_;
    std::filesystem::path path_;

private Q_SLOTS:
    void init() {
        room_ = std::make_unique<QTemporaryDir>();
        path_ = std::filesystem::path(room_->path().toStdString()) / "lock";
    }

    void onlyOneHolds() {
        FileLock second;
        {
            FileLock first;
            QCOMPARE(first.acquire(path_), std::error_code{});
            QVERIFY(first.isHeld());
            QCOMPARE(second.acquire(path_), std::errc::operation_would_block);
            QVERIFY(!second.isHeld());
        }
        QCOMPARE(second.acquire(path_), std::error_code{});
        second.release();
        FileLock third;
        QCOMPARE(third.acquire(path_), std::error_code{});
    }

    void itEndsWithTheProcess() {
        const Helper holder([this](int, int answers) {
            FileLock lock;
            const char taken = lock.acquire(path_) ? 'n' : 'y';
            while (::write(answers, &taken, 1) == 1) {
                ::pause();
            }
        });
        QCOMPARE(holder.answer(), 'y');
        FileLock lock;
        QCOMPARE(lock.acquire(path_), std::errc::operation_would_block);
        holder.kill();
        QCOMPARE(lock.acquire(path_), std::error_code{});
    }

    void programsStartedMeanwhileDoNotHoldIt() {
        FileLock lock;
        QCOMPARE(lock.acquire(path_), std::error_code{});
        const Helper program([](int questions, int answers) {
            ::dup2(questions, STDIN_FILENO);
            ::dup2(answers, STDOUT_FILENO);
            ::execlp("cat", "cat", nullptr);
        });
        program.ask('?');
        QCOMPARE(program.answer(), '?'); // it runs
        lock.release();
        QCOMPARE(lock.acquire(path_), std::error_code{});
        program.kill();
    }

    void whereNoFileCanBe() {
        FileLock lock;
        QCOMPARE(lock.acquire(path_ / "below"), std::errc::no_such_file_or_directory);
        QVERIFY(!lock.isHeld());
    }
};

QTEST_APPLESS_MAIN(FileLockTest)
#include "file_lock_test.moc"
