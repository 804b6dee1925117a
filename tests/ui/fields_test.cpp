#include "coords/coordinate_fields.h"
#include "matching/desk.h"
#include "outlets/editing.h"
#include "outlets/image_well.h"
#include "shell/clock_line.h"
#include "shell/clock_saying.h"
#include "shell/detail_fields.h"
#include "ui/clock_panel.h"
#include "ui/coordinate_panel.h"
#include "ui/details_tab.h"
#include "ui/field_edit.h"
#include "ui/note_edit.h"
#include "ui/stepper_box.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace pinmora;

namespace {

/// The panels over a library with one photo, which is selected, in a window that has the keyboard.
struct Panels : Desk {
    Panels() {
        photo.setLat("47.5");
        photo.setLon("8.25");
        photo.setComments("as it was");
        shownDegrees.showPosition(photo.lat(), photo.lon());
        QCoreApplication::processEvents();
        undoManager.removeAllActions();
        auto *column = new QVBoxLayout(&widget);
        column->addWidget(new CoordinatePanel(coordinates, addRemoveMarker));
        column->addWidget(
            new ClockPanel(outlets, saying, line, editing, [this] { matcher.guessFromLatLon(); }));
        column->addWidget(new DetailsTab({.details = details,
                                          .picture = well,
                                          .pictureLoading = loading,
                                          .rename = [] {},
                                          .fullSize = [] {}}));
        widget.show();
        widget.activateWindow();
    }
    /// By its accessible name.
    template <class Widget = QWidget>
    Widget *named(const char *name) {
        for (Widget *each : widget.findChildren<Widget *>()) {
            if (each->accessibleName() == QLatin1StringView(name)) {
                each->setFocus();
                return each;
            }
        }
        return nullptr;
    }
    bool says(const char *words) const {
        const auto labels = widget.findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
            return label->isVisible() && label->text() == QLatin1StringView(words);
        });
    }

    Editing editing;
    ClockSaying saying{context, outlets, clockOffset};
    ClockLine line{context, outlets.offsetObj, outlets.pictureArray, saying};
    CoordinateFields coordinates{context, degreeObj, pictureArray, editing};
    DetailFields details{context, pictureArray, editing};
    ImageWell well;
    Observable<bool> loading{false};
    QWidget widget;
};

QByteArray bytes(const Text &text) {
    return QByteArray::fromStdString(text.string());
}

} // namespace

class FieldsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typingACoordinate_data();
    void typingACoordinate();
    void anUnfitCoordinateIsMarkedUntilEscape();
    void theHemisphereIsChosenWithTheKeyboard();
    void typingANumberOfTheClock_data();
    void typingANumberOfTheClock();
    void clockFieldsShowWhatIsStored();
    void theClockAsksForAPhoto();
    void aNoteEndsWithReturnAndGoesBackWithEscape();
    void severalTextsAreNotShownAsOne();
};

void FieldsTest::typingACoordinate_data() {
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<QByteArray>("lat");

    const QByteArray decimal = "Latitude, decimal degrees";
    QTest::newRow("Return takes it over")
        << decimal << QByteArray("48.25") << int(Qt::Key_Return) << QByteArray("48.25");
    QTest::newRow("so does leaving")
        << decimal << QByteArray("-0.5") << int(Qt::Key_Tab) << QByteArray("-0.5");
    QTest::newRow("Escape does not")
        << decimal << QByteArray("48") << int(Qt::Key_Escape) << QByteArray("47.5");
    QTest::newRow("a part") << QByteArray("Latitude, whole minutes") << QByteArray("15")
                            << int(Qt::Key_Return) << QByteArray("47.25");
}

void FieldsTest::typingACoordinate() {
    QFETCH(QByteArray, field);
    QFETCH(QByteArray, typed);
    QFETCH(int, key);
    QFETCH(QByteArray, lat);
    Panels panels;
    QVERIFY(QTest::qWaitForWindowActive(&panels.widget));
    auto *edit = panels.named<FieldEdit>(field.constData());
    edit->selectAll();
    QTest::keyClicks(edit, QString::fromLatin1(typed));
    QCOMPARE(bytes(panels.photo.lat()), QByteArray("47.5"));
    QTest::keyClick(edit, Qt::Key(key));
    QCOMPARE(bytes(panels.photo.lat()), lat);
    QCOMPARE(panels.undoManager.canUndo(), lat != "47.5");
    QCOMPARE(panels.named<FieldEdit>("Latitude, decimal degrees")->text().toLatin1(), lat);
}

void FieldsTest::anUnfitCoordinateIsMarkedUntilEscape() {
    Panels panels;
    QVERIFY(QTest::qWaitForWindowActive(&panels.widget));
    auto *edit = panels.named<FieldEdit>("Longitude, decimal degrees");
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral("200"));
    QTest::keyClick(edit, Qt::Key_Return);
    const char *why = "The longitude is a number from -180 to 180, such as 8.5417.";
    QCOMPARE(edit->text(), QStringLiteral("200"));
    QCOMPARE(edit->toolTip(), QLatin1StringView(why));
    QVERIFY(edit->property("problem").toBool());
    QVERIFY(panels.says(why));
    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(edit->text(), QStringLiteral("8.25"));
    QVERIFY(!edit->property("problem").toBool());
    QVERIFY(!panels.says(why));
    QVERIFY(panels.editing.commitEditing());
}

void FieldsTest::theHemisphereIsChosenWithTheKeyboard() {
    Panels panels;
    QVERIFY(QTest::qWaitForWindowActive(&panels.widget));
    auto *box = panels.named<QComboBox>("Longitude, hemisphere");
    QCOMPARE(box->currentText(), QStringLiteral("E"));
    QTest::keyClicks(box, QStringLiteral("w"));
    QCOMPARE(bytes(panels.photo.lon()), QByteArray("-8.25"));
    panels.undoManager.undo();
    QCoreApplication::processEvents();
    QCOMPARE(box->currentText(), QStringLiteral("E"));
}

void FieldsTest::typingANumberOfTheClock_data() {
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QList<int>>("then");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("steps"); // of the clock

    using Keys = QList<int>;
    QTest::newRow("taken over by Return") << QByteArray("07") << Keys{Qt::Key_Return} << 7 << 1;
    QTest::newRow("taken over by leaving") << QByteArray("7") << Keys{Qt::Key_Tab} << 7 << 1;
    QTest::newRow("kept within the range") << QByteArray("75") << Keys{Qt::Key_Return} << 59 << 1;
    QTest::newRow("the same again") << QByteArray("30") << Keys{Qt::Key_Return} << 30 << 0;
    QTest::newRow("nothing") << QByteArray(" ") << Keys{Qt::Key_Return} << 30 << 0;
    QTest::newRow("taken back") << QByteArray("7") << Keys{Qt::Key_Escape, Qt::Key_Tab} << 30 << 0;
    QTest::newRow("stepped") << QByteArray() << Keys{Qt::Key_Up, Qt::Key_Up, Qt::Key_Down} << 31
                             << 3;
    QTest::newRow("stepped from what was typed") << QByteArray("59") << Keys{Qt::Key_Up} << 0 << 2;
}

void FieldsTest::typingANumberOfTheClock() {
    QFETCH(QByteArray, keys);
    QFETCH(QList<int>, then);
    Panels panels;
    panels.setOffset(1, 0, 30, 0);
    QVERIFY(QTest::qWaitForWindowActive(&panels.widget));
    int steps = 0;
    const Connection counted = panels.clockOffset.stepped.connect([&] { ++steps; });
    auto *box = panels.named<StepperBox>("Minutes that the camera's clock is off");
    box->selectAll();
    QTest::keyClicks(box, QString::fromLatin1(keys));
    QCOMPARE(panels.stored.minutes(), 30);
    for (const int key : then) {
        QTest::keyClick(box, Qt::Key(key));
    }
    QTEST(panels.stored.minutes().value_or(-1), "minutes");
    QTEST(box->text().toInt(), "minutes");
    QTEST(steps, "steps");
}

void FieldsTest::clockFieldsShowWhatIsStored() {
    Panels panels;
    panels.setOffset(0, 1'200'000, 75, 3); // beyond what can be stepped to
    QVERIFY(QTest::qWaitForWindowActive(&panels.widget));
    QCOMPARE(panels.named<StepperBox>("Hours that the camera's clock is off")->value(), 1'200'000);
    auto *minutes = panels.named<StepperBox>("Minutes that the camera's clock is off");
    QCOMPARE(minutes->value(), 75);
    auto *plus = panels.named<QPushButton>("Add to the camera's time");
    QVERIFY(!plus->isChecked());
    QTest::mouseClick(plus, Qt::LeftButton);
    QCOMPARE(panels.stored.plus(), 1);
    // Buttons of a tool bar take no focus: what is half typed is asked for.
    minutes->setFocus();
    minutes->selectAll();
    QTest::keyClicks(minutes, QStringLiteral("8"));
    QVERIFY(panels.editing.commitEditing());
    QCOMPARE(panels.stored.minutes(), 8);
}

void FieldsTest::theClockAsksForAPhoto() {
    Panels panels;
    QVERIFY(panels.says("12 May 2008 12:00:00"));
    QVERIFY(!panels.says("Choose a photo first."));
    panels.pictureArray.setSelectedObjects({});
    QCoreApplication::processEvents();
    QVERIFY(panels.says("Choose a photo first."));
    QVERIFY(!panels.says("12 May 2008 12:00:00"));
}

void FieldsTest::aNoteEndsWithReturnAndGoesBackWithEscape() {
    Panels panels;
    QVERIFY(QTest::qWaitForWindowActive(&panels.widget));
    auto *note = panels.named<NoteEdit>("Comment");
    QCOMPARE(note->toPlainText(), QStringLiteral("as it was"));
    note->selectAll();
    QTest::keyClicks(note, QStringLiteral("one"));
    QTest::keyClick(note, Qt::Key_Escape);
    QCOMPARE(note->toPlainText(), QStringLiteral("as it was"));
    note->selectAll();
    QTest::keyClicks(note, QStringLiteral("one"));
    QTest::keyClick(note, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(note, QStringLiteral("two"));
    QCOMPARE(bytes(panels.photo.comments()), QByteArray("as it was"));
    QTest::keyClick(note, Qt::Key_Return);
    QCOMPARE(bytes(panels.photo.comments()), QByteArray("one\ntwo"));
    panels.undoManager.undo();
    QCoreApplication::processEvents();
    QCOMPARE(note->toPlainText(), QStringLiteral("as it was"));
}

void FieldsTest::severalTextsAreNotShownAsOne() {
    Panels panels;
    image &other = panels.addPhoto("13:00:00");
    other.setCity("Zug");
    panels.pictureArray.setSelectedObjects({&panels.photo, &other});
    QCoreApplication::processEvents();
    auto *city = panels.named<FieldEdit>("City");
    QCOMPARE(city->text(), QString());
    QCOMPARE(city->placeholderText(), QStringLiteral("several"));
    QTest::keyClicks(city, QStringLiteral("Baar"));
    QTest::keyClick(city, Qt::Key_Return);
    QCOMPARE(bytes(panels.photo.city()), QByteArray("Baar"));
    QCOMPARE(bytes(other.city()), QByteArray("Baar"));
    QCOMPARE(city->placeholderText(), QString());
}

QTEST_MAIN(FieldsTest)
#include "fields_test.moc"
