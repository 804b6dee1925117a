#include "ui/bridge_desk.h"

#include <QDragEnterEvent>
#include <QMimeData>

#include <csignal>

using namespace pinmora;

class PhotoDropTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void photosGoWhereTheyAreDropped_data();
    void photosGoWhereTheyAreDropped();
    void afterACrashDropsFindTheNewPage();
    void whatIsNotOfTheListIsLeftToTheWindow_data();
    void whatIsNotOfTheListIsLeftToTheWindow();
};

namespace {

/// As the window hands it over that has been told that the view takes them.
void dropPhotos(QObject &view, QPoint at) {
    QMimeData photos;
    photos.setData(QStringLiteral("application/x-pinmora-photos"), "2");
    QDropEvent drop(at, Qt::CopyAction, &photos, Qt::LeftButton, Qt::NoModifier);
    view.event(&drop);
    QVERIFY(drop.isAccepted());
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
}

/// Tells the program where they were dropped, and how wide it finds itself.
const QByteArray placing = R"(<script>
    document.addEventListener("pinmora-feed", e => {
        const {kind, x, y} = JSON.parse(e.detail);
        if (kind === "drop") {
            controlObj.latLonJavascript(`${x}:${y}:${innerWidth}`);
        }
    });
</script>)";

} // namespace

void PhotoDropTest::photosGoWhereTheyAreDropped_data() {
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<std::string>("call");
    QTest::newRow("middle") << QPoint(150, 100) << 1.0 << std::string("150:100:300");
    QTest::newRow("corner") << QPoint(0, 0) << 1.0 << std::string("0:0:300");
    QTest::newRow("enlarged") << QPoint(150, 100) << 2.0 << std::string("75:50:150");
}

void PhotoDropTest::photosGoWhereTheyAreDropped() {
    QFETCH(QPoint, at);
    QFETCH(double, zoom);
    QFETCH(std::string, call);
    BridgeDesk desk(placing);
    desk.start();
    desk.page().setZoomFactor(zoom);
    QTRY_COMPARE(desk.ask(QStringLiteral("innerWidth")).toInt(), qRound(300 / zoom));
    dropPhotos(*desk.widget, at);
    QTRY_COMPARE(desk.calls, std::vector<std::string>{"latLonJavascript '" + call + "'"});
}

void PhotoDropTest::afterACrashDropsFindTheNewPage() {
    BridgeDesk desk(placing);
    desk.start();
    ::kill(static_cast<pid_t>(desk.page().renderProcessPid()), SIGKILL);
    desk.arrive(2);
    dropPhotos(*desk.widget, {10, 20}); // nobody is there
    desk.widget->loadAgain();
    desk.arrive(3);
    dropPhotos(*desk.widget, {30, 40});
    QTRY_COMPARE(desk.calls, std::vector<std::string>{"latLonJavascript '30:40:300'"});
}

void PhotoDropTest::whatIsNotOfTheListIsLeftToTheWindow_data() {
    QTest::addColumn<QString>("type");
    QTest::newRow("files") << QStringLiteral("text/uri-list");
    QTest::newRow("text") << QStringLiteral("text/plain");
    QTest::newRow("photos of another program") << QStringLiteral("application/x-pinmora-photos");
}

void PhotoDropTest::whatIsNotOfTheListIsLeftToTheWindow() {
    QFETCH(QString, type);
    BridgeDesk desk;
    desk.start();
    QMimeData data;
    data.setData(type, "file:///a.jpg");
    QDragEnterEvent enter({150, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    // Those in the view may not take it either: it is asked from the innermost outwards.
    QCoreApplication::sendEvent(desk.widget->childAt({150, 100}), &enter);
    QVERIFY(!enter.isAccepted());
}

QTEST_MAIN(PhotoDropTest)
#include "photo_drop_test.moc"
