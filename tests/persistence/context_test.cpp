#include "persistence/forest.h"

#include <QtTest>

#include <random>
#include <set>

using namespace pinmora;
using namespace pinmora::test;

namespace {

/// Writes down what it hears.
class Diary : public ChangeObserver {
public:
    void willAccess(const Record &, std::string_view key) override { note("?", key); }
    void willChange(Record &, std::string_view key) override { note("<", key); }
    void didChange(Record &, std::string_view key) override { note(">", key); }
    void willMutateSet(Record &, std::string_view key, SetMutation kind,
                       std::span<Record *const> objects) override {
        note(kind == SetMutation::Minus ? "<minus " : "<union ", key);
        setMembers += objects.size();
    }
    void didMutateSet(Record &, std::string_view key, SetMutation,
                      std::span<Record *const>) override {
        note("set>", key);
    }
    void didInsert(Record &record) override { note("+", record.entity().name()); }
    void willDelete(Record &record) override { note("-", record.entity().name()); }

    QStringList notes;
    std::size_t setMembers = 0;

private:
    void note(const char *what, std::string_view key) {
        notes << QString::fromLatin1(what) +
                     QString::fromLatin1(key.data(), static_cast<qsizetype>(key.size()));
    }
};

} // namespace

class ContextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { context = std::make_unique<Context>(model); }

    void keysGoThroughTheSetterAndPrimitivesDoNot() {
        auto &leaf = static_cast<Leaf &>(context->insertNewObjectForEntityForName("leaf"));
        QVERIFY(!leaf.valueForKey("colour").hasValue());
        leaf.setValue(" green", "colour");
        QVERIFY(leaf.colour() == "green");
        leaf.setValue("autumn", "colourOf");
        QVERIFY(leaf.valueForKey("colour") == Value("red"));
        leaf.setPrimitiveValue(" green", "colour");
        QVERIFY(leaf.primitiveValueForKey("colour") == Value(" green"));
        leaf.setValue(12.5, "colour");
        QVERIFY(leaf.colour() == "12.5");
        leaf.setValue({}, "colour");
        QVERIFY(!leaf.colour().hasValue());
        QVERIFY(leaf.validateValue("anything", "colour"));
    }

    void unknownKeysAreRefused() {
        Record &leaf = context->insert<Leaf>();
        QVERIFY_THROWS_EXCEPTION(UnknownKeyError, leaf.valueForKey("size"));
        QVERIFY_THROWS_EXCEPTION(UnknownKeyError, leaf.setValue("x", "label"));
        QVERIFY_THROWS_EXCEPTION(UnknownKeyError, leaf.valueForKey("colourOf"));
        QVERIFY_THROWS_EXCEPTION(UnknownKeyError, leaf.setPrimitiveValue("x", "colourOf"));
        QVERIFY_THROWS_EXCEPTION(UnknownKeyError, context->insertNewObjectForEntityForName("root"));
    }

    void dependentKeysFollowInsideTheNotices() {
        Diary diary;
        context->addObserver(diary, {.access = true});
        auto &leaf = context->insert<Leaf>();
        leaf.setColour("red");
        QCOMPARE(diary.notes.join(u' '), QStringLiteral("+leaf <colour <label >label >colour"));
        diary.notes.clear();
        QCOMPARE(leaf.label(), "a red leaf");
        QCOMPARE(diary.notes.join(u' '), QStringLiteral("?colour"));
        context->removeObserver(diary);
        leaf.setColour("blue");
        QCOMPARE(diary.notes.size(), 1);
    }

    void deletionTakesWhatTheRuleSaysAndEndsTheOtherLinks() {
        auto &tree = context->insert<Tree>();
        auto &other = context->insert<Tree>();
        auto &bird = context->insert<Bird>();
        auto &stranger = context->insert<Bird>();
        for (int i = 0; i < 3; ++i) {
            context->insert<Leaf>().setTree(&tree);
        }
        auto &fallen = context->insert<Leaf>();
        fallen.setTree(&other);
        bird.setNest(&tree);
        stranger.setNest(&other);

        Diary diary;
        context->addObserver(diary, {.access = true});
        context->deleteObject(tree);
        QCOMPARE(diary.notes.filter(QStringLiteral("-")).join(u' '),
                 QStringLiteral("-tree -leaf -leaf -leaf"));
        QCOMPARE(context->count<Tree>(), 1u);
        QVERIFY(context->fetch<Leaf>() == std::vector<Leaf *>{&fallen});
        QVERIFY(bird.nest() == nullptr);
        QVERIFY(stranger.nest() == &other);

        diary.notes.clear();
        context->deleteObject(fallen);
        QVERIFY(other.leaves.empty());
        QVERIFY(diary.notes.contains(QStringLiteral("<minus leaves")));
        QCOMPARE(diary.setMembers, 1u);
        context->removeObserver(diary);
    }

    void aCascadeKeepsWhatItDeletesLinked() {
        auto &tree = context->insert<Tree>();
        auto &leaf = context->insert<Leaf>();
        leaf.setTree(&tree);
        context->commitChanges();
        context->deleteObject(tree);
        QVERIFY(leaf.isDeleted() && leaf.context() == nullptr);
        QVERIFY(leaf.tree() == &tree);
        context->deleteObject(leaf); // a second time changes nothing
        QCOMPARE(context->count<Leaf>(), 0u);
    }

    void bookkeepingFollowsTheLifeOfARecord() {
        QVERIFY(!context->hasChanges());
        auto &dropped = context->insert<Leaf>();
        context->deleteObject(dropped);
        QVERIFY(!context->hasChanges()); // no commit ever knew it
        auto &kept = context->insert<Leaf>();
        kept.setColour("red");
        QVERIFY(kept.isInserted());
        context->commitChanges();
        QVERIFY(!context->hasChanges());

        kept.setPrimitiveValue("raw", "colour");
        QVERIFY(!context->hasChanges());
        kept.setColour("red");
        QVERIFY(kept.isUpdated());
        context->deleteObject(kept);
        QVERIFY(context->hasChanges());
        context->commitChanges();
        QVERIFY(!context->hasChanges());
    }

    void fetchKeepsTheOrderOfInsertion() {
        std::mt19937 random(7);
        std::vector<Leaf *> expected;
        for (int step = 0; step < 500; ++step) {
            if (!expected.empty() && random() % 3 == 0) {
                const auto victim =
                    expected.begin() + static_cast<long>(random() % expected.size());
                context->deleteObject(**victim);
                expected.erase(victim);
            } else {
                expected.push_back(&context->insert<Leaf>());
            }
            QVERIFY(context->fetch<Leaf>() == expected);
        }
        QCOMPARE(context->fetch("leaf").size(), expected.size());
    }

    void observersMayLeaveWhileTheyAreTold() {
        /// Leaves with the observer behind it as soon as it hears of a change.
        struct Leaving : Diary {
            void didChange(Record &record, std::string_view key) override {
                Diary::didChange(record, key);
                record.context()->removeObserver(*this);
                record.context()->removeObserver(*next);
            }
            ChangeObserver *next = nullptr;
        };
        Leaving leaving;
        Diary removed;
        Diary staying;
        leaving.next = &removed;
        for (ChangeObserver *observer :
             {static_cast<ChangeObserver *>(&leaving), static_cast<ChangeObserver *>(&removed),
              static_cast<ChangeObserver *>(&staying)}) {
            context->addObserver(*observer);
        }
        Leaf &leaf = context->insert<Leaf>();
        leaf.setTree(nullptr);
        leaf.setTree(nullptr);
        QCOMPARE(leaving.notes.count(QStringLiteral(">tree")), 1);
        QCOMPARE(removed.notes.count(QStringLiteral(">tree")), 0);
        QCOMPARE(staying.notes.count(QStringLiteral(">tree")), 2);
        context->removeObserver(staying);
        QVERIFY(!context->isObserved());
    }

private:
    Model model{{&Tree::description(), &Leaf::description(), &Bird::description()}};
    std::unique_ptr<Context> context;
};

QTEST_APPLESS_MAIN(ContextTest)
#include "context_test.moc"
