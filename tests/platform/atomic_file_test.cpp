#include "platform/atomic_file.h"

#include <QTemporaryDir>
#include <QTest>

#include <fstream>
#include <limits>
#include <sstream>
#include <sys/stat.h>

using namespace pinmora;
namespace fs = std::filesystem;

namespace {

constexpr std::size_t megabyte = std::size_t{1} << 20U;

std::string contents(const fs::path &file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

void put(const fs::path &file, std::string_view bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

std::string madeBytes(std::size_t size) {
    std::string bytes;
    while (bytes.size() < size) {
        bytes += std::to_string(bytes.size()) + std::string(997, '\0');
    }
    bytes.resize(size);
    return bytes;
}

std::vector<std::string> names(const fs::path &folder) {
    std::vector<std::string> found;
    for (const auto &entry : fs::directory_iterator(folder)) {
        found.push_back(entry.path().filename());
    }
    return found;
}

enum class Step { None, Create, SetMode, Write, Sync, Close, Rename, SyncFolder };

/// The real file system, but for one step that fails, and limits on what a write can do.
class TroubledFileSystem : public FileSystem {
public:
    Step fails = Step::None;
    std::size_t room = std::numeric_limits<std::size_t>::max();       ///< bytes that can be written
    std::size_t mostAtOnce = std::numeric_limits<std::size_t>::max(); ///< by one call
    int takenNames = 0;           ///< how many temporary names are taken
    std::uint64_t givenEarly = 0; ///< bytes that the disk was given to work on before the sync

    static std::error_code trouble() { return std::make_error_code(std::errc::io_error); }

    std::error_code createNew(const fs::path &path, mode_t mode, FileDescriptor &file) override {
        if (takenNames-- > 0) {
            return std::make_error_code(std::errc::file_exists);
        }
        return at(Step::Create, [&] { return FileSystem::createNew(path, mode, file); });
    }
    std::error_code setMode(int file, mode_t mode) override {
        return at(Step::SetMode, [&] { return FileSystem::setMode(file, mode); });
    }
    std::error_code write(int file, std::string_view bytes, std::size_t &written) override {
        bytes = bytes.substr(0, std::min(room, mostAtOnce));
        if (bytes.empty()) {
            return trouble();
        }
        const auto error = FileSystem::write(file, bytes, written);
        room -= written;
        return error;
    }
    void startWriteBack(int, std::uint64_t offset, std::uint64_t length) override {
        QCOMPARE(offset, givenEarly);
        givenEarly += length;
    }
    std::error_code sync(int file) override {
        return at(Step::Sync, [&] { return FileSystem::sync(file); });
    }
    std::error_code close(FileDescriptor &file) override {
        return at(Step::Close, [&] { return FileSystem::close(file); });
    }
    std::error_code rename(const fs::path &from, const fs::path &to) override {
        return at(Step::Rename, [&] { return FileSystem::rename(from, to); });
    }
    std::error_code syncFolder(const fs::path &folder) override {
        return at(Step::SyncFolder, [&] { return FileSystem::syncFolder(folder); });
    }

private:
    template <class Call>
    std::error_code at(Step step, Call call) {
        return step == fails ? trouble() : call();
    }
};

} // namespace

Q_DECLARE_METATYPE(Step)

class AtomicFileTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> room_;
    fs::path folder_;
    fs::path target_;

private Q_SLOTS:
    void init() {
        room_ = std::make_unique<QTemporaryDir>();
        folder_ = room_->path().toStdString();
        target_ = folder_ / "Pinmora.xml";
    }

    void bytesArrive_data() {
        QTest::addColumn<std::size_t>("size");
        QTest::addColumn<std::size_t>("piece");
        for (const std::size_t size : {std::size_t{0}, std::size_t{1}, megabyte - 1, megabyte,
                                       megabyte + 1, 13 * megabyte + 7}) {
            for (const std::size_t piece : {std::size_t{60001}, 2 * megabyte + 1}) {
                QTest::addRow("%zu by %zu", size, piece) << size << piece;
            }
        }
    }

    void bytesArrive() {
        QFETCH(std::size_t, size);
        QFETCH(std::size_t, piece);
        const std::string bytes = madeBytes(size);
        TroubledFileSystem files;
        AtomicFile file(files);
        QCOMPARE(file.open(target_), std::error_code{});
        for (std::string_view rest = bytes; !rest.empty();
             rest.remove_prefix(std::min(piece, rest.size()))) {
            QCOMPARE(file.write(rest.substr(0, piece)), std::error_code{});
        }
        QVERIFY(files.givenEarly + 10 * megabyte >= size); // what the sync is left with
        QVERIFY(!fs::exists(target_));
        QCOMPARE(file.commit(), std::error_code{});
        QVERIFY(contents(target_) == bytes);
        QCOMPARE(names(folder_), std::vector<std::string>{"Pinmora.xml"});
    }

    void shortWritesAreContinued() {
        const std::string bytes = madeBytes(30000);
        TroubledFileSystem files;
        files.mostAtOnce = 7;
        QCOMPARE(writeAtomically(target_, bytes, files), std::error_code{});
        QVERIFY(contents(target_) == bytes);
    }

    void failureLeavesTheOldFile_data() {
        QTest::addColumn<Step>("step");
        QTest::addColumn<std::size_t>("room");
        const std::size_t all = 10 * megabyte;
        QTest::newRow("open") << Step::Create << all;
        QTest::newRow("permissions") << Step::SetMode << all;
        for (const std::size_t room :
             {std::size_t{0}, std::size_t{1}, megabyte, 2 * megabyte + 5, 3 * megabyte - 1}) {
            QTest::addRow("write %zu bytes", room) << Step::Write << room;
        }
        QTest::newRow("sync") << Step::Sync << all;
        QTest::newRow("close") << Step::Close << all;
        QTest::newRow("rename") << Step::Rename << all;
    }

    void failureLeavesTheOldFile() {
        QFETCH(Step, step);
        QFETCH(std::size_t, room);
        TroubledFileSystem files;
        files.fails = step;
        files.room = room;
        for (const char *old : {"the old content", static_cast<const char *>(nullptr)}) {
            fs::remove(target_);
            if (old) {
                put(target_, old);
            } else if (step == Step::SetMode) {
                continue; // a new file has the usual ones
            }
            {
                AtomicFile file(files);
                const auto opened = file.open(target_);
                QCOMPARE(opened == TroubledFileSystem::trouble(),
                         step == Step::Create || step == Step::SetMode);
                file.write(madeBytes(3 * megabyte));
                QCOMPARE(file.commit(), TroubledFileSystem::trouble());
                QVERIFY(!file.isInPlace());
                QVERIFY(names(folder_).size() == (old ? 1U : 0U));
                // It stays a failure, whatever is tried next.
                files.fails = Step::None;
                files.room = 10 * megabyte;
                QCOMPARE(file.write("more"), TroubledFileSystem::trouble());
                QCOMPARE(file.commit(), TroubledFileSystem::trouble());
                files.fails = step;
                files.room = room;
            }
            QCOMPARE(names(folder_).size(), old ? 1U : 0U);
            QCOMPARE(contents(target_), old ? old : "");
        }
    }

    void folderThatCannotBeSynced() {
        put(target_, "old");
        TroubledFileSystem files;
        files.fails = Step::SyncFolder;
        AtomicFile file(files);
        QCOMPARE(file.open(target_), std::error_code{});
        file.write("new");
        QCOMPARE(file.commit(), TroubledFileSystem::trouble());
        QVERIFY(file.isInPlace());
        QCOMPARE(contents(target_), "new");
        QCOMPARE(names(folder_).size(), 1U);
    }

    void withoutCommitNothingHappens() {
        put(target_, "old");
        {
            AtomicFile file;
            QCOMPARE(file.open(target_), std::error_code{});
            file.write(madeBytes(2 * megabyte));
            QCOMPARE(contents(target_), "old");
            const auto present = names(folder_);
            QCOMPARE(present.size(), 2U);
            const std::string temporary = std::max(present[0], present[1]) == "Pinmora.xml"
                                              ? std::min(present[0], present[1])
                                              : "";
            QVERIFY(temporary.starts_with(".Pinmora.xml."));
            QCOMPARE(temporary.size(), std::string(".Pinmora.xml.123456").size());
        }
        QCOMPARE(contents(target_), "old");
        QCOMPARE(names(folder_).size(), 1U);
    }

    void leftTemporariesAreRemoved() {
        const std::vector<std::string> others{".Pinmora.xml.abc12",  ".Pinmora.xml.abc1234",
                                              ".Pinmora.xml.abc.23", ".Pinmora.abcdef",
                                              "Pinmora.xml.abcdef",  ".pinmora.xml.abcdef"};
        put(target_, "old");
        for (const std::string &name : others) {
            put(folder_ / name, "somebody's");
        }
        put(folder_ / ".Pinmora.xml.abc123", "half");
        put(folder_ / ".Pinmora.xml.zzzzzz", "half");
        fs::create_directory(folder_ / "elsewhere");
        fs::create_symlink("../Pinmora.xml", folder_ / "elsewhere" / "link");
        removeLeftTemporaries(folder_ / "elsewhere" / "link");
        QCOMPARE(names(folder_).size(), others.size() + 2);
        removeLeftTemporaries(folder_ / "none" / "x");
    }

    void takenNamesArePassedOver() {
        TroubledFileSystem files;
        files.takenNames = 5;
        QCOMPARE(writeAtomically(target_, "new", files), std::error_code{});
        QCOMPARE(contents(target_), "new");
    }

    void permissionsAreKept() {
        for (const mode_t mode : {0600U, 0664U, 0755U}) {
            put(target_, "old");
            QCOMPARE(::chmod(target_.c_str(), mode), 0);
            QCOMPARE(writeAtomically(target_, "new"), std::error_code{});
            struct stat state {};
            QCOMPARE(::stat(target_.c_str(), &state), 0);
            QCOMPARE(state.st_mode & 07777U, mode);
        }
    }

    void linksStay_data() {
        QTest::addColumn<bool>("dangling");
        QTest::newRow("to a file") << false;
        QTest::newRow("to nothing") << true;
    }

    void linksStay() {
        QFETCH(bool, dangling);
        const fs::path elsewhere = folder_ / "elsewhere";
        fs::create_directory(elsewhere);
        if (!dangling) {
            put(elsewhere / "library", "old");
        }
        fs::create_symlink("elsewhere/library", folder_ / "between"); // seen from its own folder
        fs::create_symlink(folder_ / "between", target_);
        QCOMPARE(writeAtomically(target_, "new"), std::error_code{});
        QVERIFY(fs::is_symlink(target_) && fs::is_symlink(folder_ / "between"));
        QVERIFY(fs::is_regular_file(fs::symlink_status(elsewhere / "library")));
        QCOMPARE(contents(elsewhere / "library"), "new");
        QCOMPARE(names(elsewhere).size(), 1U);
    }

    void targetsThatAreRefused() {
        fs::create_symlink("Pinmora.xml", target_); // to itself
        QCOMPARE(writeAtomically(target_, "new"), std::errc::too_many_symbolic_link_levels);
        fs::remove(target_);
        fs::create_directory(target_);
        QCOMPARE(writeAtomically(target_, "new"), std::errc::is_a_directory);
        fs::remove(target_);
        QCOMPARE(::mkfifo(target_.c_str(), 0600), 0);
        QCOMPARE(writeAtomically(target_, "new"), std::errc::not_supported);
        QCOMPARE(names(folder_).size(), 1U);
        QCOMPARE(writeAtomically(folder_ / "none" / "x", "new"),
                 std::errc::no_such_file_or_directory);
    }
};

QTEST_APPLESS_MAIN(AtomicFileTest)
#include "atomic_file_test.moc"
