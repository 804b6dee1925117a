#include "store/library.h"

#include "files.h"
#include "persistence/undo_group.h"
#include "platform/told_files.h"
#include "rows.h"
#include "store/degrees.h"
#include "store/image_data.h"
#include "store/offset.h"
#include "store/start_records.h"

#include <QTemporaryDir>

using namespace pinmora;
using namespace pinmora::test;
namespace fs = std::filesystem;

namespace {

/// A run of the program, as far as its library goes.
struct Run {
    explicit Run(FileSystem &files = realFileSystem()) : library(notifications, errors, files) {}

    Context &context() { return library.managedObjectContext(); }
    /// A track with some points.
    track &addTrack(int points) {
        auto &made = context().insert<track>();
        for (int i = 0; i < points; ++i) {
            auto &point = context().insert<track_part>();
            point.setPoint_id(i);
            point.setLat("47." + std::to_string(i));
            point.setTrack(&made);
        }
        library.windowWillReturnUndoManager(window).closeStep();
        return made;
    }

    NotificationCentre notifications;
    Window window;
    ErrorSheet errors{[this]() -> Window & { return window; }};
    std::vector<std::string> messages; ///< what the error sheet has shown
    Connection heard =
        errors.opened.connect([this] { messages.push_back(errors.errorText.text.get()); });
    Library library;
};

/// Writes down what it is told.
struct Diary : UnsavedWork {
    void willSave(std::string_view state) override { told.push_back("will " + std::string(state)); }
    void didSave(std::string_view state) override { told.push_back("did " + std::string(state)); }
    bool willEmptyStore() override {
        told.push_back("empty, now " + contents(file).substr(0, 5));
        return agrees;
    }
    bool agrees = true;
    fs::path file;
    std::vector<std::string> told;
};

} // namespace

class LibraryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", folder->path().toUtf8());
        file = fs::path(folder->path().toStdString()) / "Pinmora" / "Pinmora.xml";
    }

    void everythingIsMadeWhenItIsFirstAskedFor() {
        Run run;
        QCOMPARE(run.library.applicationSupportFolder(), file.parent_path());
        run.library.managedObjectModel();
        QVERIFY(!fs::exists(file.parent_path()));
        QVERIFY(!run.library.hasManagedObjectContext());
        Context &context = run.context();
        QVERIFY(fs::is_directory(file.parent_path()) && !fs::exists(file));
        QVERIFY(!context.hasChanges() && context.count<image>() == 0);
        QCOMPARE(&run.context(), &context);
        QCOMPARE(&run.library.windowWillReturnUndoManager(run.window), context.undoManager());
        QVERIFY(run.messages.empty());
    }

    void aLibraryOutlivesTheProgram() {
        {
            Run run;
            const StartRecords start = makeStartRecords(run.context());
            start.currentPicture.setName("shown");
            start.shownPosition.setDegree_lat(47.5);
            QVERIFY(!run.library.windowWillReturnUndoManager(run.window).canUndo());
            start.clockOffset.setHours(2);
            run.addTrack(3);
            auto &photo = run.context().insert<image>();
            photo.updateLatAndLon({"47.1", "8.50"});
            run.addTrack(2).points().front()->setTrack(
                run.library.arrays().gpsArray.arrangedObjects().front()->track());
            QVERIFY(run.library.saveAction());
            QVERIFY(!run.context().hasChanges());
            photo.setCity("Zug"); // not saved
        }
        Run run;
        QCOMPARE(run.context().count<degrees>() + run.context().count<image_data>(), 0u);
        QVERIFY(makeStartRecords(run.context()).clockOffset.hours() == 2);
        QCOMPARE(run.context().count<offset>(), 1u);
        const image &photo = **run.context().records<image>().begin();
        QVERIFY(photo.lon() == "8.50" && !photo.city().hasValue() && !photo.getHasChanges());
        std::vector<std::int32_t> order;
        for (const track_part *point : run.library.arrays().gpsArray.arrangedObjects()) {
            order.push_back(point->point_id().value());
        }
        QCOMPARE(order, (std::vector<std::int32_t>{0, 1, 2, 0, 1}));
        const auto &tracks = run.library.arrays().gpsTrackArrayController.arrangedObjects();
        QVERIFY(tracks[0]->points().size() == 4 && tracks[1]->points().size() == 1);
        QVERIFY(run.library.hasTrackData());
        QVERIFY(!run.library.windowWillReturnUndoManager(run.window).canUndo());
    }

    void whatCannotBeReadIsToldOnceAndNeverWrittenOver_data() {
        const auto row = rows<std::string>();
        row("damaged", "<pinmora-library version=\"1\"");
        row("of another program", "<?xml version=\"1.0\"?><gpx></gpx>");
        row("blank", "\n");
    }

    void whatCannotBeReadIsToldOnceAndNeverWrittenOver() {
        const auto [damage] = fetch<std::string>();
        fs::create_directories(file.parent_path());
        put(file, damage);
        Run run;
        run.addTrack(1);
        run.library.persistentStoreCoordinator();
        QCOMPARE(run.messages.size(), 1u);
        QVERIFY(run.messages.front().find(file.string()) != std::string::npos);
        QVERIFY(!run.library.saveAction());
        QCOMPARE(run.messages.size(), 2u);
        QVERIFY(run.context().hasChanges());
        run.library.deleteTempStore();
        run.library.emptyTempStore();
        QCOMPARE(contents(file), damage);
    }

    void lookingAtTheLibraryWhileItsFaultIsTold() {
        fs::create_directories(file); // a folder is no library
        Run run;
        UndoManager *seen = nullptr;
        const Connection looking = run.errors.opened.connect(
            [&] { seen = &run.library.windowWillReturnUndoManager(run.window); });
        Context &context = run.context();
        QVERIFY(seen && context.undoManager() == seen);
    }

    void aSecondProcessIsKeptAway() {
        Run first;
        first.addTrack(1);
        {
            Run second;
            second.addTrack(2);
            QCOMPARE(second.messages.size(), 1u);
            QVERIFY(!second.library.saveAction());
        }
        QVERIFY(first.library.saveAction());
        QVERIFY(first.messages.empty());
    }

    void linksLeadToTheLibrary() {
        const fs::path disk = file.parent_path().parent_path() / "disk";
        fs::create_directories(file.parent_path());
        fs::create_symlink(disk / "Pinmora.xml", file);
        {
            Run away; // the disk is not there
            away.context();
            QCOMPARE(away.messages.size(), 1u);
            QVERIFY(!away.library.saveAction());
        }
        fs::create_directory(disk);
        put(disk / "Pinmora.xml", "");
        Run run;
        run.addTrack(1);
        QVERIFY(run.library.saveAction());
        QVERIFY(fs::is_symlink(file) && fs::file_size(disk / "Pinmora.xml") > 0);
        const fs::path other = file.parent_path().parent_path() / "other" / "Pinmora";
        fs::create_directories(other);
        fs::create_symlink(disk / "Pinmora.xml", other / "Pinmora.xml");
        qputenv("XDG_DATA_HOME", other.parent_path().c_str());
        Run second;
        second.context();
        QCOMPARE(second.messages.size(), 1u); // it is the same library
    }

    void aSaveThatFailsLosesNothing() {
        bool isFull = false;
        ToldFiles disk([&](ToldFiles::Call call) {
            return isFull && call == ToldFiles::Call::Write
                       ? ToldFiles::Answer(std::make_error_code(std::errc::no_space_on_device))
                       : std::nullopt;
        });
        Run run(disk);
        Diary diary;
        run.library.setUnsavedWork(&diary);
        run.addTrack(2);
        QVERIFY(run.library.saveAction());
        const std::string saved = contents(file);
        run.addTrack(3);
        isFull = true;
        QVERIFY(!run.library.saveAction());
        QCOMPARE(run.messages.size(), 1u);
        QCOMPARE(contents(file), saved);
        QVERIFY(run.context().hasChanges());
        QCOMPARE(diary.told.size(), 3u); // will, did; will
        isFull = false;
        QVERIFY(run.library.saveAction());
        QCOMPARE(diary.told.back().substr(4),
                 run.library.persistentStoreCoordinator().storeState());
        QVERIFY(diary.told[0] != diary.told[2]);
    }

    void gpsDataIsRemovedAndComesBack() {
        Run run;
        QVERIFY(!run.library.hasTrackData());
        run.context().insert<image>();
        run.addTrack(5);
        run.addTrack(3);
        run.library.GPSFileButton.enabled.set(false);
        auto &undo = run.library.windowWillReturnUndoManager(run.window);
        const auto points = run.context().fetch<track_part>();

        run.library.removeAllGPSData();
        QCOMPARE(run.context().count<track>() + run.context().count<track_part>(), 0u);
        QVERIFY(!run.library.hasTrackData() && run.library.GPSFileButton.enabled.get());
        QCOMPARE(run.context().count<image>(), 1u);
        undo.undo();
        QVERIFY(run.context().fetch<track_part>() == points && run.library.hasTrackData());
        undo.redo();
        QVERIFY(!run.library.hasTrackData());
    }

    void emptyingTheFileLeavesTheWorkInMemory() {
        Run run;
        Diary diary;
        diary.file = file;
        run.library.setUnsavedWork(&diary);
        run.addTrack(2);
        run.library.saveAction();
        diary.agrees = false;
        run.library.deleteTempStore();
        QVERIFY(fs::file_size(file) > 0);
        diary.agrees = true;
        run.library.deleteTempStore();
        QVERIFY(fs::exists(file) && fs::file_size(file) == 0);
        QCOMPARE(diary.told.back(), "empty, now <?xml"); // told in time
        QCOMPARE(run.context().count<track_part>(), 2u);
        QCOMPARE(run.library.persistentStoreCoordinator().storeState(),
                 std::string(emptyStoreState));
        QVERIFY(run.library.saveAction());
        QVERIFY(fs::file_size(file) > 0);
        run.library.deleteTempStore();
        QVERIFY(run.messages.empty());
    }

    void emptyingTheStoreDeletesThePhotos() {
        {
            Run run;
            run.context().insert<image>();
            run.addTrack(1);
            run.library.emptyTempStore();
            QCOMPARE(run.context().count<image>(), 0u);
            run.library.windowWillReturnUndoManager(run.window).undo();
            QCOMPARE(run.context().count<image>(), 1u);
        }
        Run run;
        QCOMPARE(run.context().count<image>(), 0u);
        QCOMPARE(run.context().count<track_part>(), 1u);
    }

private:
    std::unique_ptr<QTemporaryDir> folder;
    fs::path file;
};

QTEST_GUILESS_MAIN(LibraryTest)
#include "library_test.moc"
