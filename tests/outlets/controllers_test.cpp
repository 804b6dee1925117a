#include "outlets/array_controller.h"

#include <QTest>

using namespace pinmora;

namespace {

struct Thing {
    std::string name;
};

/// A content of things that are made and destroyed, and a table of them.
struct Table {
    std::vector<std::unique_ptr<Thing>> things;
    int fetches = 0;
    std::string heard; ///< a: arrangement changed, s: selection changed
    ArrayController<Thing> array{{.fetch =
                                      [this] {
                                          ++fetches;
                                          std::vector<Thing *> all;
                                          for (const auto &thing : things) {
                                              all.push_back(thing.get());
                                          }
                                          return all;
                                      },
                                  .remove = [this](Thing &thing) { remove(thing.name); },
                                  .count = [this] { return things.size(); }}};
    Connection arrangement = array.arrangementChanged.connect([this] { heard += 'a'; });
    Connection selection = array.selectionChanged.connect([this] { heard += 's'; });

    explicit Table(const std::string &names = {}) {
        for (char name : names) {
            add(name);
        }
        array.arrangedObjects();
        fetches = 0;
    }

    void add(char name) {
        things.push_back(std::make_unique<Thing>(Thing{std::string(1, name)}));
        array.contentChanged();
    }
    void remove(std::string name) {
        std::erase_if(things, [&](const auto &thing) { return thing->name == name; });
        array.contentChanged();
    }
    std::vector<Thing *> named(const std::string &names) const {
        std::vector<Thing *> found;
        for (char name : names) {
            for (const auto &thing : things) {
                if (thing->name[0] == name) {
                    found.push_back(thing.get());
                }
            }
        }
        return found;
    }
    void sortDownwards() {
        array.setSort([](const Thing &a, const Thing &b) { return a.name > b.name; });
    }
    std::string takeHeard() { return std::exchange(heard, {}); }
};

std::string names(const std::vector<Thing *> &things) {
    std::string names;
    for (const Thing *thing : things) {
        names += thing->name;
    }
    return names;
}

bool isCapital(const Thing &thing) {
    return thing.name < "a";
}

} // namespace

class ControllersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void arrangement() {
        Table table("bAcB");
        QCOMPARE(names(table.array.arrangedObjects()), "bAcB");
        table.sortDownwards();
        QCOMPARE(names(table.array.arrangedObjects()), "cbBA");
        table.array.setFilter(isCapital);
        QCOMPARE(names(table.array.arrangedObjects()), "BA");
        // Equal objects keep their order.
        table.array.setFilter({});
        table.array.setSort(
            [](const Thing &a, const Thing &b) { return isCapital(a) < isCapital(b); });
        QCOMPARE(names(table.array.arrangedObjects()), "bcAB");
    }

    void changesCostNothingUntilSomebodyLooks() {
        Table table;
        for (char name = 'a'; name <= 'z'; ++name) {
            table.add(name);
        }
        QCOMPARE(table.array.count(), 26U);
        QCOMPARE(table.takeHeard(), "a");
        QCOMPARE(table.fetches, 0);
        table.array.setFilter(isCapital); // counting was looking
        QCOMPARE(table.array.count(), 0U);
        QCOMPARE(table.fetches, 1);
        table.add('A');
        QCOMPARE(table.takeHeard(), "aa");
        QCOMPARE(table.array.count(), 1U);
    }

    void selectionIsInArrangedOrder() {
        Table table("abcd");
        table.array.setSelectedObjects(table.named("dab"));
        QCOMPARE(names(table.array.selectedObjects()), "abd");
        table.sortDownwards();
        QCOMPARE(names(table.array.selectedObjects()), "dba");
        QCOMPARE(table.array.firstSelectedObject()->name, "d");
        table.takeHeard();
        table.array.setSelectedObjects(table.named("bad")); // the same
        QCOMPARE(table.takeHeard(), std::string());
        table.array.select(table.named("c").front());
        QCOMPARE(names(table.array.selectedObjects()), "c");
        table.array.setSelectedObjects({});
        QCOMPARE(table.array.firstSelectedObject(), nullptr);
        QCOMPARE(table.takeHeard(), "ss");
    }

    void whatHasGoneLeavesTheSelection() {
        Table table("aBcD");
        table.array.setSelectedObjects(table.named("aBc"));
        table.takeHeard();
        table.remove("a"); // destroyed, and looked for by its address alone
        QCOMPARE(names(table.array.selectedObjects()), "Bc");
        QCOMPARE(table.takeHeard(), "as");

        // Hidden by a filter is gone, too.
        table.array.setFilter(isCapital);
        QCOMPARE(names(table.array.selectedObjects()), "B");
        table.array.setFilter({});
        QCOMPARE(names(table.array.selectedObjects()), "B");

        table.array.setSelectedObjects(table.named("BD"));
        table.takeHeard();
        table.array.contentLost(table.named("B").front());
        table.array.contentLost(table.named("D").front());
        QCOMPARE(table.takeHeard(), "as"); // nobody has looked in between
        QVERIFY(table.array.selectedObjects().empty());
    }

    void removing() {
        Table table("abcde");
        table.array.setSelectedObjects(table.named("bd"));
        table.takeHeard();
        table.array.removeObjects(table.named("ab"));
        QCOMPARE(names(table.array.selectedObjects()), "d");
        QCOMPARE(table.takeHeard(), "as");
        table.array.remove();
        table.array.remove();
        QCOMPARE(names(table.array.arrangedObjects()), "ce");
        QCOMPARE(table.takeHeard(), "as");
    }
};

QTEST_APPLESS_MAIN(ControllersTest)
#include "controllers_test.moc"
