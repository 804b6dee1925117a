#include "outlets/progress_sheet.h"
#include "outlets/status_line.h"
#include "persistence/context.h"
#include "persistence/undo_manager.h"
#include "photos/photo_files.h"
#include "photos/photo_intake.h"
#include "photos/photos.h"
#include "platform/defaults.h"
#include "store/image.h"
#include "store/library_model.h"
#include "store/track.h"

#include <QTemporaryDir>
#include <QTest>

using namespace pinmora;
namespace fs = std::filesystem;

using Names = std::vector<std::string>;

/// What the open panel, a drop and the desktop make of the files that they bring.
class PhotoIntakeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void thePanelOffersPhotosAndFolders();
    void whatIsChosenIsLoadedInItsOrder();
    void nothingComesOfACancelledPanel();
    void aDropIsLoadedFromItsEnd();
    void filesOfTheDesktopComeInTheirOrder();
    void theStatusLineCounts();
    void aLoadIsOneStep_data();
    void aLoadIsOneStep();
    void noLoadBeginsWithinAnother();
    void dragsAreAnswered_data();
    void dragsAreAnswered();

private:
    std::string in(const char *name) const { return folder_.path().toStdString() + "/" + name; }
    Names pathsOf(const Names &names) const {
        Names paths;
        for (const std::string &name : names) {
            paths.push_back(in(name.c_str()));
        }
        return paths;
    }
    void choose(const Names &names) {
        intake_->getFiles();
        intake_->panel.answer(pathsOf(names));
    }

    QTemporaryDir folder_;
    Defaults defaults_;
    NotificationCentre notifications_;
    LibraryModel model_{notifications_};
    Window window_;
    bool loadRunning_ = false;
    NotingLogs logs_;
    PhotoTypes types_;

    std::unique_ptr<Context> context_;
    std::unique_ptr<UndoManager> undo_;
    std::unique_ptr<Photos> photos_;
    std::unique_ptr<ProgressSheet> progress_;
    std::unique_ptr<StatusLine> statusLine_;
    std::unique_ptr<PhotoIntake> intake_;
    std::vector<Connection> connections_;
    Names events_; ///< what has been seen of a load, in its order
};

void PhotoIntakeTest::init() {
    fs::create_directories(in("folder/inner"));
    for (const char *name : {"a.jpg", "b.jpg", "folder/c.jpg", "folder/d.JPG"}) {
        writePhoto(in(name));
    }
    writePhoto(in("folder/inner/deep.jpg"));
    std::ofstream(in("folder/bad.jpg")) << "no picture";
    std::ofstream(in("folder/e.txt")) << "$GPRMC";

    connections_.clear();
    intake_.reset();
    undo_.reset();
    context_ = std::make_unique<Context>(model_);
    undo_ = std::make_unique<UndoManager>(*context_);
    logs_ = {};
    types_ = {};
    const auto window = [this]() -> Window & { return window_; };
    progress_ = std::make_unique<ProgressSheet>(window);
    statusLine_ = std::make_unique<StatusLine>();
    photos_ = std::make_unique<Photos>(*context_, logs_, types_);
    intake_ = std::make_unique<PhotoIntake>(*context_, *photos_, *progress_, *statusLine_,
                                            defaults_, window, loadRunning_);
    events_.clear();
    connections_.push_back(intake_->beginning.connect([this] { events_.push_back("beginning"); }));
    connections_.push_back(intake_->loaded.connect([this](const IntakeReport &report, auto &) {
        events_.push_back(loadRunning_ ? "loaded, still running" : "loaded");
        for (const std::string &path : report.loaded) {
            events_.push_back(fs::path(path).filename().native());
        }
    }));
}

void PhotoIntakeTest::thePanelOffersPhotosAndFolders() {
    defaults_.setText("pictDir", in("folder"));
    intake_->menuLoadPhotos();
    const OpenPanel &panel = intake_->panel;
    QCOMPARE(intake_->panel.sheet().host().get(), &window_);
    QVERIFY(panel.canChooseDirectories && panel.allowsMultipleSelection);
    QCOMPARE(panel.directory, in("folder"));
    QCOMPARE(panel.allowedTypes, types_.imageTypes());
    intake_->panel.answer({});
    types_.setMorePhotoTypes(true);
    intake_->getFiles();
    QCOMPARE(panel.allowedTypes, types_.panelTypes());
}

void PhotoIntakeTest::whatIsChosenIsLoadedInItsOrder() {
    choose({"b.jpg", "folder", "a.jpg"});
    QVERIFY(!intake_->panel.sheet().isUp());
    QCOMPARE(events_, (Names{"beginning", "loaded", "b.jpg", "c.jpg", "d.JPG", "a.jpg"}));
    QVERIFY(logs_.read.empty());
    QCOMPARE(defaults_.text("pictDir"), in("b.jpg"));
}

void PhotoIntakeTest::nothingComesOfACancelledPanel() {
    defaults_.setText("pictDir", "/before");
    choose({});
    QVERIFY(!intake_->panel.sheet().isUp());
    QCOMPARE(events_, Names());
    QCOMPARE(defaults_.text("pictDir"), "/before");
}

void PhotoIntakeTest::aDropIsLoadedFromItsEnd() {
    intake_->draggingEntered({.offersFiles = true, .sourceOperations = 1});
    QVERIFY(intake_->theBorder1.hasShadow.get() && intake_->theBorder2.hasShadow.get());
    Names shown;
    const Connection drawn = progress_->progressWindow.displayed.connect([&] {
        shown.push_back(progress_->progressTextMain.text.get() + " " +
                        std::to_string(static_cast<int>(progress_->progressIndic.value.get())) +
                        "/" +
                        std::to_string(static_cast<int>(progress_->progressIndic.maximum.get())));
        QVERIFY(!intake_->theBorder1.hasShadow.get() && !intake_->theBorder2.hasShadow.get());
    });
    QVERIFY(!intake_->performDragOperation(pathsOf({"folder", "b.jpg", "a.jpg"})));
    QCOMPARE(events_, (Names{"beginning", "loaded", "a.jpg", "b.jpg", "c.jpg", "d.JPG"}));
    QCOMPARE(logs_.read, Names{"found " + in("folder/e.txt")});
    QCOMPARE(shown, (Names{"Loading files 0/1", "Loading files 1/1", "Loading files 2/1",
                           "Loading files 3/1"}));
    QVERIFY(!progress_->progressWindow.isUp());
}

void PhotoIntakeTest::filesOfTheDesktopComeInTheirOrder() {
    intake_->openFiles(pathsOf({"b.jpg", "a.jpg", "folder/e.txt"}));
    QCOMPARE(events_, (Names{"beginning", "loaded", "b.jpg", "a.jpg"}));
    QCOMPARE(logs_.read, Names{"named " + in("folder/e.txt")});
    QVERIFY(intake_->applicationOpenFile(in("gone.jpg")));
    QCOMPARE(events_.size(), 6U);
}

void PhotoIntakeTest::theStatusLineCounts() {
    Names shown;
    const Connection drawn =
        statusLine_->displayed.connect([&] { shown.push_back(statusLine_->text.get()); });
    intake_->openFiles(pathsOf({"folder", "a.jpg"}));
    QCOMPARE(shown, (Names{"Loading photo 1 of 4", "Loading photo 2 of 4", "Loading photo 3 of 4",
                           ""})); // bad.jpg is no photo after all
}

void PhotoIntakeTest::aLoadIsOneStep_data() {
    QTest::addColumn<Names>("names");
    QTest::addColumn<std::string>("step");
    QTest::newRow("photos") << Names{"a.jpg", "b.jpg"} << std::string("Add Photos");
    QTest::newRow("photos and a log") << Names{"folder", "b.jpg"} << std::string("Add Photos");
    QTest::newRow("a log") << Names{"folder/e.txt"} << std::string("Load GPS Data");
    QTest::newRow("neither") << Names{"folder/bad.jpg"} << std::string();
}

void PhotoIntakeTest::aLoadIsOneStep() {
    QFETCH(Names, names);
    struct TrackLogs : NotingLogs {
        explicit TrackLogs(Context &aContext) : context(aContext) {}
        void readLog(const std::string &) override { context.insert<track>(); }
        Context &context;
    } logs(*context_);
    Photos photos(*context_, logs, types_);
    PhotoIntake intake(
        *context_, photos, *progress_, *statusLine_, defaults_,
        [this]() -> Window & { return window_; }, loadRunning_);
    std::size_t came = 0;
    const Connection loaded = intake.loaded.connect(
        [&](auto &, const std::vector<image *> &records) { came = records.size(); });
    context_->insert<image>();
    undo_->closeStep();
    intake.openFiles(pathsOf(names));
    QTEST(undo_->undoActionName(), "step");
    QCOMPARE(came, context_->count<image>() - 1);
    undo_->undo();
    QCOMPARE(context_->count<track>(), 0U);
}

void PhotoIntakeTest::noLoadBeginsWithinAnother() {
    int refused = 0;
    connections_.push_back(photos_->photoLoaded.connect([&](std::size_t) {
        ++refused;
        intake_->applicationOpenFile(in("a.jpg"));
        intake_->performDragOperation({in("a.jpg")});
        intake_->getFiles();
        QVERIFY(!intake_->panel.sheet().isUp() && !progress_->progressWindow.isUp());
    }));
    intake_->openFiles(pathsOf({"b.jpg"}));
    QCOMPARE(refused, 1);
    QCOMPARE(events_, (Names{"beginning", "loaded", "b.jpg"}));
}

void PhotoIntakeTest::dragsAreAnswered_data() {
    QTest::addColumn<bool>("offersFiles");
    QTest::addColumn<bool>("fromMainWindow");
    QTest::addColumn<unsigned>("answer");
    QTest::newRow("files") << true << false << 5U;
    QTest::newRow("own files") << true << true << 0U;
    QTest::newRow("text") << false << false << 0U;
}

void PhotoIntakeTest::dragsAreAnswered() {
    QFETCH(bool, offersFiles);
    QFETCH(bool, fromMainWindow);
    const DragInfo drag{offersFiles, fromMainWindow, 5};
    QTEST(intake_->draggingUpdated(drag), "answer");
    QVERIFY(!intake_->theBorder1.hasShadow.get());
    QTEST(intake_->draggingEntered(drag), "answer");
    QVERIFY(intake_->theBorder1.hasShadow.get() && intake_->theBorder2.hasShadow.get());
    intake_->draggingExited();
    QVERIFY(!intake_->theBorder1.hasShadow.get() && !intake_->theBorder2.hasShadow.get());
}

QTEST_GUILESS_MAIN(PhotoIntakeTest)
#include "photo_intake_test.moc"
