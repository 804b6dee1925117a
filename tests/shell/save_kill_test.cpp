#include "saving/folders.h"
#include "shell/desk.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <map>
#include <sys/prctl.h>
#include <sys/wait.h>

using namespace pinmora;
namespace fs = std::filesystem;
using std::chrono::milliseconds;

namespace {

constexpr int photoCount = 8;
constexpr milliseconds patience{20'000};
/// As the real tool goes about it.
constexpr const char *tags = "t=\"${copy}_exiftool_tmp\"; cp \"$copy\" \"$t\"; "
                             "echo tagged >> \"$t\"; cat \"$t\" > \"$copy\"; rm \"$t\"";

/// Whether every tool that a killed program has left behind is gone; this program inherits them.
bool areToolsGone() {
    pid_t ended = 0;
    do {
        ended = waitpid(-1, nullptr, WNOHANG);
    } while (ended > 0);
    return ended < 0 && errno == ECHILD;
}

/// What a killed run has left in the folders.
struct Outing : Folders {
    std::map<std::string, std::string> bytes; ///< of the originals, by name
    const std::string foreign = "somebody else's";

    Outing() {
        for (int i = 1; i <= photoCount; ++i) {
            const std::string name = "IMG_" + std::to_string(100 + i);
            photo(name, bytesOf(sample) + name);
            bytes[name] = bytesOf(originals / (name + ".jpg"));
        }
        writeBytes(copies / "IMG_103.jpg", foreign);
    }

    bool areOriginalsWhole() const {
        return std::all_of(bytes.begin(), bytes.end(), [this](const auto &one) {
            return bytesOf(originals / (one.first + ".jpg")) == one.second;
        });
    }
    /// How many copies are tagged; nothing when a file is none that may be there.
    std::optional<int> taggedCopies() const {
        int tagged = 0;
        for (const std::string &name : copyNames()) {
            const std::string held = bytesOf(copies / name);
            const auto original = bytes.find(name.substr(0, 7));
            const bool isForeign = name == "IMG_103.jpg" && held == foreign;
            if (isForeign || name.starts_with('.')) { // a hidden one has no name yet
                continue;
            }
            if (original == bytes.end() ||
                (held != original->second && held != original->second + "tagged\n")) {
                return std::nullopt;
            }
            tagged += held == original->second ? 0 : 1;
        }
        return bytesOf(copies / "IMG_103.jpg") == foreign ? std::optional(tagged) : std::nullopt;
    }
};

/// Starts the program and kills it so long after it has begun to save; how long it had taken when
/// it has ended before.
std::optional<milliseconds> runUntil(milliseconds moment, const Outing &outing,
                                     const QString &preparation) {
    const auto text = [](const fs::path &path) { return QString::fromStdString(path); };
    QProcess program;
    program.start(QString::fromUtf8(KILLED_SAVE), {text(outing.originals), text(outing.resources),
                                                   text(outing.copies), preparation});
    program.waitForReadyRead(static_cast<int>(patience.count()));
    QElapsedTimer sinceBegun;
    sinceBegun.start();
    QByteArray said = program.readAll();
    for (qint64 left = moment.count(); left > 0 && !said.contains("saved");
         left = moment.count() - sinceBegun.elapsed()) {
        program.waitForReadyRead(static_cast<int>(left));
        said += program.readAll();
    }
    const milliseconds taken(sinceBegun.elapsed());
    program.kill();
    program.waitForFinished(static_cast<int>(patience.count()));
    said += program.readAll();
    return said.contains("saved") ? std::optional(taken) : std::nullopt;
}

} // namespace

/// The program is killed at random moments of a save.
class SaveKillTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCOMPARE(prctl(PR_SET_CHILD_SUBREAPER, 1), 0); }
    void nothingIsLost_data();
    void nothingIsLost();
};

void SaveKillTest::nothingIsLost_data() {
    QTest::addColumn<QString>("preparation");
    QTest::addColumn<bool>("fails"); // the tool, at one photo
    for (const char *preparation : {"saved library", "new library"}) {
        QTest::addRow("%s", preparation) << QString::fromUtf8(preparation) << false;
        QTest::addRow("%s, tool fails", preparation) << QString::fromUtf8(preparation) << true;
    }
}

void SaveKillTest::nothingIsLost() {
    QFETCH(QString, preparation);
    QFETCH(bool, fails);
    milliseconds whole = patience; // that a run takes, as the last one that ended has told
    int broken = 0;                // runs that had not ended
    for (int round = 0; round < 12; ++round) {
        Desk::clear();
        const Outing outing;
        outing.standIn((fails ? "case $copy in *105*) exit 1;; esac; " : "") + std::string(tags));
        const int part = QRandomGenerator::global()->bounded(static_cast<int>(whole.count()) + 1);
        const std::optional<milliseconds> ended =
            runUntil(round == 0 ? patience : milliseconds(part), outing, preparation);
        whole = ended.value_or(whole);
        broken += ended ? 0 : 1;
        QVERIFY(QTest::qWaitFor(areToolsGone, static_cast<int>(patience.count())));
        const std::optional<int> tagged = outing.taggedCopies();
        QVERIFY(tagged);
        QVERIFY(outing.areOriginalsWhole());
        Desk next(outing.resources);
        next.start();
        if (const auto message = next.interface().quietBar.message()) {
            QCOMPARE(message->choices.at(0).title, std::string("Bring Back"));
            next.interface().quietBar.choose(0);
        }
        const ErrorSheet &errors = next.interface().errors;
        QVERIFY2(!errors.errorWindow.isUp(), errors.errorText.text.get().c_str());
        const std::vector<image *> photos = next.context().fetch<image>();
        const bool areKept = photos.size() == photoCount &&
                             std::all_of(photos.begin(), photos.end(), [](const image *photo) {
                                 return photo->comments() == "typed";
                             });
        QVERIFY(areKept || (*tagged == photoCount && photos.empty()));
        QVERIFY(!ended || areKept == fails);
    }
    QVERIFY(broken > 0);
}

QTEST_MAIN(SaveKillTest)
#include "save_kill_test.moc"
