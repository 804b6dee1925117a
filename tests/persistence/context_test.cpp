#include "persistence/context.h"
#include "persistence/property.h"
#include "persistence/record.h"

#include <QtTest>

#include <random>
#include <set>

using namespace pinmora;

namespace {

class Leaf;

/// A tree with leaves is the smallest graph that has every kind of key.
class Tree : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }
    RecordList leafList() const { return leaves; }

    RecordList leaves;
};

class Leaf : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    const Text &colour() const { return read("colour", colour_); }
    /// Unlike a raw write, the setter trims a blank.
    void setColour(Text colour) {
        change("colour", colour_, colour == " green" ? Text("green") : colour);
    }
    void setColourOf(Text season) { setColour(season == "autumn" ? "red" : "green"); }
    std::string label() const { return "a " + colour().string() + " leaf"; }
    Tree *tree() const { return tree_; }
    void setTree(Tree *tree) {
        willChangeValueForKey("tree");
        link(tree);
        didChangeValueForKey("tree");
    }

private:
    void link(Tree *tree) {
        if (tree_) {
            std::erase(tree_->leaves, this);
        }
        tree_ = tree;
        if (tree_) {
            tree_->leaves.push_back(this);
        }
    }
    Text colour_;
    Tree *tree_ = nullptr;
};

class Bird : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }
    Tree *nest() const { return nest_; }
    void setNest(Tree *tree) { change("nest", nest_, tree); }

private:
    void link(Tree *tree) { nest_ = tree; }
    Tree *nest_ = nullptr;
};

const EntityDescription &Tree::description() {
    static const EntityDescription entity(
        "tree", []() -> std::unique_ptr<Record> { return std::make_unique<Tree>(); },
        {toMany<&Tree::leafList>("leaves", "tree", DeleteRule::Cascade)});
    return entity;
}

const EntityDescription &Leaf::description() {
    static const EntityDescription entity(
        "leaf", []() -> std::unique_ptr<Record> { return std::make_unique<Leaf>(); },
        {attribute<&Leaf::colour, &Leaf::setColour, &Leaf::colour_>("colour"),
         writeOnly<&Leaf::setColourOf>("colourOf"), derived<&Leaf::label>("label", {"colour"}),
         toOne<&Leaf::tree, &Leaf::setTree, &Leaf::tree_, &Leaf::link>("tree", "leaves")});
    return entity;
}

const EntityDescription &Bird::description() {
    static const EntityDescription entity(
        "bird", []() -> std::unique_ptr<Record> { return std::make_unique<Bird>(); },
        {toOne<&Bird::nest, &Bird::setNest, &Bird::nest_, &Bird::link>("nest")});
    return entity;
}

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

    void keysGoThroughTheSetterAndPrimitivesDoNot();
    void unknownKeysAreRefused();
    void dependentKeysFollowInsideTheNotices();
    void deletionTakesWhatTheRuleSaysAndEndsTheOtherLinks();
    void aCascadeKeepsWhatItDeletesLinked();
    void bookkeepingFollowsTheLifeOfARecord();
    void fetchKeepsTheOrderOfInsertion();
    void observersMayLeaveWhileTheyAreTold();

private:
    Model model{{&Tree::description(), &Leaf::description(), &Bird::description()}};
    std::unique_ptr<Context> context;
};

void ContextTest::keysGoThroughTheSetterAndPrimitivesDoNot() {
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

void ContextTest::unknownKeysAreRefused() {
    Record &leaf = context->insert<Leaf>();
    QVERIFY_EXCEPTION_THROWN(leaf.valueForKey("size"), UnknownKeyError);
    QVERIFY_EXCEPTION_THROWN(leaf.setValue("x", "label"), UnknownKeyError);
    QVERIFY_EXCEPTION_THROWN(leaf.valueForKey("colourOf"), UnknownKeyError);
    QVERIFY_EXCEPTION_THROWN(leaf.setPrimitiveValue("x", "colourOf"), UnknownKeyError);
    QVERIFY_EXCEPTION_THROWN(context->insertNewObjectForEntityForName("root"), UnknownKeyError);
}

void ContextTest::dependentKeysFollowInsideTheNotices() {
    Diary diary;
    context->addObserver(diary);
    auto &leaf = context->insert<Leaf>();
    leaf.setColour("red");
    QCOMPARE(diary.notes.join(u' '), QStringLiteral("+leaf <colour <label >label >colour"));
    diary.notes.clear();
    QCOMPARE(leaf.label(), std::string("a red leaf"));
    QCOMPARE(diary.notes.join(u' '), QStringLiteral("?colour"));
    context->removeObserver(diary);
    leaf.setColour("blue");
    QCOMPARE(diary.notes.size(), 1);
}

void ContextTest::deletionTakesWhatTheRuleSaysAndEndsTheOtherLinks() {
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
    context->addObserver(diary);
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

void ContextTest::aCascadeKeepsWhatItDeletesLinked() {
    auto &tree = context->insert<Tree>();
    auto &leaf = context->insert<Leaf>();
    leaf.setTree(&tree);
    context->commitChanges();
    context->deleteObject(tree);
    QVERIFY(leaf.isDeleted() && leaf.context() == nullptr);
    QVERIFY(leaf.tree() == &tree);
    QCOMPARE(context->deletedObjects().size(), 2u);
    context->deleteObject(leaf); // a second time changes nothing
    QCOMPARE(context->deletedObjects().size(), 2u);
}

void ContextTest::bookkeepingFollowsTheLifeOfARecord() {
    QVERIFY(!context->hasChanges());
    auto &kept = context->insert<Leaf>();
    auto &dropped = context->insert<Leaf>();
    QCOMPARE(context->insertedObjects().size(), 2u);
    context->deleteObject(dropped);
    QVERIFY(context->deletedObjects().empty()); // no commit ever knew it
    kept.setColour("red");
    QVERIFY(kept.isInserted());
    context->commitChanges();
    QVERIFY(!context->hasChanges());

    kept.setPrimitiveValue("raw", "colour");
    QVERIFY(!context->hasChanges());
    kept.setColour("red");
    QVERIFY(kept.isUpdated() && context->updatedObjects() == RecordList{&kept});
    context->deleteObject(kept);
    QVERIFY(context->updatedObjects().empty());
    QVERIFY(context->deletedObjects() == RecordList{&kept});
    QVERIFY(context->hasChanges());
    context->commitChanges();
    QVERIFY(!context->hasChanges() && context->deletedObjects().empty());
}

void ContextTest::fetchKeepsTheOrderOfInsertion() {
    std::mt19937 random(7);
    std::vector<Leaf *> expected;
    for (int step = 0; step < 500; ++step) {
        if (!expected.empty() && random() % 3 == 0) {
            const auto victim = expected.begin() + static_cast<long>(random() % expected.size());
            context->deleteObject(**victim);
            expected.erase(victim);
        } else {
            expected.push_back(&context->insert<Leaf>());
        }
        QVERIFY(context->fetch<Leaf>() == expected);
    }
    QCOMPARE(context->fetch("leaf").size(), expected.size());
}

void ContextTest::observersMayLeaveWhileTheyAreTold() {
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

QTEST_APPLESS_MAIN(ContextTest)
#include "context_test.moc"
