#include "ui/window_desk.h"

#include "places/test_service.h"

#include <QLabel>

using namespace pinmora;

/// Place names as a person sees them come.
class PlaceNamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void namesComeIntoTheWindow() {
        TestService service;
        WindowDesk desk;
        desk.delegate.defaults.setText("placeServer", service.address());
        image &photo = desk.addPhoto("a", "2026:05:08 09:54:28");
        desk.settle();
        desk.clickRow(0);
        const auto *awaited = desk.window->findChild<QLabel *>(QStringLiteral("awaitedNames"));
        QVERIFY(!awaited->isVisible());
        photo.updateLatAndLon({"47.1", "8.5"});
        QTRY_VERIFY(awaited->isVisible());
        QCOMPARE(awaited->text(), QStringLiteral("Looking up 1 place name…"));
        QTRY_COMPARE(service.requests.size(), std::size_t{1});
        service.requests.front().answer("Zug, ZG, Switzerland", "Pinmora-Place-Distance: 2312\r\n");
        QTRY_VERIFY(!awaited->isVisible());

        const QAbstractItemModel &list = *desk.photoTable()->model();
        QTRY_VERIFY(list.index(0, 0)
                        .data(Qt::AccessibleTextRole)
                        .toString()
                        .contains(QStringLiteral("Zug, 2.3 km")));
        desk.action(ActionName::ShowDetails)->trigger();
        const auto distance = [&desk] {
            const auto *label = desk.window->findChild<QLabel *>(QStringLiteral("cityDistance"));
            return label && label->isVisible() ? label->text() : QString();
        };
        QTRY_COMPARE(distance(), QStringLiteral("2.3 km"));
        desk.type("City", "Here");
        QTRY_COMPARE(distance(), QString());
        desk.action(ActionName::Undo)->trigger();
        QTRY_COMPARE(distance(), QStringLiteral("2.3 km"));
    }

    void theSwitchIsKept() {
        TestService service;
        {
            WindowDesk desk;
            QAction *const action = desk.action(ActionName::LookUpPlaces);
            QVERIFY(action->isChecked());
            action->trigger();
        }
        WindowDesk desk;
        desk.delegate.defaults.setText("placeServer", service.address());
        QAction *const action = desk.action(ActionName::LookUpPlaces);
        QVERIFY(!action->isChecked());
        image &photo = desk.addPhoto("a", "2026:05:08 09:54:28");
        photo.updateLatAndLon({"1", "2"});
        QCOMPARE(desk.parts().placeNames.awaited.get(), std::size_t{0});
        action->trigger();
        photo.updateLatAndLon({"3", "4"});
        QTRY_COMPARE(service.requests.size(), std::size_t{1});
        QCOMPARE(service.requests.front().position(), QByteArray("3 4"));
        action->trigger();
        QCOMPARE(desk.parts().placeNames.awaited.get(), std::size_t{0});
    }
};

QTEST_MAIN(PlaceNamesTest)
#include "place_names_test.moc"
