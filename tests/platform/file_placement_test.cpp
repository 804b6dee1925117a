#include "files.h"
#include "platform/file_placement.h"
#include "rows.h"

#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

namespace {

std::string attribute(const fs::path &file, const char *name) {
    std::string value(100, '\0');
    const ssize_t size = getxattr(file.c_str(), name, value.data(), value.size());
    value.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return value;
}

bool same(const timespec &a, const timespec &b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

/// No file of this process may grow beyond `bytes`, as on a disk that is full.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_{};
};

} // namespace

class FilePlacementTest : public QObject {
    Q_OBJECT

    fs::path folder_;
    fs::path source_;
    fs::path target_;

private Q_SLOTS:
    void init() {
        QTemporaryDir room;
        room.setAutoRemove(false); // Qt does not find names that are not UTF-8
        folder_ = room.path().toStdString();
        source_ = folder_ / "source \xE9.jpg"; // names are bytes
        target_ = folder_ / "target.jpg";
    }

    void cleanup() { fs::remove_all(folder_); }

    void bytesArrive_data() {
        const auto row = rowsByValue<int>();
        for (const int size : {0, 1, 4096, 131073, 3000001}) {
            row(size);
        }
    }

    void bytesArrive() {
        const auto [size] = fetch<int>();
        std::string bytes(static_cast<std::size_t>(size), '\0');
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            bytes[i] = static_cast<char>(i * i >> 7U);
        }
        put(source_, bytes);
        QCOMPARE(copyFile(source_, target_), std::error_code{});
        QVERIFY(contents(target_) == bytes);
        QVERIFY(contents(source_) == bytes);
    }

    /// Its size is told as 0, and the kernel copies nothing of it by itself.
    void fileThatOnlyReadingShows() {
        QCOMPARE(copyFile("/proc/self/cmdline", target_), std::error_code{});
        QCOMPARE(contents(target_), contents("/proc/self/cmdline"));
    }

    void permissionsAttributesAndTimesAreKept() {
        put(source_, "photo");
        setxattr(source_.c_str(), "user.rating", "5\0x", 3, 0);
        setxattr(source_.c_str(), "user.empty", "", 0, 0);
        const FileTimes times{{1000000000, 123456789}, {1210601109, 987654321}};
        QCOMPARE(writeFileTimes(source_, times), std::error_code{});
        QCOMPARE(chmod(source_.c_str(), 04541), 0);

        QCOMPARE(copyFile(source_, target_), std::error_code{});

        struct stat state {};
        QCOMPARE(stat(target_.c_str(), &state), 0);
        QCOMPARE(state.st_mode & 07777U, 0541U); // who copies does not lend out his identity
        QCOMPARE(attribute(target_, "user.rating"), attribute(source_, "user.rating"));
        QCOMPARE(listxattr(target_.c_str(), nullptr, 0), listxattr(source_.c_str(), nullptr, 0));
        FileTimes kept;
        QCOMPARE(readFileTimes(target_, kept), std::error_code{});
        QVERIFY(same(kept.modification, times.modification));
        QVERIFY(same(kept.access, times.access));
    }

    void existingTargetStays_data() {
        const auto row = rows<bool>();
        row("file", false);
        row("dangling link", true);
    }

    void existingTargetStays() {
        const auto [dangling] = fetch<bool>();
        put(source_, "new");
        if (dangling) {
            fs::create_symlink(folder_ / "nowhere", target_);
        } else {
            put(target_, "old");
        }
        for (const auto &error :
             {copyFile(source_, target_), placeWithoutReplacing(source_, target_),
              placeByReservation(source_, target_)}) {
            QCOMPARE(error, std::errc::file_exists);
        }
        QCOMPARE(contents(source_), "new");
        QCOMPARE(contents(target_), dangling ? "" : "old");
        QVERIFY(fs::is_symlink(target_) == dangling && !fs::exists(folder_ / "nowhere"));
    }

    void failureInTheMiddleLeavesNothing() {
        put(source_, std::string(300000, 'x'));
        std::error_code error;
        {
            const SmallDisk disk(200000);
            error = copyFile(source_, target_);
        }
        QCOMPARE(error, std::errc::file_too_large);
        QCOMPARE(entries(folder_), 1U);
    }

    void sourcesThatAreNoFiles() {
        QCOMPARE(copyFile(source_, target_), std::errc::no_such_file_or_directory);
        QCOMPARE(copyFile(folder_, target_), std::errc::is_a_directory);
        QCOMPARE(copyFile("/dev/zero", target_), std::errc::invalid_argument);
        QCOMPARE(mkfifo(source_.c_str(), 0600), 0);
        QCOMPARE(copyFile(source_, target_), std::errc::invalid_argument); // and does not hang
        QVERIFY(!fs::exists(target_));
    }

    void placing_data() {
        const auto row = rows<bool>();
        row("rename", false);
        row("reservation", true);
    }

    void placing() {
        const auto [byReservation] = fetch<bool>();
        const auto place = byReservation ? placeByReservation : placeWithoutReplacing;
        QCOMPARE(place(source_, target_), std::errc::no_such_file_or_directory);
        QCOMPARE(entries(folder_), 0U); // no reservation is left
        put(source_, "photo");
        QCOMPARE(place(source_, target_), std::error_code{});
        QCOMPARE(contents(target_), "photo");
        QCOMPARE(entries(folder_), 1U);
        QCOMPARE(place(target_, folder_ / "none" / "x"), std::errc::no_such_file_or_directory);
        QCOMPARE(contents(target_), "photo");
    }

    void timesOfAMissingFile() {
        FileTimes times;
        QCOMPARE(readFileTimes(source_, times), std::errc::no_such_file_or_directory);
        QCOMPARE(writeFileTimes(source_, times), std::errc::no_such_file_or_directory);
    }
};

QTEST_APPLESS_MAIN(FilePlacementTest)
#include "file_placement_test.moc"
