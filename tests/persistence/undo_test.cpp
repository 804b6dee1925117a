#include "persistence/forest.h"
#include "persistence/undo_group.h"
#include "persistence/undo_listener.h"

#include <QtTest>

using namespace pinmora;
using namespace pinmora::test;

class UndoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        forest = std::make_unique<Forest>();
        undo = std::make_unique<UndoManager>(forest->context);
    }
    void cleanup() {
        undo.reset();
        forest.reset();
    }

    void aTurnIsAStepAndAGroupIsOneHoweverManyTurns() {
        auto &leaf = forest->context.insert<Leaf>();
        QCoreApplication::processEvents();
        leaf.setColour("red");
        leaf.setColour("brown");
        QCoreApplication::processEvents();
        leaf.setColour("black");
        undo->undo();
        QVERIFY(leaf.colour() == "brown");
        undo->undo();
        QVERIFY(!leaf.colour().hasValue());

        Listener listener(*undo);
        undo->beginGroup("Drag");
        for (const char *colour : {"yellow", "orange"}) {
            leaf.setColour(colour);
            QCoreApplication::processEvents();
        }
        undo->beginGroup("inner");
        leaf.setColour("gold");
        undo->endGroup();
        undo->undo(); // not in the middle
        QVERIFY(leaf.colour() == "gold");
        undo->endGroup();
        QCOMPARE(listener.parts, 3);
        QCOMPARE(undo->undoActionName(), "Drag");
        undo->undo();
        QVERIFY(!leaf.colour().hasValue());
        QCOMPARE(undo->redoActionName(), "Drag");
    }

    void whatChangesNothingIsNoStep() {
        auto &leaf = forest->context.insert<Leaf>();
        leaf.setColour("red");
        undo->closeStep();
        undo->undo();
        undo->redo();
        undo->undo();
        { const UndoGroup group(forest->context, "nothing"); }
        QVERIFY(undo->canRedo());
        undo->redo();
        leaf.setColour("red");
        undo->closeStep();
        undo->undo();
        QCOMPARE(forest->context.count<Leaf>(), 0u);
    }

    void whatTheProgramDoesIsNoStepAndIsTold() {
        Listener listener(*undo);
        Leaf *leaf = nullptr;
        {
            const UnregisteredChanges own(forest->context);
            leaf = &forest->context.insert<Leaf>();
            leaf->setColour("green");
        }
        QVERIFY(!undo->canUndo());
        QCOMPARE(listener.asides, 1);
        leaf->setColour("red"); // a person's again
        undo->undo();
        QVERIFY(leaf->colour() == "green");
        undo->redo();
        {
            const UnregisteredChanges own(forest->context);
            forest->context.deleteObject(*leaf);
        }
        QVERIFY(!undo->canUndo() && !undo->canRedo()); // what it stood on is gone
    }

    void laterAnswersJoinTheirStep() {
        auto &asking = forest->context.insert<Leaf>();
        auto &other = forest->context.insert<Leaf>();
        undo->closeStep();
        asking.setTree(&forest->context.insert<Tree>());
        const std::uint64_t step = undo->currentStep();
        undo->closeStep();
        other.setColour("red");
        undo->closeStep();

        QVERIFY(undo->beginJoining(step));
        asking.setColour("brown");
        undo->endJoining();
        undo->undo();
        QVERIFY(!other.colour().hasValue() && asking.colour() == "brown");
        undo->undo();
        QVERIFY(!asking.colour().hasValue() && !asking.tree());
        undo->redo();
        QVERIFY(asking.colour() == "brown" && asking.tree());
        QVERIFY(undo->beginJoining(step));
        asking.setColour("grey");
        undo->endJoining();
        asking.setColour("typed");
        undo->closeStep();
        QVERIFY(undo->beginJoining(step));
        asking.setColour("late");
        undo->endJoining();
        undo->undo();
        QVERIFY(asking.colour() == "grey");
        undo->undo();
        QVERIFY(!asking.colour().hasValue());
        QVERIFY(!undo->beginJoining(step)); // taken back: nobody asks any more
    }

    void aStepThatCameToNothingLetsItsAnswerBeOne() {
        auto &leaf = forest->context.insert<Leaf>();
        leaf.setColour("red");
        undo->closeStep();
        leaf.setColour("red");
        const std::uint64_t step = undo->currentStep();
        undo->closeStep();
        QVERIFY(undo->beginJoining(step));
        leaf.setColour("brown");
        undo->endJoining();
        undo->undo();
        QVERIFY(leaf.colour() == "red");
    }

    /// An observer that keeps every leaf of a kind green.
    void answersToUndoAreToldAndNotRegistered() {
        struct Painter : ChangeObserver {
            void didChange(Record &record, std::string_view key) override {
                auto &leaf = static_cast<Leaf &>(record);
                if (key == "tree" && !leaf.tree() && active) {
                    leaf.setColour("green");
                    const UndoGroup group(*leaf.context(), "in answer");
                    leaf.context()->insert<Bird>();
                }
            }
            bool active = false;
        } painter;
        auto &leaf = forest->context.insert<Leaf>();
        undo->closeStep();
        leaf.setTree(&forest->context.insert<Tree>());
        undo->closeStep();
        forest->context.addObserver(painter, {.entity = &Leaf::description()});
        Listener listener(*undo);
        painter.active = true;
        undo->undo();
        painter.active = false;
        QCOMPARE(listener.asides, 1);
        QVERIFY(leaf.colour() == "green" && forest->context.count<Bird>() == 1);
        QVERIFY(undo->canRedo());
        undo->redo();
        QVERIFY(leaf.tree() && leaf.colour() == "green");
        forest->context.removeObserver(painter);
    }

    void linksToWhatWasTakenBackEnd() {
        Leaf *leaf = nullptr;
        Bird *bird = nullptr;
        auto &tree = forest->context.insert<Tree>();
        undo->closeStep();
        {
            const UnregisteredChanges own(forest->context);
            leaf = &forest->context.insert<Leaf>();
            leaf->setTree(&tree);
            bird = &forest->context.insert<Bird>();
            bird->setNest(&tree);
        }
        undo->undo();
        QVERIFY(!leaf->tree() && !bird->nest());
        undo->redo();
        QVERIFY(leaf->tree() == &tree && bird->nest() == &tree);
    }

    void commitsDoNotForgetAndChangesCountFromThem() {
        Context &context = forest->context;
        {
            const UndoGroup group(context, "saves in between");
            auto &early = context.insert<Bird>();
            auto &late = context.insert<Bird>();
            context.commitChanges();
            context.deleteObject(early);
            context.commitChanges();
            context.deleteObject(late);
        }
        undo->undo();
        undo->removeAllActions();
        context.commitChanges();
        QVERIFY(!context.hasChanges() && context.count<Bird>() == 0);
        auto &tree = context.insert<Tree>();
        auto &leaf = context.insert<Leaf>();
        leaf.setTree(&tree);
        context.commitChanges();
        context.deleteObject(tree);
        QVERIFY(context.hasChanges());
        context.commitChanges();
        QVERIFY(!context.hasChanges());
        undo->undo();
        QVERIFY(context.hasChanges() && leaf.isInserted() && leaf.tree() == &tree);
        undo->undo();
        QVERIFY(!context.hasChanges()); // empty, as it was saved
        undo->redo();
        context.commitChanges();
        undo->undo();
        QVERIFY(context.hasChanges());
        QCOMPARE(context.count<Leaf>(), 0u);
    }

private:
    std::unique_ptr<Forest> forest;
    std::unique_ptr<UndoManager> undo;
};

QTEST_GUILESS_MAIN(UndoTest)
#include "undo_test.moc"
