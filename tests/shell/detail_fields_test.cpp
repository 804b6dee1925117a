#include "shell/detail_fields.h"

#include "persistence/undo_manager.h"
#include "platform/notification_centre.h"
#include "store/entity_array.h"
#include "store/library_model.h"

#include <QCoreApplication>
#include <QTest>

using namespace pinmora;

namespace {

/// The fields over photos whose cities are given; all of them are selected.
struct Desk {
    explicit Desk(const std::vector<std::string> &cities) {
        for (const std::string &city : cities) {
            photos.push_back(&context.insert<image>());
            photos.back()->setCity(city);
            photos.back()->setHasChangesFalse();
        }
        select(photos);
        context.commitChanges();
        undo.removeAllActions();
    }
    void select(const std::vector<image *> &selected) {
        pictureArray.setSelectedObjects(selected);
        QCoreApplication::processEvents();
    }
    QByteArray cities() const {
        QByteArrayList texts;
        for (const image *photo : photos) {
            texts << QByteArray::fromStdString(photo->city().string());
        }
        return texts.join('|');
    }

    NotificationCentre notifications;
    LibraryModel model{notifications};
    Context context{model};
    UndoManager undo{context};
    EntityArray<image> pictureArray{context};
    Editing editing;
    DetailFields fields{context, pictureArray, editing};
    std::vector<image *> photos;
};

QByteArray shown(const DetailField &field) {
    return QByteArray::fromStdString(field.text.get()) + (field.differs.get() ? " (differs)" : "");
}

} // namespace

class DetailFieldsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showing_data() {
        QTest::addColumn<QByteArrayList>("cities");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("enabled");

        QTest::newRow("no photo") << QByteArrayList{} << QByteArray() << false;
        QTest::newRow("one photo") << QByteArrayList{"Zug"} << QByteArray("Zug") << true;
        QTest::newRow("alike") << QByteArrayList{"Zug", "Zug"} << QByteArray("Zug") << true;
        QTest::newRow("different")
            << QByteArrayList{"Zug", "Bern"} << QByteArray(" (differs)") << true;
        QTest::newRow("one without")
            << QByteArrayList{"", "Bern"} << QByteArray(" (differs)") << true;
    }
    void showing() {
        QFETCH(QByteArrayList, cities);
        Desk desk({cities.begin(), cities.end()});
        QTEST(shown(desk.fields.city), "text");
        for (const DetailField *field : desk.fields.fields()) {
            QTEST(field->enabled.get(), "enabled");
        }
        desk.select({});
        QCOMPARE(shown(desk.fields.city), QByteArray());
        QVERIFY(!desk.fields.city.enabled.get());
    }

    void aTypedTextGoesToAllSelectedPhotosInOneStep() {
        Desk desk({"Zug", "Bern", "Chur"});
        desk.select({desk.photos[0], desk.photos[1]});
        desk.fields.city.type("Uri, am See ");
        QCOMPARE(desk.cities(), QByteArray("Uri, am See |Uri, am See |Chur"));
        QCOMPARE(shown(desk.fields.city), QByteArray("Uri, am See "));
        QCOMPARE(desk.undo.undoActionName(), std::string("Change City"));
        desk.undo.undo();
        QCoreApplication::processEvents();
        QCOMPARE(desk.cities(), QByteArray("Zug|Bern|Chur"));
        QCOMPARE(shown(desk.fields.city), QByteArray(" (differs)"));
        QVERIFY(!desk.undo.canUndo());
    }

    void leavingAFieldAsItIsChangesNothing() {
        Desk desk({"Zug", "Bern"});
        for (DetailField *field : desk.fields.fields()) {
            field->finished.emit();
        }
        desk.fields.city.text.set("U");
        desk.fields.city.revert();
        desk.fields.city.finished.emit();
        QCOMPARE(desk.cities(), QByteArray("Zug|Bern"));
        QVERIFY(!desk.undo.canUndo());
        QVERIFY(!desk.photos[0]->getHasChanges());
    }

    void photosThatHaveTheTextAlreadyAreNotTouched() {
        Desk desk({"Zug", "Bern"});
        desk.fields.city.type("Bern");
        QVERIFY(desk.photos[0]->getHasChanges());
        QVERIFY(!desk.photos[1]->getHasChanges());
    }

    void altitudes_data() {
        QTest::addColumn<std::string>("typed");
        QTest::addColumn<std::string>("stored");
        QTest::addColumn<bool>("fit");

        QTest::newRow("a number") << std::string(" 412.50 ") << std::string("412.50") << true;
        QTest::newRow("below the sea") << std::string("-3") << std::string("-3") << true;
        QTest::newRow("cleared") << std::string("  ") << std::string() << true;
        QTest::newRow("with its unit") << std::string("412 m") << std::string("100") << false;
        QTest::newRow("with a comma") << std::string("412,5") << std::string("100") << false;
    }
    void altitudes() {
        QFETCH(std::string, typed);
        QFETCH(bool, fit);
        Desk desk({"Zug"});
        desk.photos[0]->setAlt("100");
        QCoreApplication::processEvents();
        desk.fields.alt.text.set(typed);
        QCOMPARE(desk.editing.commitEditing(), fit);
        QTEST(desk.photos[0]->alt().string(), "stored");
        QCOMPARE(desk.fields.alt.problem.get().empty(), fit);
        QCOMPARE(desk.fields.alt.isEdited(), !fit);
        desk.fields.alt.revert();
        QVERIFY(desk.editing.commitEditing());
    }

    void halfTypedTextGoesToThePhotosItWasTypedFor() {
        Desk desk({"Zug", "Bern", "Chur"});
        desk.select({desk.photos[0], desk.photos[2]});
        desk.fields.city.text.set("Uri");
        desk.fields.alt.text.set("high");
        desk.context.deleteObject(*desk.photos[2]);
        desk.photos.pop_back();
        desk.select({desk.photos[1]});
        QCOMPARE(desk.cities(), QByteArray("Uri|Bern"));
        QCOMPARE(shown(desk.fields.city), QByteArray("Bern"));
        QCOMPARE(shown(desk.fields.alt), QByteArray());
        QCOMPARE(desk.fields.alt.problem.get(), std::string());
    }

    void whatOthersWriteShowsButKeepsHalfTypedText() {
        Desk desk({"Zug"});
        desk.fields.prov.text.set("half ty");
        desk.photos[0]->setCity("Baar");
        desk.photos[0]->setProv("Zug");
        desk.photos[0]->setImage_name("trip_1");
        QCoreApplication::processEvents();
        QCOMPARE(shown(desk.fields.city), QByteArray("Baar"));
        QCOMPARE(shown(desk.fields.prov), QByteArray("half ty"));
        QCOMPARE(desk.fields.image_name.text.get(), std::string("trip_1"));
        QVERIFY(desk.editing.commitEditing());
        QCOMPARE(desk.photos[0]->prov().string(), std::string("half ty"));
    }
};

QTEST_GUILESS_MAIN(DetailFieldsTest)
#include "detail_fields_test.moc"
