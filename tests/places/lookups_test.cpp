#include "places/place_desk.h"

#include "persistence/undo_group.h"
#include "rows.h"

using namespace pinmora;

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

/// Which photos get which names, whatever happens while they are asked for.
class LookupsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneTurnMakesOneRequest() {
        PlaceDesk desk;
        image &photo = desk.addPhoto();
        photo.setLat("1");
        photo.setLon("2");
        photo.setLat("3");
        QCOMPARE(desk.names.awaited.get(), 1U);
        QVERIFY(desk.isAsked(1));
        QCOMPARE(desk.service.requests.front().position(), "3 2");
        QVERIFY(desk.answer("A, B, C"));
        QCOMPARE(namesOf(photo), "A|B|C");
        QVERIFY(desk.hasAsked(1));
    }

    void aNewerPositionTakesTheOldersPlace() {
        Asked desk;
        const TestService::Request older = desk.service.requests.front();
        older.send("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n<r>Older ");
        desk.photo.updateLatAndLon({"3", "4"});
        QVERIFY(desk.isAsked(2));
        older.answer("Old, Older, Oldest");
        QVERIFY(desk.answer("A, B, C"));
        QCOMPARE(desk.service.requests.back().position(), "3 4");
        QCOMPARE(namesOf(desk.photo), "A|B|C");
    }

    void endsTheRequest_data() {
        const auto row = test::rows<Step>();
        row("the position is cleared", [](Asked &desk) { desk.photo.updateLatAndLon({"", ""}); });
        row("half of it is", [](Asked &desk) { desk.photo.setLon(""); });
        row("it is no number any more", [](Asked &desk) { desk.photo.setLon("2 km on"); });
        row("the photo is deleted", [](Asked &desk) { desk.context.deleteObject(desk.photo); });
        row("it is taken back", [](Asked &desk) { desk.undo.undo(); });
        row("lookups are switched off", [](Asked &desk) { desk.names.setEnabled(false); });
    }

    void endsTheRequest() {
        const auto [step] = test::fetch<Step>();
        Asked desk;
        QCOMPARE(desk.names.awaited.get(), 1U);
        step(desk);
        QCOMPARE(desk.names.awaited.get(), 0U);
        const TestService::Request &request = desk.service.requests.front();
        request.answer("A, B, C");
        QVERIFY(QTest::qWaitFor([&] { return !request.from; }));
        QCOMPARE(namesOf(desk.photo), "||");
        QVERIFY(desk.hasAsked(1));
    }

    void namesBelongToThePositionsStep() {
        Asked desk;
        QVERIFY(desk.answer("A, B, C", "Pinmora-Place-Distance: 7\r\n"));
        desk.endTurn();
        desk.undo.undo();
        QCOMPARE(namesOf(desk.photo), "||");
        QVERIFY(desk.photo.has_maker());
        QVERIFY(!desk.photo.getHasChanges());
        QVERIFY(!desk.undo.canUndo());
        desk.undo.redo();
        QCOMPARE(namesOf(desk.photo), "A|B|C 7");
        desk.endTurn();
        QCOMPARE(desk.names.awaited.get(), 0U);
        QVERIFY(desk.hasAsked(1));
        QVERIFY(!desk.undo.canRedo());
    }

    void namesComeWhileLaterStepsAreDone() {
        Asked desk;
        image &other = desk.context.insert<image>();
        desk.endTurn();
        {
            const UndoGroup group(desk.context, "Other work");
            other.setComments("x");
            QVERIFY(desk.answer("A, B, C"));
            other.setComments("y");
        }
        QCOMPARE(namesOf(desk.photo), "A|B|C");
        desk.undo.undo();
        QCOMPARE(other.comments().string(), std::string());
        QCOMPARE(namesOf(desk.photo), "A|B|C");
        desk.undo.undo();
        desk.undo.undo();
        QCOMPARE(namesOf(desk.photo), "||");
    }

    void redoAsksWhereNamesNeverArrived() {
        Asked desk;
        desk.undo.undo();
        QVERIFY(QTest::qWaitFor([&] { return !desk.service.requests.front().from; }));
        QVERIFY(desk.hasAsked(1));
        desk.undo.redo();
        QCOMPARE(desk.names.awaited.get(), 1U);
        QVERIFY(desk.isAsked(2));
        QVERIFY(desk.answer("A, B, C"));
        desk.undo.undo();
        QCOMPARE(namesOf(desk.photo), "||");
        QVERIFY(!desk.undo.canUndo());
        desk.undo.redo();
        QCOMPARE(namesOf(desk.photo), "A|B|C");
        QCOMPARE(desk.names.awaited.get(), 0U);
    }

    void undoOfALaterPositionAsksNothing() {
        Asked desk;
        QVERIFY(desk.answer("A, B, C"));
        desk.photo.updateLatAndLon({"3", "4"});
        QVERIFY(desk.isAsked(2));
        desk.undo.undo();
        QCOMPARE(desk.names.awaited.get(), 0U);
        QCOMPARE(namesOf(desk.photo), "A|B|C");
        QCOMPARE(desk.photo.lat().string(), "1");
        desk.undo.redo();
        QVERIFY(desk.isAsked(3));
        QVERIFY(desk.answer("D, E, F"));
        QCOMPARE(namesOf(desk.photo), "D|E|F");
        desk.undo.undo();
        desk.undo.undo();
        QCOMPARE(namesOf(desk.photo), "||");
        QVERIFY(!desk.undo.canUndo());
    }

    void aDeletionTakenBackAsksAgain() {
        Asked desk;
        desk.endTurn();
        desk.context.deleteObject(desk.photo);
        desk.endTurn();
        desk.undo.undo();
        QCOMPARE(desk.names.awaited.get(), 1U);
        desk.undo.redo();
        QCOMPARE(desk.names.awaited.get(), 0U);
        desk.undo.undo();
        QVERIFY(QTest::qWaitFor([&] { return desk.service.requests.back().from; }));
        QTRY_VERIFY(desk.service.requests.size() > 1);
        QVERIFY(desk.answer("A, B, C"));
        QCOMPARE(namesOf(desk.photo), "A|B|C");
        QVERIFY(desk.undo.canRedo());
        desk.undo.undo();
        QCOMPARE(namesOf(desk.photo), "||");

        desk.undo.redo();
        desk.undo.redo();
        desk.undo.undo();
        QCOMPARE(desk.names.awaited.get(), 0U); // they have arrived
    }

    void typedNamesStayWhereItIsAskedAgain() {
        Asked desk;
        desk.endTurn();
        desk.photo.setCity("Here");
        desk.endTurn();
        desk.context.deleteObject(desk.photo);
        desk.endTurn();
        desk.undo.undo();
        QVERIFY(desk.isAsked(2));
        QVERIFY(desk.answer("A, B, C"));
        QCOMPARE(namesOf(desk.photo), "Here|B|C");
    }

    void typedNamesStay_data() {
        const auto row = test::rows<std::string, std::string, QByteArray>();
        row("a city", "city", "Here", "Here|B|C");
        row("a province", "prov", "Here", "A|Here|C 7");
        row("a country", "country", "Here", "A|B|Here 7");
        row("a city cleared", "city", "", "|B|C");
        row("as it was", "city", "old", "A|B|C 7");
    }

    void typedNamesStay() {
        const auto [key, typed, names] = test::fetch<std::string, std::string, QByteArray>();
        PlaceDesk desk;
        image &photo = desk.addPhoto();
        photo.setCity("old");
        photo.updateLatAndLon({"1", "2"});
        QVERIFY(desk.isAsked(1));
        photo.setValue(typed, key);
        QVERIFY(desk.answer("A, B, C", "Pinmora-Place-Distance: 7\r\n"));
        QCOMPARE(namesOf(photo), names);
    }

    void switchedOffNothingIsAsked() {
        PlaceDesk desk;
        image &photo = desk.addPhoto();
        desk.names.setEnabled(false);
        photo.updateLatAndLon({"1", "2"});
        desk.endTurn();
        desk.undo.undo();
        desk.undo.redo();
        QCOMPARE(desk.names.awaited.get(), 0U);
        desk.names.setEnabled(true);
        photo.updateLatAndLon({"3", "4"});
        QVERIFY(desk.isAsked(1));
        QCOMPARE(desk.service.requests.front().position(), "3 4");
    }
};

QTEST_GUILESS_MAIN(LookupsTest)
#include "lookups_test.moc"
