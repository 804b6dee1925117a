#include "platform/notification_centre.h"

#include <QTest>

using namespace pinmora;

class NotificationCentreTest : public QObject {
    Q_OBJECT

    std::string heard_;

    NotificationCentre::Handler note(const char *word) {
        return [this, word](const Notification &) { heard_ += word; };
    }

private Q_SLOTS:
    void init() { heard_.clear(); }

    void observersOfTheNameHearInOrder() {
        NotificationCentre centre;
        const auto first = centre.addObserver("moved", note("1"));
        const auto other = centre.addObserver("renamed", note("x"));
        const auto second = centre.addObserver("moved", note("2"));
        centre.post("moved");
        centre.post("nobody asked");
        QCOMPARE(heard_, "12");
    }

    void nameAndObjectArrive() {
        NotificationCentre centre;
        std::optional<Notification> last;
        const auto observation =
            centre.addObserver("moved", [&](const Notification &told) { last = told; });
        centre.post("moved", std::string{"photo"});
        QCOMPARE(last.value().name, "moved");
        QCOMPARE(std::any_cast<std::string>(last->object), "photo");
        centre.post("moved");
        QVERIFY(!last->object.has_value());
    }

    void observationEndsWithItsOwner() {
        NotificationCentre centre;
        auto kept = centre.addObserver("moved", note("a"));
        { const auto brief = centre.addObserver("moved", note("b")); }
        NotificationCentre::Observation moved = std::move(kept);
        centre.post("moved");
        moved = centre.addObserver("moved", note("c")); // ends the one it held
        centre.post("moved");
        moved = {};
        centre.post("moved");
        QCOMPARE(heard_, "ac");
    }

    void addedDuringACallHearsTheNext() {
        NotificationCentre centre;
        std::vector<NotificationCentre::Observation> added;
        const auto adding = centre.addObserver("moved", [&](const Notification &) {
            added.push_back(centre.addObserver("moved", note("n")));
        });
        centre.post("moved");
        QCOMPARE(heard_, "");
        centre.post("moved");
        QCOMPARE(heard_, "n");
    }

    void removedDuringACallHearsNoMore() {
        NotificationCentre centre;
        std::optional<NotificationCentre::Observation> later;
        std::optional<NotificationCentre::Observation> self;
        const std::string word = "a word too long to be kept within the handler itself";
        self = centre.addObserver("moved", [&, word](const Notification &) {
            self.reset();
            later.reset();
            heard_ += word; // still there: a running handler outlives its observation
        });
        later = centre.addObserver("moved", note("later"));
        const auto last = centre.addObserver("moved", note("!"));
        centre.post("moved");
        centre.post("moved");
        QCOMPARE(heard_, word + "!!");
    }

    void observationOutlivesTheCentre() {
        std::optional<NotificationCentre> centre{std::in_place};
        auto observation = centre->addObserver("moved", note("m"));
        centre.reset();
        observation = {};
        QCOMPARE(heard_, "");
    }
};

QTEST_APPLESS_MAIN(NotificationCentreTest)
#include "notification_centre_test.moc"
