#include "saving/missing_words.h"
#include "saving/save_words.h"

#include <QTest>

using namespace pinmora;
using Status = SavedPhoto::Status;

class WordsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sumsUp_data() {
        QTest::addColumn<QByteArray>(
            "photos"); // a letter each: saved, bare, failed, missing, not begun
        QTest::addColumn<QByteArray>("notOnDisk");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isWhole");
        const auto row = [](const char *photos, const char *text, bool isWhole,
                            const char *notOnDisk = "") {
            QTest::addRow("%s %s", photos, notOnDisk)
                << QByteArray(photos) << QByteArray(notOnDisk) << QByteArray(text) << isWhole;
        };
        row("", "No photos were saved: there are none.", true);
        row("s", "1 photo saved in Zermatt.", true);
        row("sss", "3 photos saved in Zermatt.", true);
        row("sbb", "3 photos saved in Zermatt. 2 of the copies got no position.", true);
        row("b", "1 photo saved in Zermatt. The copy got no position.", true);
        row("sfs", "2 of 3 saved. 1 could not be written.", false);
        row("ff", "0 of 2 saved. 2 could not be written.", false);
        row("sm", "1 of 2 saved. 1 was left out: its file is missing.", true);
        row("mm", "0 of 2 saved. 2 were left out: their files are missing.", true);
        row("sfm", "1 of 3 saved. 1 could not be written. 1 was left out: its file is missing.",
            false);
        row("snn", "Cancelled: 1 of 3 saved.", false);
        row("sfnm",
            "Cancelled: 1 of 4 saved. 1 could not be written. 1 was left out: its file is missing.",
            false);
        row("ss", "2 of 2 saved. The copies may not all be on the disk: I/O error.", false,
            "I/O error");
    }

    void sumsUp() {
        QFETCH(QByteArray, photos);
        QFETCH(QByteArray, notOnDisk);
        SaveOutcome outcome;
        outcome.notOnDisk = notOnDisk.toStdString();
        for (const char letter : photos) {
            SavedPhoto &photo = outcome.photos.emplace_back();
            photo.status = letter == 's' || letter == 'b' ? Status::Saved
                           : letter == 'f'                ? Status::Failed
                           : letter == 'm'                ? Status::Skipped
                                                          : Status::Stopped;
            photo.hasPosition = letter != 'b';
        }
        const SaveSum sum = sumOf(outcome);
        QTEST(QByteArray::fromStdString(sumText(sum, "/home/a/Zermatt")), "text");
        QTEST(sum.isWhole(), "isWhole");
    }

    void tellsOfASearch_data() {
        QTest::addColumn<std::string>("made");
        QTest::addColumn<std::string>("expected");
        const auto row = [](const char *name, const std::string &made, const char *expected) {
            QTest::newRow(name) << made << std::string(expected);
        };
        row("itself", searchingText("/media/card", "/media/card"), "Searching card…");
        row("below", searchingText("/media/card", "/media/card/DCIM/100CANON"),
            "Searching DCIM/100CANON…");
        row("root", searchingText("/", "/"), "Searching /…");
        row("below the root", searchingText("/", "/media"), "Searching media…");
        row("some", foundText(2, 3), "2 of 3 found.");
        row("none", foundText(0, 3), "None of the 3 was found there.");
        row("all", foundText(3, 3), "All 3 found.");
        row("the one", foundText(1, 1), "The photo was found.");
    }
    void tellsOfASearch() {
        QFETCH(std::string, made);
        QTEST(made, "expected");
    }
};

QTEST_GUILESS_MAIN(WordsTest)
#include "words_test.moc"
