#include "persistence/forest.h"
#include "persistence/undo_group.h"
#include "persistence/undo_listener.h"
#include "rows.h"

#include <random>

using namespace pinmora;
using namespace pinmora::test;

namespace {

/// All that a forest holds, in words: records in their order, by serial.
std::string contentsOf(const Context &context) {
    std::string words;
    for (const Tree *tree : context.records<Tree>()) {
        words += "tree" + std::to_string(tree->serial()) + '(';
        std::vector<std::uint32_t> leaves; // a set: in no order
        for (const Record *leaf : tree->leaves) {
            leaves.push_back(leaf->serial());
        }
        std::sort(leaves.begin(), leaves.end());
        for (const std::uint32_t leaf : leaves) {
            words += std::to_string(leaf) + ' ';
        }
        words += ") ";
    }
    for (const Leaf *leaf : context.records<Leaf>()) {
        words += "leaf" + std::to_string(leaf->serial()) + leaf->colour().string() +
                 std::to_string(leaf->tree() ? leaf->tree()->serial() : 0) + ' ';
    }
    for (const Bird *bird : context.records<Bird>()) {
        words += "bird" + std::to_string(bird->serial()) + '@' +
                 std::to_string(bird->nest() ? bird->nest()->serial() : 0) + ' ';
    }
    return words;
}

/// Does something to a forest.
class Gardener {
public:
    Gardener(Context &context, unsigned seed) : context_(context), random_(seed) {}

    bool chance(unsigned oneIn) { return random_() % oneIn == 0; }

    void work() {
        switch (random_() % 8) {
        case 0:
            context_.insert<Tree>();
            break;
        case 1:
        case 2:
            grow();
            break;
        case 3:
            context_.insert<Bird>().setNest(any<Tree>());
            break;
        case 4:
            if (Leaf *leaf = any<Leaf>()) {
                leaf->setColour(chance(2) ? "red" : "brown");
            }
            break;
        case 5:
            if (Leaf *leaf = any<Leaf>()) {
                leaf->setTree(chance(3) ? nullptr : any<Tree>());
            }
            break;
        case 6:
            if (Bird *bird = any<Bird>()) {
                bird->setNest(any<Tree>());
            }
            break;
        default:
            fell();
        }
    }

private:
    template <class R>
    R *any() {
        const auto all = context_.fetch<R>();
        return all.empty() ? nullptr : all[random_() % all.size()];
    }
    void grow() {
        for (unsigned count = random_() % 4; count-- > 0;) {
            auto &leaf = context_.insert<Leaf>();
            leaf.setColour("green");
            leaf.setTree(any<Tree>());
        }
    }
    void fell() {
        Record *victim = chance(2) ? static_cast<Record *>(any<Tree>()) : any<Leaf>();
        if (victim) {
            context_.deleteObject(*victim);
        }
    }

    Context &context_;
    std::mt19937 random_;
};

} // namespace

/// Undo against plain copies, under whatever comes.
class RandomUndoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anythingCanBeTakenBackAndDoneAgain_data() {
        const auto row = rowsByValue<unsigned>();
        for (unsigned seed = 1; seed <= 30; ++seed) {
            row(seed);
        }
    }

    /// The forest after each step is written down; undo and redo in any order lead to just those.
    void anythingCanBeTakenBackAndDoneAgain() {
        const auto [seed] = fetch<unsigned>();
        Forest forest;
        UndoManager undo(forest.context);
        Gardener gardener(forest.context, seed);
        Listener listener(undo);
        std::vector<std::string> states{contentsOf(forest.context)};
        std::size_t now = 0;
        for (int action = 0; action < 400; ++action) {
            if (gardener.chance(3) && now > 0) {
                undo.undo();
                --now;
            } else if (gardener.chance(3) && now + 1 < states.size()) {
                undo.redo();
                ++now;
            } else {
                const int before = listener.histories;
                {
                    const UndoGroup group(forest.context, "work");
                    do {
                        gardener.work();
                        if (gardener.chance(8)) {
                            QCoreApplication::processEvents(); // a part ends
                        }
                    } while (!gardener.chance(3));
                }
                if (listener.histories > before) {
                    states.resize(++now);
                    states.push_back(contentsOf(forest.context));
                }
                if (gardener.chance(10)) {
                    forest.context.commitChanges();
                }
            }
            QCOMPARE(contentsOf(forest.context), states[now]);
            QCOMPARE(undo.canUndo(), now > 0);
            QCOMPARE(undo.canRedo(), now + 1 < states.size());
        }
        for (; now > 0; --now) {
            undo.undo();
            QCOMPARE(contentsOf(forest.context), states[now - 1]);
        }
        for (; now + 1 < states.size(); ++now) {
            undo.redo();
            QCOMPARE(contentsOf(forest.context), states[now + 1]);
        }
    }
};

QTEST_GUILESS_MAIN(RandomUndoTest)
#include "random_undo_test.moc"
