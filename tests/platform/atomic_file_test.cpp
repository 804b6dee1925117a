#include "files.h"
#include "platform/atomic_file.h"
#include "platform/told_files.h"
#include "rows.h"

#include <QTemporaryDir>

#include <sys/stat.h>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

namespace {

constexpr std::size_t megabyte = std::size_t{1} << 20U;

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

using Call = ToldFiles::Call;

/// Has one call fail, and sets limits on what a write can do.
class TroubledFiles : public ToldFiles {
public:
    std::optional<Call> fails;
    std::size_t room = std::numeric_limits<std::size_t>::max(); ///< bytes that can be written
    int takenNames = 0;           ///< how many temporary names are taken
    std::uint64_t givenEarly = 0; ///< bytes that the disk was given to work on before the sync

    TroubledFiles()
        : ToldFiles([this](Call call) -> Answer {
              if (call == Call::CreateNew && takenNames-- > 0) {
                  return std::make_error_code(std::errc::file_exists);
              }
              return call == fails ? Answer(trouble()) : std::nullopt;
          }) {}

    static std::error_code trouble() { return std::make_error_code(std::errc::io_error); }

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
};

} // namespace

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
        const auto row = rowsByValue<std::size_t, std::size_t>();
        for (const std::size_t size : {std::size_t{0}, std::size_t{1}, megabyte - 1, megabyte,
                                       megabyte + 1, 13 * megabyte + 7}) {
            for (const std::size_t piece : {std::size_t{60001}, 2 * megabyte + 1}) {
                row(size, piece);
            }
        }
    }

    void bytesArrive() {
        const auto [size, piece] = fetch<std::size_t, std::size_t>();
        const std::string bytes = madeBytes(size);
        TroubledFiles files;
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
        TroubledFiles files;
        files.mostAtOnce = 7;
        QCOMPARE(writeAtomically(target_, bytes, files), std::error_code{});
        QVERIFY(contents(target_) == bytes);
    }

    void failureLeavesTheOldFile_data() {
        const auto row = rows<Call, std::size_t>();
        const std::size_t all = 10 * megabyte;
        row("open", Call::CreateNew, all);
        row("permissions", Call::SetMode, all);
        for (const std::size_t room :
             {std::size_t{0}, std::size_t{1}, megabyte, 2 * megabyte + 5, 3 * megabyte - 1}) {
            row("write " + std::to_string(room), Call::Write, room);
        }
        row("sync", Call::Sync, all);
        row("close", Call::Close, all);
        row("rename", Call::Rename, all);
    }

    void failureLeavesTheOldFile() {
        const auto [step, room] = fetch<Call, std::size_t>();
        TroubledFiles files;
        files.fails = step;
        files.room = room;
        for (const char *old : {"the old content", static_cast<const char *>(nullptr)}) {
            fs::remove(target_);
            if (old) {
                put(target_, old);
            } else if (step == Call::SetMode) {
                continue; // a new file has the usual ones
            }
            {
                AtomicFile file(files);
                const auto opened = file.open(target_);
                QCOMPARE(opened == TroubledFiles::trouble(),
                         step == Call::CreateNew || step == Call::SetMode);
                file.write(madeBytes(3 * megabyte));
                QCOMPARE(file.commit(), TroubledFiles::trouble());
                QVERIFY(!file.isInPlace());
                QVERIFY(names(folder_).size() == (old ? 1U : 0U));
                // It stays a failure, whatever is tried next.
                files.fails = std::nullopt;
                files.room = 10 * megabyte;
                QCOMPARE(file.write("more"), TroubledFiles::trouble());
                QCOMPARE(file.commit(), TroubledFiles::trouble());
                files.fails = step;
                files.room = room;
            }
            QCOMPARE(names(folder_).size(), old ? 1U : 0U);
            QCOMPARE(contents(target_), old ? old : "");
        }
    }

    void folderThatCannotBeSynced() {
        put(target_, "old");
        TroubledFiles files;
        files.fails = Call::SyncFolder;
        AtomicFile file(files);
        QCOMPARE(file.open(target_), std::error_code{});
        file.write("new");
        QCOMPARE(file.commit(), TroubledFiles::trouble());
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
            const std::string temporary = std::min(present[0], present[1]);
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
        TroubledFiles files;
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
        const auto row = rows<bool>();
        row("to a file", false);
        row("to nothing", true);
    }

    void linksStay() {
        const auto [dangling] = fetch<bool>();
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
