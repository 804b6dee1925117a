#include "ui/photo_table_model.h"

#include "ui/photo_desk.h"
#include "ui/photo_filter.h"
#include "ui/photo_selection.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <random>

using namespace pinmora;

namespace {

/// The model in a view, as the panel puts them together.
struct Table : PhotoDesk {
    Table() {
        view.setModel(&filter);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        selection.emplace(view, photos, filter, pictureArray, &notifications);
    }
    void clickRow(int row) {
        view.selectionModel()->setCurrentIndex(
            filter.index(row, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    std::vector<image *> selectedInView() const {
        std::vector<image *> found;
        for (int row = 0; row < filter.rowCount(); ++row) {
            if (view.selectionModel()->isRowSelected(row, {})) {
                found.push_back(filter.photoAt(filter.index(row, 0)));
            }
        }
        return found;
    }

    PhotoTableModel photos{context, pictureArray, gaps, order};
    PhotoFilter filter{photos};
    QTableView view;
    std::optional<PhotoSelection> selection;
};

std::vector<image *> rowsOf(const PhotoTableModel &model) {
    std::vector<image *> rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        rows.push_back(model.photoAt(row));
    }
    return rows;
}

/// Asks for everything that a view could ask for.
void readAll(const QAbstractItemModel &model) {
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            for (const int role : {int(Qt::DisplayRole), int(Qt::AccessibleTextRole),
                                   int(PhotoTableModel::SecondLine), int(PhotoTableModel::IsFar)}) {
                (void)model.index(row, column).data(role);
            }
        }
    }
}

} // namespace

class PhotoTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void followsTheLibrary();
    void aLoadIsOneReset();
    void changesAreToldOnceATurn();
    void selectionIsOneOnBothSides();
    void selectionStaysOverSortingAndLoading();
    void deletionOfTheSelectedIsTold();
    void photoBeingWorkedOnStaysInSight();
    void selectingAllTakesWhatIsSeen();
};

/// Whatever is done to the library, and in whatever order it comes between turns, every row is a
/// photo that is there or empty, and in the end the rows are the arrangement.
void PhotoTableTest::followsTheLibrary() {
    Table table;
    const QAbstractItemModelTester model(&table.photos,
                                         QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QAbstractItemModelTester filter(&table.filter,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    std::mt19937 random(7);
    const char *const keys[] = {"", "image_name", "lat", "gap"};
    for (int step = 0; step < 300; ++step) {
        const auto &arranged = table.pictureArray.arrangedObjects();
        image *const one = arranged.empty() ? nullptr : arranged[random() % arranged.size()];
        switch (random() % 8) {
        case 0:
        case 1:
            table.addPhoto("N" + std::to_string(random() % 50));
            break;
        case 2:
            if (one) {
                table.context.deleteObject(*one);
            }
            break;
        case 3:
            table.order.order.set({.key = keys[random() % 4], .ascending = random() % 2 == 0});
            break;
        case 4:
            if (one) {
                one->setImage_name("M" + std::to_string(random() % 50));
            }
            break;
        case 5:
            if (one) {
                one->updateLatAndLon({std::to_string(random() % 80), "8.5"});
            }
            break;
        case 6:
            table.pictureArray.setSelectedObjects(one ? std::vector{one} : std::vector<image *>{});
            break;
        default:
            table.filter.setOnlyWithoutPosition(random() % 2 == 0);
            QCoreApplication::processEvents();
        }
        readAll(table.filter);
    }
    QTRY_COMPARE(rowsOf(table.photos), table.pictureArray.arrangedObjects());
    QTRY_COMPARE(table.selectedInView(), table.pictureArray.selectedObjects());
    QVERIFY(table.photos.rowCount() > 10);
}

void PhotoTableTest::aLoadIsOneReset() {
    Table table;
    QSignalSpy resets(&table.photos, &QAbstractItemModel::modelReset);
    table.addPhotos(10'000);
    QTRY_COMPARE(table.photos.rowCount(), 10'000);
    QCOMPARE(resets.count(), 1);
    QSignalSpy moves(&table.photos, &QAbstractItemModel::layoutChanged);
    table.order.order.set({.key = "image_name", .ascending = false});
    QTRY_COMPARE(moves.count(), 1);
    QCOMPARE(resets.count(), 1);
    QCOMPARE(table.photos.index(0, 0).data().toString(), QStringLiteral("P9999.JPG"));
}

void PhotoTableTest::changesAreToldOnceATurn() {
    Table table;
    const std::vector<image *> photos = table.addPhotos(5);
    QTRY_COMPARE(table.photos.rowCount(), 5);
    QSignalSpy changes(&table.photos, &QAbstractItemModel::dataChanged);
    photos[3]->setImage_name("new");
    photos[3]->setCity("Zug");
    photos[3]->setAlt("425");
    QVERIFY(changes.isEmpty());
    QTRY_COMPARE(changes.count(), 1);
    QCOMPARE(changes[0][0].toModelIndex().row(), 3);
    QCOMPARE(changes[0][1].toModelIndex().row(), 3);
}

void PhotoTableTest::selectionIsOneOnBothSides() {
    Table table;
    const std::vector<image *> photos = table.addPhotos(6);
    QTRY_COMPARE(table.photos.rowCount(), 6);

    table.clickRow(2);
    QCOMPARE(table.pictureArray.selectedObjects(), std::vector{photos[2]});
    QCOMPARE(table.told, 1);

    table.pictureArray.setSelectedObjects({photos[4], photos[5], photos[0]});
    QTRY_COMPARE(table.told, 2);
    QCOMPARE(table.selectedInView(), (std::vector{photos[0], photos[4], photos[5]}));

    table.view.clearSelection();
    QVERIFY(table.pictureArray.selectedObjects().empty());
    QCOMPARE(table.told, 3);
    QCoreApplication::processEvents();
    QCOMPARE(table.told, 3);
}

void PhotoTableTest::selectionStaysOverSortingAndLoading() {
    Table table;
    const std::vector<image *> photos = table.addPhotos(6);
    QTRY_COMPARE(table.photos.rowCount(), 6);
    table.clickRow(1);

    table.order.order.set({.key = "image_name", .ascending = false});
    QTRY_COMPARE(table.photos.photoAt(0), photos[5]);
    QCOMPARE(table.selectedInView(), std::vector{photos[1]});
    QCOMPARE(table.view.currentIndex().row(), 4);

    table.addPhotos(3);
    QTRY_COMPARE(table.photos.rowCount(), 9);
    QCOMPARE(table.selectedInView(), std::vector{photos[1]});
    QCOMPARE(table.filter.photoAt(table.view.currentIndex()), photos[1]);
    QCOMPARE(table.told, 1);
}

void PhotoTableTest::deletionOfTheSelectedIsTold() {
    Table table;
    const std::vector<image *> photos = table.addPhotos(4);
    QTRY_COMPARE(table.photos.rowCount(), 4);
    table.clickRow(2);
    table.pictureArray.remove();
    QTRY_COMPARE(table.photos.rowCount(), 3);
    QTRY_COMPARE(table.told, 2);
    QVERIFY(table.selectedInView().empty());
    QCOMPARE(table.filter.photoAt(table.view.currentIndex()), photos[3]); // the keyboard goes on
}

void PhotoTableTest::photoBeingWorkedOnStaysInSight() {
    Table table;
    image &placed = table.addPhoto("placed", {"47.1", "8.2"});
    image &first = table.addPhoto("first");
    image &second = table.addPhoto("second");
    QTRY_COMPARE(table.filter.rowCount(), 3);
    table.filter.setOnlyWithoutPosition(true);
    QCOMPARE(table.filter.rowCount(), 2);

    table.clickRow(0);
    first.updateLatAndLon({"47.3", "8.5"});
    QSignalSpy changes(&table.photos, &QAbstractItemModel::dataChanged);
    QTRY_VERIFY(!changes.isEmpty());
    QCOMPARE(table.selectedInView(), std::vector{&first});

    table.clickRow(1);
    QTRY_COMPARE(table.filter.rowCount(), 1);
    QCOMPARE(table.selectedInView(), std::vector{&second});

    table.pictureArray.setSelectedObjects({&placed}); // by a click elsewhere
    QTRY_COMPARE(table.selectedInView(), std::vector{&placed});
}

void PhotoTableTest::selectingAllTakesWhatIsSeen() {
    Table table;
    table.addPhoto("placed", {"47.1", "8.2"});
    image &bare = table.addPhoto("bare");
    QTRY_COMPARE(table.filter.rowCount(), 2);
    table.filter.setOnlyWithoutPosition(true);
    table.view.selectAll();
    QCOMPARE(table.pictureArray.selectedObjects(), std::vector{&bare});
}

QTEST_MAIN(PhotoTableTest)
#include "photo_table_test.moc"
