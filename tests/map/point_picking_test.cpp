#include "map/map_desk.h"
#include "map/point_picking.h"

#include <QTest>

using namespace pinmora;

namespace {

struct PickDesk : MapDesk {
    std::string picked;
    PointPicking picking{context,
                         bridge,
                         {.webView1 = webView1, .webView2 = webView2, .pictureArray = pictureArray},
                         [this](double lat, double lon) {
                             picked += std::to_string(lat) + " " + std::to_string(lon) + "|";
                         }};
    image &photo = addPhoto("1", "2");
    image &other = addPhoto();
    track_part &point = addPoint(Date{});

    PickDesk() {
        photo.setDate("2008:05:12 12:00:00");
        pictureArray.select(&photo);
        settle();
    }
    void say(const char *position) { webView1.called.emit({"latLonJavascript", position}); }
};

} // namespace

class PointPickingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aClickPicksAndPlacesNothing() {
        PickDesk desk;
        desk.picking.pickPoint.press();
        QVERIFY(desk.picking.armed.get());
        desk.say("47.5:-8.25:12:pick");
        desk.say("47.6:-8.25:12:pick"); // the second one comes too late
        QCOMPARE(desk.picked, "47.500000 -8.250000|");
        QVERIFY(!desk.picking.armed.get());
        QCOMPARE(MapDesk::stateOf(desk.photo), "1 2 - - -");
    }

    void whatElseEndsIt() {
        PickDesk desk;
        const auto isArmedAfter = [&desk](const std::function<void()> &what) {
            desk.picking.arm();
            what();
            return desk.picking.armed.get();
        };
        QVERIFY(isArmedAfter([] {}));
        desk.picking.disarm();
        QVERIFY(!isArmedAfter([&] { desk.say(""); }));
        QVERIFY(!isArmedAfter([&] { desk.picking.pickPoint.press(); }));
        QVERIFY(!isArmedAfter([&] { desk.say("nonsense:pick"); }));
        QVERIFY(!isArmedAfter([&] { desk.pictureArray.setSelectedObjects({}); }));
        QCOMPARE(MapDesk::stateOf(desk.photo), "1 2 - - -");
        desk.pictureArray.select(&desk.photo);
        QVERIFY(!isArmedAfter([&] { desk.say("47:8:9"); })); // dropped or dragged there
        QCOMPARE(MapDesk::stateOf(desk.photo), "47 8 9 - map");
        QCOMPARE(desk.picked, "");
    }

    void onlyOnePhotoWithATimeAndATrack() {
        PickDesk desk;
        desk.photo.setNo_capture_time(true);
        QVERIFY(!desk.picking.canArm());
        desk.photo.setNo_capture_time(false);
        QVERIFY(desk.picking.canArm());
        desk.pictureArray.setSelectedObjects({&desk.photo, &desk.other});
        QVERIFY(!desk.picking.canArm());
        desk.pictureArray.select(&desk.photo);
        desk.context.deleteObject(desk.point);
        desk.picking.arm();
        QVERIFY(!desk.picking.armed.get());
    }

    void theButtonIsOfferedWhereItWorks() {
        PickDesk desk;
        const auto becomes = [&desk](bool enabled) {
            return QTest::qWaitFor([&] { return desk.picking.pickPoint.enabled.get() == enabled; });
        };
        QVERIFY(becomes(true));
        desk.pictureArray.setSelectedObjects({});
        QVERIFY(becomes(false));
        desk.pictureArray.select(&desk.photo);
        QVERIFY(becomes(true));
        desk.context.deleteObject(desk.point);
        desk.picking.offer();
        QVERIFY(becomes(false));
    }
};

QTEST_GUILESS_MAIN(PointPickingTest)
#include "point_picking_test.moc"
