#include "recovery/script.h"
#include "recovery/test_files.h"
#include "rows.h"

#include <QProcess>
#include <QTemporaryDir>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

/// How a run of recovery_worker ended, and how far it had come.
struct End {
    bool wasKilled = false;
    std::size_t begun = 0; ///< steps
    std::size_t safe = 0;
};

End runWorker(const fs::path &folder, const char *mode, unsigned seed, int calls) {
    QProcess worker;
    worker.start(QString::fromUtf8(RECOVERY_WORKER),
                 {QString::fromStdString(folder), QString::fromUtf8(mode), QString::number(seed),
                  QString::number(calls)});
    worker.waitForFinished(60'000);
    End end;
    end.wasKilled = worker.exitStatus() == QProcess::CrashExit;
    for (const QByteArray &line : worker.readAllStandardOutput().split('\n')) {
        const std::size_t step = line.mid(5).toULong();
        end.begun = line.startsWith("step") ? step : end.begun;
        end.safe = line.startsWith("safe") ? step : end.safe;
    }
    return end;
}

} // namespace

/// The program is killed at each call by which it writes files: at the next start the work is
/// there, up to some step, and none is missing that had come to the disk.
class KillTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void workSurvivesAKill_data() {
        const auto row = rowsByValue<unsigned>();
        for (unsigned seed = 1; seed <= 6; ++seed) {
            row(seed);
        }
    }

    void workSurvivesAKill() {
        const auto [seed] = fetch<unsigned>();
        const QTemporaryDir home;
        const fs::path folder = home.path().toStdString();
        FailingFiles files;

        qputenv("XDG_DATA_HOME", home.path().toUtf8() + "/model");
        std::vector<Lines> states; // after each step
        {
            ProgramRun model(files);
            Script script(seed, folder);
            script.forgetAtSaves();
            states.push_back(withoutZoom(described(model.context())));
            for (int step = 0; step < 40; ++step) {
                script.act(model);
                states.push_back(withoutZoom(described(model.context())));
            }
        }
        qputenv("XDG_DATA_HOME", home.path().toUtf8());
        End end{.wasKilled = true};
        int kills = 0;
        for (int calls = 1; end.wasKilled; calls += 1 + calls / 20) {
            fs::remove_all(folder / "Pinmora");
            end = runWorker(folder, "work", seed, calls);
            kills += end.wasKilled ? 1 : 0;
            ProgramRun program(files);
            for (const RecoveryOffer &offer : program.offers()) {
                QCOMPARE(program.recovered().bringBack(offer).value_or(""), std::string());
            }
            const Lines found = withoutZoom(described(program.context()));
            const auto from = states.begin() + static_cast<std::ptrdiff_t>(end.safe);
            const auto to = states.begin() + static_cast<std::ptrdiff_t>(end.begun) + 1;
            QVERIFY2(std::find(from, to, found) != to,
                     qPrintable(QString::fromUtf8("after %1 calls, steps %2 to %3")
                                    .arg(calls)
                                    .arg(end.safe)
                                    .arg(end.begun)));
        }
        QVERIFY(kills > 20);
    }

    void settingAsideAndBringingBackSurviveKills() {
        const QTemporaryDir home;
        const fs::path folder = home.path().toStdString();
        qputenv("XDG_DATA_HOME", home.path().toUtf8());
        FailingFiles files;
        Lines before;
        {
            ProgramRun program(files);
            program.addPhoto("saved");
            QVERIFY(program.library.saveAction());
            program.addPhoto("unsaved");
            program.import(put(folder / "log", logText(1, 5)));
            before = described(program.context());
        }
        fs::copy(folder / "Pinmora", folder / "work", fs::copy_options::recursive);
        bool wasKilled[2] = {true, true};
        for (int calls = 1; wasKilled[0] || wasKilled[1]; ++calls) {
            fs::remove_all(folder / "Pinmora");
            fs::copy(folder / "work", folder / "Pinmora", fs::copy_options::recursive);
            wasKilled[0] = runWorker(folder, "start", 0, calls).wasKilled;
            wasKilled[1] = runWorker(folder, "back", 0, calls).wasKilled;
            ProgramRun program(files);
            // Killed before the old folder went, both have the work: the later one is whole.
            const std::vector<RecoveryOffer> offers = program.offers();
            QVERIFY(offers.size() == 1 || offers.size() == 2);
            QCOMPARE(program.recovered().bringBack(offers.back()).value_or(""), std::string());
            QCOMPARE(difference(described(program.context()), before), QString());
        }
    }

    void emptyingTheStoreSurvivesKills_data() {
        // exported: the work is elsewhere
        const auto row = test::rows<bool>();
        row("exported", true);
        row("not exported", false);
    }

    /// Exported work is there as a whole or not at all.
    void emptyingTheStoreSurvivesKills() {
        const auto [exported] = test::fetch<bool>();
        const QTemporaryDir home;
        const fs::path folder = home.path().toStdString();
        qputenv("XDG_DATA_HOME", home.path().toUtf8());
        FailingFiles files;
        End end{.wasKilled = true};
        int there = 0;
        int gone = 0;
        for (int calls = 1; end.wasKilled; ++calls) {
            fs::remove_all(folder / "Pinmora");
            end = runWorker(folder, exported ? "export" : "empty", 0, calls);
            if (end.safe == 0) {
                continue;
            }
            ProgramRun program(files);
            QCOMPARE(bringBackAll(program), "");
            const bool isThere =
                photos(program) == "saved unsaved" && program.context().count<track_part>() == 5;
            QVERIFY(isThere || (exported && photos(program).empty()));
            ++(isThere ? there : gone);
            QVERIFY(!exported || end.safe < 2 || !isThere);
        }
        QVERIFY(there > 0 && (gone > 0) == exported);
    }
};

QTEST_GUILESS_MAIN(KillTest)
#include "kill_test.moc"
