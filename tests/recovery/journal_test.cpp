#include "files.h"
#include "recovery/journal_file.h"
#include "recovery/journal_records.h"
#include "recovery/journal_thread.h"
#include "recovery/serial_ranges.h"
#include "recovery/test_files.h"

#include <QTemporaryDir>
#include <QTest>

#include <random>
#include <set>

using namespace pinmora;
namespace fs = std::filesystem;

namespace {

using Payloads = std::vector<std::string>;

std::string fileOf(const Payloads &payloads) {
    std::string bytes(journalHeading);
    for (const std::string &payload : payloads) {
        appendFrame(bytes, FrameKind::Changed, payload);
    }
    return bytes;
}

struct Read {
    Payloads payloads;
    bool isJournal = false;
    bool isTorn = false;
};

Read read(const fs::path &file) {
    Read read;
    JournalFile journal;
    read.isJournal = !journal.open(file);
    for (const Frame *frame = nullptr; read.isJournal && (frame = journal.next());) {
        read.payloads.push_back(frame->payload);
    }
    read.isTorn = read.isJournal && journal.isTorn();
    return read;
}

Payloads firstOf(const Payloads &all, std::size_t count) {
    return {all.begin(), all.begin() + static_cast<std::ptrdiff_t>(count)};
}

/// How many frames end at or before this place in the file.
std::size_t framesBefore(const Payloads &payloads, std::size_t place) {
    std::size_t count = 0;
    std::size_t end = journalHeading.size();
    while (count < payloads.size() && (end += frameHeadSize + payloads[count].size()) <= place) {
        ++count;
    }
    return count;
}

} // namespace

/// The file of frames, and the thread that writes it.
class JournalTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aCutFileEndsBeforeTheCutFrame() {
        const std::string whole = fileOf(payloads_);
        for (std::size_t size = 0; size <= whole.size(); ++size) {
            const Read got = readUpTo(size, whole.substr(0, size));
            QCOMPARE(got.isTorn, got.isJournal && size > fileOf(got.payloads).size());
        }
    }

    void aDamagedFileEndsBeforeTheDamagedFrame() {
        const std::string whole = fileOf(payloads_);
        for (std::size_t place = 0; place < whole.size(); ++place) {
            for (const char damage : {'\x01', '\x80', '\xFF'}) {
                std::string bytes = whole;
                bytes[place] = static_cast<char>(bytes[place] ^ damage);
                const Read got = readUpTo(place, bytes);
                QCOMPARE(got.isTorn, got.isJournal);
            }
        }
    }

    void framesComeBackAsTheyWereGiven() {
        Payloads given{"start"};
        std::mt19937 random(7);
        {
            JournalThread thread(path("many"), given.front(), realFileSystem());
            for (int i = 0; i < 300; ++i) {
                std::string block = thread.spareBlock();
                QCOMPARE(block.size(), 65536U);
                block.resize(random() % block.size());
                std::fill(block.begin(), block.end(), static_cast<char>(i));
                given.push_back(block);
                given.push_back(std::to_string(i));
                thread.append({{FrameKind::ImportBytes, std::move(block)},
                               {FrameKind::Changed, given.back()}});
                if (i % 100 == 50) {
                    QVERIFY(thread.flush());
                    QCOMPARE(read(path("many")).payloads, given);
                }
            }
        }
        QCOMPARE(read(path("many")).payloads, given);
    }

    void whatIsGivenReachesTheDiskUnasked() {
        test::FailingFiles files;
        JournalThread thread(path("unasked"), "start", files);
        QVERIFY(thread.flush());
        const int syncs = files.syncs;
        thread.append({{FrameKind::Changed, "by itself"}});
        QTRY_VERIFY_WITH_TIMEOUT(files.syncs > syncs, 5000);
        QCOMPARE(read(path("unasked")).payloads, (Payloads{"start", "by itself"}));
    }

    void anAbandonedJournalGetsNothingMore() {
        {
            JournalThread thread(path("abandoned"), "start", realFileSystem());
            QVERIFY(thread.flush());
            thread.abandon();
            thread.append({{FrameKind::Changed, "late"}});
        }
        QCOMPARE(read(path("abandoned")).payloads, Payloads{"start"});
    }

    /// Each call of the file system fails in turn, and all after it.
    void aFailureIsToldAndLosesNothingBeforeIt() {
        const std::string old = fileOf({"old"});
        bool hasSucceeded = false;
        for (int calls = 0; !hasSucceeded; ++calls) {
            QVERIFY(calls < 30);
            test::put(path("journal"), old);
            test::FailingFiles files;
            files.callsLeft = calls;
            Payloads onDisk;
            {
                JournalThread thread(path("journal"), "start", files);
                for (const char *step : {"start", "a", "b"}) {
                    if (*step != 's') {
                        thread.append({{FrameKind::Changed, step}});
                    }
                    if (thread.flush()) {
                        onDisk.push_back(step);
                        QVERIFY(files.callsLeft >= 0); // no call has failed
                    }
                }
                hasSucceeded = onDisk.size() == 3;
                QCOMPARE(thread.error() == test::FailingFiles::failure(), !hasSucceeded);
            }
            const Read got = read(path("journal"));
            const bool isOld = got.payloads == Payloads{"old"};
            QVERIFY(isOld ? onDisk.empty() : got.payloads.size() >= onDisk.size());
            QVERIFY(isOld ||
                    firstOf(Payloads{"start", "a", "b"}, got.payloads.size()) == got.payloads);
        }
    }

    void serialRangesAreASet() {
        std::mt19937 random(4);
        const auto number = [&](std::uint32_t limit) {
            return static_cast<std::uint32_t>(random() % limit);
        };
        for (int round = 0; round < 200; ++round) {
            SerialRanges ranges[2];
            std::set<std::uint32_t> plain[2];
            for (int step = 0; step < 30; ++step) {
                const std::size_t which = number(2);
                const std::uint32_t first = number(40);
                const std::uint32_t last = first + number(number(10) + 1);
                const bool adds = number(3) != 0;
                adds ? ranges[which].add(first, last) : ranges[which].remove(first, last);
                for (std::uint32_t serial = first; serial <= last; ++serial) {
                    adds ? void(plain[which].insert(serial)) : void(plain[which].erase(serial));
                }
            }
            SerialRanges difference = ranges[0];
            difference.remove(ranges[1]);
            SerialRanges sum = ranges[0];
            sum.add(ranges[1]);
            const SerialRanges common = ranges[0].common(ranges[1]);
            for (std::uint32_t serial = 0; serial < 60; ++serial) {
                const bool in0 = plain[0].contains(serial);
                const bool in1 = plain[1].contains(serial);
                QCOMPARE(ranges[0].contains(serial), in0);
                QCOMPARE(sum.contains(serial), in0 || in1);
                QCOMPARE(common.contains(serial), in0 && in1);
                QCOMPARE(difference.contains(serial), in0 && !in1);
            }
            QCOMPARE(ranges[0].count(), plain[0].size());
            QVERIFY(SerialRanges::fromText(ranges[0].text()) == ranges[0]);
            for (auto row = sum.rows().begin(); std::next(row) != sum.rows().end(); ++row) {
                QVERIFY(std::next(row)->first > row->second + 1);
            }
        }
        for (const char *text : {"x", "1 ", " 1", "1-", "-1", "2-1", "1,2", "4294967296", "1  2"}) {
            QVERIFY2(!SerialRanges::fromText(text), text);
        }
    }

    void onlyWholePayloadsAreRead() {
        ImportFacts facts;
        facts.format = ImportFacts::Format::Nmea;
        facts.path = "/logs/\xFF.log";
        facts.reading = "exact";
        facts.zone = "Europe/Berlin";
        facts.currentYear = 2024;
        facts.activeLog = true;
        facts.trackCount = -1;
        facts.track_partCount = 1'000'000;
        facts.currentTrack = 7;
        facts.lon = "";
        facts.time = "2008";
        facts.date = Date(std::chrono::microseconds(-5));
        const std::string payload = payloadOf(facts);
        QVERIFY(factsFrom(payload) == facts);
        QVERIFY(!factsFrom(payload + '\0'));
        for (std::size_t size = 0; size < payload.size(); ++size) {
            QVERIFY(!factsFrom(payload.substr(0, size)));
        }
    }

private:
    fs::path path(const char *name) const { return fs::path(folder_.path().toStdString()) / name; }
    /// Reads a file that is good up to a place, and checks that all frames before it are there.
    Read readUpTo(std::size_t place, const std::string &bytes) const {
        const Read got = read(test::put(path("journal"), bytes));
        [&] {
            QCOMPARE(got.isJournal, place >= journalHeading.size());
            QCOMPARE(got.payloads, firstOf(payloads_, framesBefore(payloads_, place)));
        }();
        return got;
    }

    const QTemporaryDir folder_;
    const Payloads payloads_{"one", "", std::string(300, '\0'), "<image id=\"1\"/>\n"};
};

QTEST_GUILESS_MAIN(JournalTest)
#include "journal_test.moc"
