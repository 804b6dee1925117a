#include "outlets/quiet_bar.h"
#include "ui/photo_desk.h"
#include "ui/photo_panel.h"
#include "ui/quiet_bar_widget.h"
#include "ui/track_table_model.h"

#include <QAbstractItemModelTester>
#include <QPushButton>
#include <QTableView>
#include <QTest>

using namespace pinmora;

namespace {

QPushButton *buttonNamed(const QWidget &widget, const QString &title) {
    for (QPushButton *button : widget.findChildren<QPushButton *>()) {
        if (button->text() == title) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

class ListsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void emptyPanelSaysWhatToDo();
    void headerAndMenuShareTheOrder();
    void tracksGrowAndGo();
    void quietBarOffersChoices();
};

void ListsTest::emptyPanelSaysWhatToDo() {
    PhotoDesk desk;
    QStringList done;
    PhotoPanel panel({.context = desk.context,
                      .pictureArray = desk.pictureArray,
                      .gaps = desk.gaps,
                      .order = desk.order,
                      .thumbnails = desk.thumbnails,
                      .notifications = &desk.notifications,
                      .dropArea = &desk.dropArea,
                      .removePicture = desk.removePicture,
                      .addPhotos = [&done] { done << QStringLiteral("add"); },
                      .loadLogs = [&done] { done << QStringLiteral("load"); },
                      .trySample = [&done] { done << QStringLiteral("try"); },
                      .fullSize = [&done] { done << QStringLiteral("full"); }});
    panel.show();
    auto *const table = panel.findChild<QTableView *>();
    QVERIFY(!table->isVisible());
    for (const char *title : {"Add Photos…", "Load GPS Data…", "Try it with the sample outing"}) {
        QPushButton *const button = buttonNamed(panel, QString::fromUtf8(title));
        QVERIFY2(button && button->isVisible(), title);
        button->click();
    }
    QCOMPARE(done.join(QLatin1Char(' ')), QStringLiteral("add load try"));

    desk.addPhoto("placed", {"47.1", "8.2"});
    QTRY_VERIFY(table->isVisible());
    QVERIFY(!buttonNamed(panel, QStringLiteral("Full Size"))->isEnabled());
    panel.selectAll();
    QTest::keyClick(table, Qt::Key_Return);
    QCOMPARE(done.last(), QStringLiteral("full"));

    panel.selectAll();
    desk.pictureArray.setSelectedObjects({});
    panel.onlyWithoutPosition()->setChecked(true);
    QTRY_VERIFY(!table->isVisible());
    QPushButton *const all = buttonNamed(panel, QStringLiteral("Show All Photos"));
    QVERIFY(all->isVisible());
    all->click();
    QVERIFY(table->isVisible());
    QVERIFY(!panel.onlyWithoutPosition()->isChecked());
}

void ListsTest::headerAndMenuShareTheOrder() {
    PhotoDesk desk;
    desk.addPhotos(3);
    PhotoPanel panel({.context = desk.context,
                      .pictureArray = desk.pictureArray,
                      .gaps = desk.gaps,
                      .order = desk.order,
                      .thumbnails = desk.thumbnails,
                      .notifications = nullptr,
                      .dropArea = &desk.dropArea,
                      .removePicture = desk.removePicture,
                      .addPhotos = {},
                      .loadLogs = {},
                      .trySample = {},
                      .fullSize = {}});
    panel.resize(500, 400);
    panel.show();
    const auto checked = [&panel] {
        QStringList titles;
        for (const QAction *action : panel.sortMenu()->actions()) {
            if (action->isChecked()) {
                titles << action->text();
            }
        }
        return titles.join(QLatin1Char(' '));
    };
    QCOMPARE(checked(), QStringLiteral("Order of Loading Ascending"));

    auto *const header = panel.findChild<QTableView *>()->horizontalHeader();
    const QPoint gap(header->width() - 12, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, gap);
    QCOMPARE(checked(), QStringLiteral("Gap Ascending"));
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, gap);
    QCOMPARE(checked(), QStringLiteral("Gap Descending"));

    for (QAction *action : panel.sortMenu()->actions()) {
        if (action->text() == QLatin1StringView("Taken")) {
            action->trigger();
        }
    }
    QCOMPARE(desk.order.order.get(), (SortOrder{.key = "date", .ascending = false}));
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(100, gap.y()));
    QCOMPARE(desk.order.order.get(), (SortOrder{.key = "date", .ascending = true}));
}

void ListsTest::tracksGrowAndGo() {
    PhotoDesk desk;
    TrackTableModel tracks(desk.context, desk.arrays.gpsTrackArrayController);
    const QAbstractItemModelTester tester(&tracks,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    const auto textAt = [&tracks](int column) { return tracks.index(0, column).data().toString(); };
    auto &one = desk.context.insert<track>();
    one.setTrack_id(4);
    QTRY_COMPARE(tracks.rowCount(), 1);
    QCOMPARE(textAt(TrackTableModel::From), QString());

    LocalZone zone;
    for (const char *time : {"2026-05-08 11:20:55", "2026-05-08 09:41:10"}) {
        auto &point = desk.context.insert<track_part>();
        point.setTimeWithDate(dateFromText(time, "%Y-%m-%d %H:%M:%S", zone));
        point.setTrack(&one);
    }
    QTRY_COMPARE(textAt(TrackTableModel::Points), QStringLiteral("2"));
    QCOMPARE(textAt(TrackTableModel::Number), QStringLiteral("4"));
    QCOMPARE(textAt(TrackTableModel::From), QStringLiteral("8 May 09:41:10"));
    QCOMPARE(textAt(TrackTableModel::To), QStringLiteral("8 May 11:20:55"));

    desk.context.deleteObject(one);
    QCOMPARE(textAt(TrackTableModel::Number), QString());
    QTRY_COMPARE(tracks.rowCount(), 0);
}

void ListsTest::quietBarOffersChoices() {
    QuietBar bar;
    QWidget window;
    QuietBarWidget widget(bar, &window);
    widget.resize(400, 36);
    window.show();
    QVERIFY(!widget.isVisible());

    QString chosen;
    const QString words = QStringLiteral("one word after another ").repeated(10);
    bar.post({.subject = "a",
              .head = "hike.gpx",
              .text = words.toStdString(),
              .choices = {{"Use", [&chosen] { chosen = QStringLiteral("use"); }},
                          {"Keep", [&chosen] { chosen = QStringLiteral("keep"); }}}});
    bar.post({.subject = "b", .head = "", .text = "short", .choices = {}});
    QVERIFY(widget.isVisible());
    QVERIFY(widget.accessibleName().contains(words));
    QTest::keyClick(&widget, Qt::Key_Escape);
    QVERIFY(widget.isVisible());
    buttonNamed(widget, QStringLiteral("Keep"))->click();
    QCOMPARE(chosen, QStringLiteral("keep"));
    QVERIFY(widget.isVisible()); // with the next message
    QVERIFY(!buttonNamed(widget, QStringLiteral("Keep"))->isVisible());
    bar.dismiss();
    QVERIFY(!widget.isVisible());
}

QTEST_MAIN(ListsTest)
#include "lists_test.moc"
