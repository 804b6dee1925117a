#include "places/place_desk.h"

#include "persistence/undo_group.h"

using namespace pinmora;

/// Which photos get which names, whatever happens while they are asked for.
class LookupsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneTurnMakesOneRequest();
    void aNewerPositionTakesTheOldersPlace();
    void endsTheRequest_data();
    void endsTheRequest();
    void namesBelongToThePositionsStep();
    void namesComeWhileLaterStepsAreDone();
    void redoAsksWhereNamesNeverArrived();
    void undoOfALaterPositionAsksNothing();
    void aDeletionTakenBackAsksAgain();
    void typedNamesStayWhereItIsAskedAgain();
    void typedNamesStay_data();
    void typedNamesStay();
    void switchedOffNothingIsAsked();
};

namespace {

/// A photo whose names have been asked for.
struct Asked : PlaceDesk {
    image &photo = addPhoto();

    Asked() {
        photo.updateLatAndLon({"1", "2"});
        if (!isAsked(1)) {
            qFatal("the service has not been asked");
        }
    }
};

using Step = std::function<void(Asked &)>;

} // namespace

Q_DECLARE_METATYPE(Step)

void LookupsTest::oneTurnMakesOneRequest() {
    PlaceDesk desk;
    image &photo = desk.addPhoto();
    photo.setLat("1");
    photo.setLon("2");
    photo.setLat("3");
    QCOMPARE(desk.names.awaited.get(), std::size_t{1});
    QVERIFY(desk.isAsked(1));
    QCOMPARE(desk.service.requests.front().position(), QByteArray("3 2"));
    QVERIFY(desk.answer("A, B, C"));
    QCOMPARE(namesOf(photo), QByteArray("A|B|C"));
    QVERIFY(desk.hasAsked(1));
}

void LookupsTest::aNewerPositionTakesTheOldersPlace() {
    Asked desk;
    const TestService::Request older = desk.service.requests.front();
    older.send("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n<r>Older ");
    desk.photo.updateLatAndLon({"3", "4"});
    QVERIFY(desk.isAsked(2));
    older.answer("Old, Older, Oldest");
    QVERIFY(desk.answer("A, B, C"));
    QCOMPARE(desk.service.requests.back().position(), QByteArray("3 4"));
    QCOMPARE(namesOf(desk.photo), QByteArray("A|B|C"));
}

void LookupsTest::endsTheRequest_data() {
    QTest::addColumn<Step>("step");
    const auto row = [](const char *name, const Step &step) { QTest::newRow(name) << step; };
    row("the position is cleared", [](Asked &desk) { desk.photo.updateLatAndLon({"", ""}); });
    row("half of it is", [](Asked &desk) { desk.photo.setLon(""); });
    row("it is no number any more", [](Asked &desk) { desk.photo.setLon("2 km on"); });
    row("the photo is deleted", [](Asked &desk) { desk.context.deleteObject(desk.photo); });
    row("it is taken back", [](Asked &desk) { desk.undo.undo(); });
    row("lookups are switched off", [](Asked &desk) { desk.names.setEnabled(false); });
}

void LookupsTest::endsTheRequest() {
    QFETCH(Step, step);
    Asked desk;
    QCOMPARE(desk.names.awaited.get(), std::size_t{1});
    step(desk);
    QCOMPARE(desk.names.awaited.get(), std::size_t{0});
    const TestService::Request &request = desk.service.requests.front();
    request.answer("A, B, C");
    QVERIFY(QTest::qWaitFor([&] { return !request.from; }));
    QCOMPARE(namesOf(desk.photo), QByteArray("||"));
    QVERIFY(desk.hasAsked(1));
}

void LookupsTest::namesBelongToThePositionsStep() {
    Asked desk;
    QVERIFY(desk.answer("A, B, C", "Pinmora-Place-Distance: 7\r\n"));
    desk.endTurn();
    desk.undo.undo();
    QCOMPARE(namesOf(desk.photo), QByteArray("||"));
    QVERIFY(desk.photo.has_maker());
    QVERIFY(!desk.photo.getHasChanges());
    QVERIFY(!desk.undo.canUndo());
    desk.undo.redo();
    QCOMPARE(namesOf(desk.photo), QByteArray("A|B|C 7"));
    desk.endTurn();
    QCOMPARE(desk.names.awaited.get(), std::size_t{0});
    QVERIFY(desk.hasAsked(1));
    QVERIFY(!desk.undo.canRedo());
}

void LookupsTest::namesComeWhileLaterStepsAreDone() {
    Asked desk;
    image &other = desk.context.insert<image>();
    desk.endTurn();
    {
        const UndoGroup group(desk.context, "Other work");
        other.setComments("x");
        QVERIFY(desk.answer("A, B, C"));
        other.setComments("y");
    }
    QCOMPARE(namesOf(desk.photo), QByteArray("A|B|C"));
    desk.undo.undo();
    QCOMPARE(other.comments().string(), std::string());
    QCOMPARE(namesOf(desk.photo), QByteArray("A|B|C"));
    desk.undo.undo();
    desk.undo.undo();
    QCOMPARE(namesOf(desk.photo), QByteArray("||"));
}

void LookupsTest::redoAsksWhereNamesNeverArrived() {
    Asked desk;
    desk.undo.undo();
    QVERIFY(QTest::qWaitFor([&] { return !desk.service.requests.front().from; }));
    QVERIFY(desk.hasAsked(1));
    desk.undo.redo();
    QCOMPARE(desk.names.awaited.get(), std::size_t{1});
    QVERIFY(desk.isAsked(2));
    QVERIFY(desk.answer("A, B, C"));
    desk.undo.undo();
    QCOMPARE(namesOf(desk.photo), QByteArray("||"));
    QVERIFY(!desk.undo.canUndo());
    desk.undo.redo();
    QCOMPARE(namesOf(desk.photo), QByteArray("A|B|C"));
    QCOMPARE(desk.names.awaited.get(), std::size_t{0});
}

void LookupsTest::undoOfALaterPositionAsksNothing() {
    Asked desk;
    QVERIFY(desk.answer("A, B, C"));
    desk.photo.updateLatAndLon({"3", "4"});
    QVERIFY(desk.isAsked(2));
    desk.undo.undo();
    QCOMPARE(desk.names.awaited.get(), std::size_t{0});
    QCOMPARE(namesOf(desk.photo), QByteArray("A|B|C"));
    QCOMPARE(desk.photo.lat().string(), std::string("1"));
    desk.undo.redo();
    QVERIFY(desk.isAsked(3));
    QVERIFY(desk.answer("D, E, F"));
    QCOMPARE(namesOf(desk.photo), QByteArray("D|E|F"));
    desk.undo.undo();
    desk.undo.undo();
    QCOMPARE(namesOf(desk.photo), QByteArray("||"));
    QVERIFY(!desk.undo.canUndo());
}

void LookupsTest::typedNamesStayWhereItIsAskedAgain() {
    Asked desk;
    desk.endTurn();
    desk.photo.setCity("Here");
    desk.endTurn();
    desk.context.deleteObject(desk.photo);
    desk.endTurn();
    desk.undo.undo();
    QVERIFY(desk.isAsked(2));
    QVERIFY(desk.answer("A, B, C"));
    QCOMPARE(namesOf(desk.photo), QByteArray("Here|B|C"));
}

void LookupsTest::aDeletionTakenBackAsksAgain() {
    Asked desk;
    desk.endTurn();
    desk.context.deleteObject(desk.photo);
    desk.endTurn();
    desk.undo.undo();
    QCOMPARE(desk.names.awaited.get(), std::size_t{1});
    desk.undo.redo();
    QCOMPARE(desk.names.awaited.get(), std::size_t{0});
    desk.undo.undo();
    QVERIFY(QTest::qWaitFor([&] { return desk.service.requests.back().from; }));
    QTRY_VERIFY(desk.service.requests.size() > 1);
    QVERIFY(desk.answer("A, B, C"));
    QCOMPARE(namesOf(desk.photo), QByteArray("A|B|C"));
    QVERIFY(desk.undo.canRedo());
    desk.undo.undo();
    QCOMPARE(namesOf(desk.photo), QByteArray("||"));

    desk.undo.redo();
    desk.undo.redo();
    desk.undo.undo();
    QCOMPARE(desk.names.awaited.get(), std::size_t{0}); // they have arrived
}

void LookupsTest::typedNamesStay_data() {
    QTest::addColumn<std::string>("key");
    QTest::addColumn<std::string>("typed");
    QTest::addColumn<QByteArray>("names");
    const auto row = [](const char *name, const char *key, const char *typed, const char *names) {
        QTest::newRow(name) << std::string(key) << std::string(typed) << QByteArray(names);
    };
    row("a city", "city", "Here", "Here|B|C");
    row("a province", "prov", "Here", "A|Here|C 7");
    row("a country", "country", "Here", "A|B|Here 7");
    row("a city cleared", "city", "", "|B|C");
    row("as it was", "city", "old", "A|B|C 7");
}

void LookupsTest::typedNamesStay() {
    QFETCH(std::string, key);
    QFETCH(std::string, typed);
    PlaceDesk desk;
    image &photo = desk.addPhoto();
    photo.setCity("old");
    photo.updateLatAndLon({"1", "2"});
    QVERIFY(desk.isAsked(1));
    photo.setValue(typed, key);
    QVERIFY(desk.answer("A, B, C", "Pinmora-Place-Distance: 7\r\n"));
    QTEST(namesOf(photo), "names");
}

void LookupsTest::switchedOffNothingIsAsked() {
    PlaceDesk desk;
    image &photo = desk.addPhoto();
    desk.names.setEnabled(false);
    photo.updateLatAndLon({"1", "2"});
    desk.endTurn();
    desk.undo.undo();
    desk.undo.redo();
    QCOMPARE(desk.names.awaited.get(), std::size_t{0});
    desk.names.setEnabled(true);
    photo.updateLatAndLon({"3", "4"});
    QVERIFY(desk.isAsked(1));
    QCOMPARE(desk.service.requests.front().position(), QByteArray("3 4"));
}

QTEST_GUILESS_MAIN(LookupsTest)
#include "lookups_test.moc"
