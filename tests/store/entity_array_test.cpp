#include "store/entity_array.h"

#include "platform/notification_centre.h"
#include "store/image.h"
#include "store/library_model.h"
#include "store/track_part.h"

#include <QTest>

using namespace pinmora;

class EntityArrayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void followsTheContext() {
        NotificationCentre notifications;
        LibraryModel model(notifications);
        Context context(model);
        image &early = context.insert<image>();
        { const EntityArray<image> gone(context); }
        QVERIFY(!context.isObserved());
        EntityArray<image> array(context);
        QCOMPARE(array.arrangedObjects(), std::vector{&early});
        int told = 0;
        const Connection connection = array.arrangementChanged.connect([&] { ++told; });

        early.setCity("Zug");
        track_part &other = context.insert<track_part>();
        context.deleteObject(other);
        QCOMPARE(told, 0);
        image &late = context.insert<image>();
        QCOMPARE(told, 1);
        QCOMPARE(array.arrangedObjects(), (std::vector{&early, &late}));

        array.select(&early);
        array.remove();
        QCOMPARE(context.fetch<image>(), std::vector{&late});
        QCOMPARE(array.arrangedObjects(), std::vector{&late});
        array.select(&late);
        context.deleteObject(late);
        context.commitChanges();
        QVERIFY(array.selectedObjects().empty());
        QCOMPARE(array.count(), 0U);
    }
};

QTEST_APPLESS_MAIN(EntityArrayTest)
#include "entity_array_test.moc"
