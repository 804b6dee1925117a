#include "persistence/context.h"
#include "photos/photo_files.h"
#include "photos/photos.h"
#include "store/image.h"
#include "store/library_model.h"

#include <QTemporaryDir>
#include <QTest>
#include <array>
#include <fstream>
#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace pinmora;
namespace fs = std::filesystem;

namespace {

/// Gives up, for a while, root's right to read everything.
class WithoutPrivilege {
public:
    WithoutPrivilege() {
        ::syscall(SYS_capget, &header_, held_.data());
        auto kept = held_;
        kept[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
        set(kept);
    }
    ~WithoutPrivilege() { set(held_); }

private:
    using Capabilities = std::array<__user_cap_data_struct, 2>;
    void set(const Capabilities &capabilities) {
        if (::syscall(SYS_capset, &header_, capabilities.data()) != 0) {
            qFatal("cannot change the capabilities");
        }
    }
    __user_cap_header_struct header_{_LINUX_CAPABILITY_VERSION_3, 0};
    Capabilities held_{};
};

} // namespace

/// Which files of a folder, or named one by one, become photos; what is said of the others.
class IntakeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aDroppedFolderGivesPhotosAndLogs();
    void aChosenFolderGivesPhotosOnly();
    void onePath_data();
    void onePath();
    void whatMayNotBeReadIsListed();
    void filesThatGoDuringAScanAreMissing();
    void photosLoadedTwiceHaveTwoRecords();

private:
    fs::path in(const char *name) const { return fs::path(folder_->path().toStdString()) / name; }
    void makeFolder();
    /// What became of the files, a line each, paths from the folder on.
    QByteArray outcome() const;

    std::unique_ptr<QTemporaryDir> folder_;
    NotificationCentre notifications_;
    LibraryModel model_{notifications_};
    std::unique_ptr<Context> context_;
    NotingLogs logs_;
    PhotoTypes types_;
    std::unique_ptr<Photos> photos_;
};

void IntakeTest::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    context_ = std::make_unique<Context>(model_);
    logs_ = {};
    photos_ = std::make_unique<Photos>(*context_, logs_, types_);
}

void IntakeTest::cleanup() {
    fs::current_path("/");
    fs::remove_all(folder_->path().toStdString()); // Qt leaves names that are not UTF-8
}

void IntakeTest::makeFolder() {
    fs::create_directories(in("sub"));
    fs::create_directories(in("folder.jpg"));
    fs::create_directories(in(".hidden"));
    for (const char *name : {"IMG_10.jpg", "IMG_9.jpg", "a.jpg", "b.JPG", "c.Jpg", ".d.jpg",
                             "sub/deep.jpg", "folder.jpg/deep.jpg", "\xff.jpg"}) {
        writePhoto(in(name));
    }
    for (const char *name : {"e.txt", "f.gpx", "notes.txt", "list.md", "text.jpg", ".hidden.txt"}) {
        std::ofstream(in(name)) << "some text\n";
    }
    fs::create_symlink("sub", in("linked.jpg"));
    fs::create_symlink("a.jpg", in("link.jpg"));
    fs::create_symlink("gone", in("nowhere.jpg"));
    fs::create_symlink("loop.jpg", in("loop.jpg"));
    ::mkfifo(in("pipe.jpg").c_str(), 0600);
    ::mkfifo(in("pipe.txt").c_str(), 0600);
}

QByteArray IntakeTest::outcome() const {
    std::string lines;
    const std::string root = folder_->path().toStdString();
    const auto add = [&lines, &root](const std::string &what, std::string path) {
        path.erase(0, path.starts_with(root) ? root.size() : 0);
        lines += what + " " + path + "\n";
    };
    for (const std::string &path : photos_->report().loaded) {
        add("photo", path);
    }
    for (const std::string &entry : logs_.read) {
        const std::size_t blank = entry.find(' ');
        add(entry.substr(0, blank), entry.substr(blank + 1));
    }
    for (const auto &[path, why] : photos_->report().leftOut) {
        add(std::string(reasonText(why)) + ":", path);
    }
    for (const std::string &path : photos_->report().logsPassedOver) {
        add("no log", path);
    }
    for (const std::string &path : photos_->report().passedOver) {
        add("passed over", path);
    }
    for (const std::string &path : photos_->report().logsNotAsked) {
        add("not asked", path);
    }
    for (const std::string &path : photos_->report().foldersInside) {
        add("folder", path);
    }
    for (const auto &[path, error] : photos_->report().unreadFolders) {
        add(error.message() + ":", path);
    }
    return QByteArray::fromStdString(lines);
}

const QByteArray photosOfFolder = "photo /a.jpg\n"
                                  "photo /b.JPG\n"
                                  "photo /IMG_9.jpg\n"
                                  "photo /IMG_10.jpg\n"
                                  "photo /link.jpg\n"
                                  "photo /\xff.jpg\n";
const QByteArray leftOutOfFolder = "not readable as an image: /loop.jpg\n"
                                   "there is no such file: /nowhere.jpg\n"
                                   "not a regular file: /pipe.jpg\n"
                                   "not readable as an image: /text.jpg\n";

const QByteArray foldersInFolder = "folder /folder.jpg\nfolder /linked.jpg\nfolder /sub\n";

void IntakeTest::aDroppedFolderGivesPhotosAndLogs() {
    makeFolder();
    photos_->processThisPath(folder_->path().toStdString() + "/");
    QCOMPARE(outcome(), photosOfFolder +
                            "found /.hidden.txt\nfound /e.txt\nfound /f.gpx\nfound /notes.txt\n" +
                            leftOutOfFolder + "no log /notes.txt\nno log /pipe.txt\n" +
                            "passed over /c.Jpg\npassed over /list.md\n" + foldersInFolder);
    QCOMPARE(photos_->getTheFilePath(), folder_->path().toStdString());
    std::vector<std::string> recorded;
    for (const image *photo : context_->fetch<image>()) {
        recorded.push_back(photo->full_file_path().string());
    }
    QCOMPARE(recorded, photos_->report().loaded);
    photos_->clearReport();
    logs_.read.clear();
    QCOMPARE(outcome(), QByteArray());
}

void IntakeTest::aChosenFolderGivesPhotosOnly() {
    makeFolder();
    photos_->loadPict(folder_->path().toStdString());
    QCOMPARE(outcome(), photosOfFolder + leftOutOfFolder +
                            "passed over /c.Jpg\npassed over /list.md\n"
                            "not asked /e.txt\nnot asked /f.gpx\n"
                            "not asked /notes.txt\nnot asked /pipe.txt\n" +
                            foldersInFolder);
    QCOMPARE(photos_->getTheFilePath(), folder_->path().toStdString());
}

void IntakeTest::onePath_data() {
    QTest::addColumn<std::string>("path");
    QTest::addColumn<QByteArray>("dropped");
    QTest::addColumn<QByteArray>("chosen");
    const auto row = [](const char *path, const QByteArray &dropped, const QByteArray &chosen) {
        QTest::newRow(*path ? path : "empty") << std::string(path) << dropped << chosen;
    };
    const auto both = [row](const char *path, const QByteArray &outcome) {
        row(path, outcome, outcome);
    };
    const QByteArray unknown = "neither a photo nor a GPS log by its name: ";
    both("a.jpg", "photo /a.jpg\n");
    both("./sub/..//a.jpg", "photo /sub/../a.jpg\n");
    both("linked.jpg", "photo /linked.jpg/deep.jpg\n");
    both(".d.jpg", unknown + "/.d.jpg\n");
    both("c.Jpg", unknown + "/c.Jpg\n");
    both("list.md", unknown + "/list.md\n");
    both("gone", "there is no such file: /gone\n");
    both("gone.jpg", "there is no such file: /gone.jpg\n");
    both("pipe.jpg", "not a regular file: /pipe.jpg\n");
    both("text.jpg", "not readable as an image: /text.jpg\n");
    both("", "there is no such file: \n");
    row("notes.txt", "named /notes.txt\n", "not asked /notes.txt\n");
    row("gone.gpx", "named /gone.gpx\n", "there is no such file: /gone.gpx\n");
}

void IntakeTest::onePath() {
    QFETCH(std::string, path);
    makeFolder();
    fs::current_path(folder_->path().toStdString());
    photos_->processThisPath(path);
    QTEST(outcome(), "dropped");
    photos_->clearReport();
    logs_.read.clear();
    photos_->loadPict(path);
    QTEST(outcome(), "chosen");
}

void IntakeTest::whatMayNotBeReadIsListed() {
    for (const char *folder : {"closed", "barred", "barred/inner"}) {
        fs::create_directory(in(folder));
    }
    writePhoto(in("barred/inner/b.jpg"));
    writePhoto(in("mine.jpg"));
    for (const char *name : {"closed", "barred", "mine.jpg"}) {
        fs::permissions(in(name), fs::perms::none);
    }
    {
        const WithoutPrivilege asAnybody;
        for (const char *name : {"closed", "mine.jpg", "barred/inner/b.jpg"}) {
            photos_->processThisPath(in(name).native());
        }
    }
    QCOMPARE(outcome(), QByteArray("no permission to read it: /mine.jpg\n"
                                   "no permission to read it: /barred/inner/b.jpg\n"
                                   "Permission denied: /closed\n"));
    for (const char *name : {"closed", "barred"}) {
        fs::permissions(in(name), fs::perms::owner_all); // so that they can be removed
    }
}

void IntakeTest::filesThatGoDuringAScanAreMissing() {
    fs::create_directory(in("card"));
    writePhoto(in("card/a.jpg"));
    writePhoto(in("card/c.jpg"));
    std::ofstream(in("card/b.txt")) << "$GPRMC";
    logs_.whenFound = [this] { fs::remove_all(in("card")); };
    photos_->processThisPath(in("card").native());
    QCOMPARE(outcome(), QByteArray("photo /card/a.jpg\n"
                                   "found /card/b.txt\n"
                                   "there is no such file: /card/c.jpg\n"));
}

void IntakeTest::photosLoadedTwiceHaveTwoRecords() {
    writePhoto(in("a.jpg"));
    photos_->processThisPath(in("a.jpg").native());
    photos_->loadPict(in("a.jpg").native());
    QCOMPARE(context_->count<image>(), 2U);
}

QTEST_GUILESS_MAIN(IntakeTest)
#include "intake_test.moc"
