#include "platform/background_job.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include <atomic>
#include <cstdlib>
#include <future>

using namespace pinmora;

namespace {

constexpr const char *hangs = "--hangs";

/// What abandoned work may use must not go before the process does.
struct UsedByWork {
    ~UsedByWork() { std::_Exit(1); }
};

int endWithWorkUnderWay() {
    static const UsedByWork used;
    BackgroundJob job;
    const auto never = std::make_shared<std::promise<void>>();
    job.start([never]() -> BackgroundJob::Outcome {
        never->get_future().wait();
        return [] {};
    });
    return 7;
}

} // namespace

/// Work on another thread, and its end.
class BackgroundJobTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void outcomeComesByItselfOrWhenWanted() {
        BackgroundJob job;
        int outcomes = 0;
        const auto work = [&outcomes] { return [&outcomes] { ++outcomes; }; };
        job.start(work);
        QVERIFY(job.isRunning());
        QTRY_COMPARE(outcomes, 1);
        QVERIFY(!job.isRunning());
        job.start(work);
        job.finish();
        job.start(work); // while the event of the one before is still on its way
        QCOMPARE(outcomes, 2);
        QTRY_COMPARE(outcomes, 3);
    }

    void workThatHangsIsAbandoned() {
        struct Shared {
            std::promise<void> release;
            std::atomic<int> outcomes = 0;
        };
        const auto shared = std::make_shared<Shared>();
        std::optional<BackgroundJob> job(std::in_place);
        job->start([shared, released = shared->release.get_future().share()] {
            released.wait();
            return [shared] { ++shared->outcomes; };
        });
        QElapsedTimer time;
        time.start();
        job.reset();
        QVERIFY(time.elapsed() < 20'000);
        shared->release.set_value();
        QTRY_COMPARE(shared.use_count(), 1L); // the work has ended, and let go of all it had
        QCoreApplication::processEvents();
        QCOMPARE(shared->outcomes.load(), 0);
    }

    void processEndsWhileWorkHangs() {
        QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(), {QLatin1String(hangs)}),
                 7);
    }
};

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(QLatin1String(hangs))) {
        return endWithWorkUnderWay();
    }
    BackgroundJobTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "background_job_test.moc"
