#include "coords/coordinate_fields.h"
#include "persistence/undo_manager.h"
#include "platform/notification_centre.h"
#include "rows.h"
#include "store/entity_array.h"
#include "store/library_model.h"

#include <QCoreApplication>

using namespace pinmora;

namespace {

/// The fields with all that they stand on, and what the inspector does when photos are selected.
struct Desk {
    explicit Desk(const std::vector<std::string> &latitudes) {
        degreeObj.setContent(&context.insert<degrees>());
        for (const std::string &latitude : latitudes) {
            photos.push_back(&context.insert<image>());
            photos.back()->setLat(latitude);
            photos.back()->setLon(latitude);
        }
        select(photos);
        undo.removeAllActions();
    }
    void select(const std::vector<image *> &selected) {
        pictureArray.setSelectedObjects(selected);
        QCoreApplication::processEvents();
        if (selected.size() == 1) {
            record().showPosition(selected[0]->lat(), selected[0]->lon());
        }
    }
    degrees &record() { return *degreeObj.content(); }
    /// The six fields of an axis and its hemisphere.
    static QByteArray shown(AxisFields &axis) {
        QByteArrayList texts;
        for (const CoordinateField *field : axis.fields()) {
            texts << QByteArray::fromStdString(field->text.get());
        }
        return texts.join(' ') + (axis.hemisphere.selectedTag.get() == 1 ? " -" : " +");
    }

    NotificationCentre notifications;
    LibraryModel model{notifications};
    Context context{model};
    UndoManager undo{context};
    ObjectController<degrees> degreeObj;
    EntityArray<image> pictureArray{context};
    Editing editing;
    CoordinateFields fields{context, degreeObj, pictureArray, editing};
    std::vector<image *> photos;
};

QByteArray bytes(const Text &text) {
    return text.hasValue() ? QByteArray::fromStdString(text.string()) : QByteArray("none");
}

} // namespace

/// Positions typed into the coordinate fields. Rows are run for latitude and longitude alike.
class FieldsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typing_data() {
        // field: 0 D, 1-2 D-M, 3-5 D-M-S
        const auto row = test::rowsByValue<QByteArray, int, QByteArray, QByteArray, QByteArray>();
        row("", 0, "47.3825", "47.3825", "47.3825 47 22.950 47 22 57.0 +");
        row("1", 0, " -33.8568000 ", "-33.8568000", "-33.8568 33 51.408 33 51 24.5 -");
        row("1", 0, "-0.5", "-0.5", "-0.5 0 30.000 0 30 0.0 -");
        row("1", 0, "+.00000012", "+.00000012", "0 0 0.000 0 0 0.0 +");
        row("1", 0, "47.1", "47.1", "47.1 47 6.000 47 6 0.0 +");
        row("1", 0, "46.9999999", "46.9999999", "47 47 0.000 47 0 0.0 +");
        row("47.5", 0, "", "", "      +");
        row("47.38402", 1, "48", "48.38402", "48.38402 48 23.041 48 23 2.5 +");
        row("47.1", 1, "48", "48.1", "48.1 48 6.000 48 6 0.0 +");
        row("47.1", 4, "10", "47.166667", "47.166667 47 10.000 47 10 0.0 +");
        row("47.0999999", 4, "10", "47.166667", "47.166667 47 10.000 47 10 0.0 +");
        row("80", 2, "32.803", "80.546717", "80.546717 80 32.803 80 32 48.2 +");
        row("80", 2, "12", "80.2", "80.2 80 12.000 80 12 0.0 +");
        row("47.5", 2, "", "47", "47 47 0.000 47 0 0.0 +");
        row("-0.5", 2, "15", "-0.25", "-0.25 0 15.000 0 15 0.0 -");
        row("-12.25", 1, "13", "-13.25", "-13.25 13 15.000 13 15 0.0 -");
        row("-12.25", 1, "+13", "13.25", "13.25 13 15.000 13 15 0.0 +");
        row("-12.25", 3, "0", "-0.25", "-0.25 0 15.000 0 15 0.0 -");
        row("12.25", 3, "-0", "-0.25", "-0.25 0 15.000 0 15 0.0 -");
        row("12.25", 3, "-33", "-33.25", "-33.25 33 15.000 33 15 0.0 -");
        row("", 3, "47", "47", "47 47 0.000 47 0 0.0 +");
        row("-33.8568", 5, "02.5", "-33.850694", "-33.850694 33 51.042 33 51 2.5 -");
    }

    void typing() {
        const auto [before, field, typed, text, shown] =
            test::fetch<QByteArray, int, QByteArray, QByteArray, QByteArray>();
        Desk desk({before.toStdString()});
        const auto &get = {std::pair(&desk.fields.lat, &image::lat),
                           std::pair(&desk.fields.lon, &image::lon)};
        for (const auto &[axis, coordinate] : get) {
            const QByteArray lonBefore = bytes(desk.photos[0]->lon());
            axis->fields()[std::size_t(field)]->type(typed.toStdString());
            QCOMPARE(bytes((desk.photos[0]->*coordinate)()), text);
            QCOMPARE(Desk::shown(*axis), shown);
            QCOMPARE(bytes(desk.photos[0]->position_source()),
                     text.isEmpty() ? QByteArray("none") : QByteArray("typed"));
            if (axis == &desk.fields.lat) {
                QCOMPARE(bytes(desk.photos[0]->lon()), lonBefore);
            }
        }
        // The record agrees as closely as single precision can, and its parts are those that are
        // seen.
        const degrees &record = desk.record();
        QCOMPARE(record.degree_lon().has_value(), !text.isEmpty());
        QVERIFY(std::abs(record.degree_lon().value_or(0) - text.toDouble()) < 1e-5);
        desk.select({});
        desk.select(desk.photos);
        QCOMPARE(Desk::shown(desk.fields.lat), shown); // as read from the photo
        QCOMPARE(desk.undo.undoActionName(), "Type Position");
    }

    void refusal_data() {
        const auto row = test::rowsByValue<QByteArray, int, QByteArray>();
        for (const char *typed : {"north", "47,38", "4e1", "180.000001", "-181", "1.2.3", "--4",
                                  "-", ".", "47 N", "0x10", "nan"}) {
            row("47.5", 0, typed);
        }
        row("47.5", 1, "");
        row("47.5", 1, "47.5");
        row("47.5", 1, "181");
        row("180", 2, "0.01");
        row("", 2, "30");
        row("47.5", 2, "60");
        row("47.5", 2, "-5");
        row("47.5", 4, "5.5");
        row("47.5", 4, "60");
        row("47.5", 5, "60");
        row("47.5", 5, "1'");
    }

    void refusal() {
        const auto [before, field, typed] = test::fetch<QByteArray, int, QByteArray>();
        Desk desk({before.toStdString()});
        AxisFields &axis = desk.fields.lon;
        const QByteArray shownBefore = Desk::shown(axis);
        CoordinateField &edited = *axis.fields()[std::size_t(field)];
        const std::string whatItShowed = edited.text.get();
        edited.type(typed.toStdString());
        QCOMPARE(bytes(desk.photos[0]->lon()), before);
        QCOMPARE(QByteArray::fromStdString(edited.text.get()), typed);
        QVERIFY(axis.hasProblem() && !desk.editing.commitEditing());
        QVERIFY(!desk.undo.canUndo());
        edited.type(whatItShowed);
        QCOMPARE(Desk::shown(axis), shownBefore);
        QVERIFY(!axis.hasProblem() && desk.editing.commitEditing());
    }

    void theLimitIsTheAxis() {
        Desk desk({"1"});
        desk.fields.lat.d.type("90.5");
        desk.fields.lon.d.type("90.5");
        QCOMPARE(desk.fields.lat.d.problem.get(),
                 "The latitude is a number from -90 to 90, such as 47.3825.");
        QCOMPARE(bytes(desk.photos[0]->lat()), "1");
        QCOMPARE(bytes(desk.photos[0]->lon()), "90.5");
        desk.fields.lat.d.type("-90");
        QCOMPARE(bytes(desk.photos[0]->lat()), "-90");
        desk.fields.lat.dmMinute.type("1");
        QCOMPARE(desk.fields.lat.dmMinute.problem.get(), "The latitude ends at 90 degrees.");
    }

    void leavingAFieldAsItIsChangesNothing_data() {
        const auto row = test::rows<QByteArray>();
        row("more decimals than are shown", "47.384020123456");
        row("zeros at the end", "-0.500");
        row("none", "");
        row("outside", "200");
    }

    void leavingAFieldAsItIsChangesNothing() {
        const auto [text] = test::fetch<QByteArray>();
        Desk desk({text.toStdString()});
        for (CoordinateField *field : desk.fields.lat.fields()) {
            field->type(" " + field->text.get());
            field->finished.emit();
        }
        QCOMPARE(bytes(desk.photos[0]->lat()), text);
        QVERIFY(!desk.undo.canUndo() && !desk.fields.lat.hasProblem());
    }

    void theHemisphereTurnsTheTextAsItStands_data() {
        const auto row = test::rows<QByteArray, int, QByteArray>();
        row("south", "+47.384020123456", 1, "-47.384020123456");
        row("north", "-0.50", 0, "0.50");
        row("same", "-0.50", 1, "-0.50");
        row("equator", "0.0", 1, "0.0");
        row("none", "", 1, "");
    }

    void theHemisphereTurnsTheTextAsItStands() {
        const auto [text, chosen, expected] = test::fetch<QByteArray, int, QByteArray>();
        Desk desk({text.toStdString()});
        for (AxisFields *axis : {&desk.fields.lat, &desk.fields.lon}) {
            axis->hemisphere.choose(chosen);
            QCOMPARE(axis->hemisphere.selectedTag.get(), chosen);
        }
        QCOMPARE(bytes(desk.photos[0]->lat()), expected);
        QCOMPARE(bytes(desk.photos[0]->lon()), expected);
        QCOMPARE(desk.undo.canUndo(), text != expected);
        // What is typed next goes to that hemisphere, without noise when it is turned.
        desk.fields.lon.dmDegree.type("151");
        desk.fields.lon.dmMinute.type("12");
        QCOMPARE(bytes(desk.photos[0]->lon()), QByteArray(chosen == 1 ? "-151.2" : "151.2"));
        desk.fields.lon.hemisphere.choose(1 - chosen);
        QVERIFY(desk.fields.lon.d.text.get() == (chosen == 1 ? "151.2" : "-151.2"));
    }

    void severalPhotosTakeDecimalDegreesOnly() {
        Desk desk({"1", "-2", "3"});
        desk.select({desk.photos[0]});
        desk.select({desk.photos[0], desk.photos[2]});
        AxisFields &axis = desk.fields.lat;
        QCOMPARE(Desk::shown(axis), "      +");
        axis.d.finished.emit();
        QVERIFY(!axis.dmDegree.enabled.get() && !axis.hemisphere.enabled.get());
        QVERIFY(!desk.undo.canUndo());
        axis.d.type("north");
        QVERIFY(axis.hasProblem());
        axis.d.type("47.50");
        QCOMPARE(bytes(desk.photos[0]->lat()), "47.50");
        QCOMPARE(bytes(desk.photos[1]->lat()), "-2");
        QCOMPARE(bytes(desk.photos[2]->lat()), "47.50");
        QVERIFY(axis.d.text.get().empty() && !axis.hasProblem());
        QVERIFY(desk.record().degree_lat() == 1.0); // stays as it was
        desk.undo.undo();
        QCOMPARE(bytes(desk.photos[0]->lat()), "1");
        QCOMPARE(bytes(desk.photos[2]->lat()), "3");
    }

    void withoutAPhotoNothingCanBeTyped() {
        Desk desk({"47.5"});
        desk.fields.lat.d.text.set("12");
        desk.context.deleteObject(*desk.photos[0]);
        QCoreApplication::processEvents();
        for (AxisFields *axis : {&desk.fields.lat, &desk.fields.lon}) {
            QCOMPARE(Desk::shown(*axis), "      +");
            QVERIFY(!axis->d.enabled.get() && !axis->hemisphere.enabled.get());
        }
        desk.undo.undo();
        desk.select(desk.photos);
        QCOMPARE(desk.fields.lat.d.text.get(), "47.5");
    }

    void theRecordKeepsWhatWasNotEdited() {
        Desk desk({"47.1"});
        const degrees::Number minutes = desk.record().degree_min_min_lat(); // 6 with noise
        desk.fields.lat.dmDegree.type("48");
        QVERIFY(desk.record().degree_min_min_lat() == minutes);
        desk.fields.lat.dmMinute.type("12.1");
        QVERIFY(desk.record().degree_min_min_lat() == 12.1);
    }

    void aTypedPositionIsOneStepThatTheFieldsFollow() {
        Desk desk({"-10.5"});
        desk.fields.lat.dmMinute.type("12");
        desk.undo.undo();
        QVERIFY(!desk.undo.canUndo());
        QVERIFY(desk.record().degree_lat() == -10.5);
        QCOMPARE(Desk::shown(desk.fields.lat), "-10.5 10 30.000 10 30 0.0 -");
        desk.undo.redo();
        QCOMPARE(Desk::shown(desk.fields.lat), "-10.2 10 12.000 10 12 0.0 -");
        desk.photos[0]->updateLatAndLon({"5", ""});
        QCOMPARE(Desk::shown(desk.fields.lat), "5 5 0.000 5 0 0.0 +");
        QVERIFY(!desk.record().degree_lon());
        desk.record().setDegree_min_min_lat(30.0);
        QCOMPARE(desk.fields.lat.d.text.get(), "5.5");
    }

    void halfTypedTextIsTakenOverWhenEditingEnds() {
        Desk desk({"10"});
        desk.fields.lat.dmsDegree.text.set("11");
        desk.fields.lat.dmsSecond.text.set("36");
        desk.fields.lon.d.text.set("12");
        QVERIFY(desk.editing.commitEditing());
        QCOMPARE(bytes(desk.photos[0]->lat()), "11.01");
        QCOMPARE(bytes(desk.photos[0]->lon()), "12");
        desk.fields.lat.dmsMinute.text.set("99");
        desk.fields.lon.d.text.set("13");
        QVERIFY(!desk.editing.commitEditing());
        QCOMPARE(bytes(desk.photos[0]->lon()), "13");
        desk.fields.lat.d.type("14"); // the position has moved on
        QVERIFY(desk.editing.commitEditing());
        QCOMPARE(bytes(desk.photos[0]->lat()), "14");
    }
};

QTEST_GUILESS_MAIN(FieldsTest)
#include "fields_test.moc"
