#include "outlets/map_view.h"
#include "shell/preview.h"
#include "ui/full_view_window.h"
#include "ui/map_pane.h"
#include "ui/picture_view.h"

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace pinmora;

namespace {

/// A page that loads when it is told to.
class StubPage : public MapPage {
public:
    using MapPage::MapPage;
    void begin() override { ++begun; }
    void loadAgain() override { Q_EMIT loadStarted(); }
    int begun = 0;
};

} // namespace

class ViewsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void picturesAreNeverMagnified_data();
    void picturesAreNeverMagnified();
    void fullViewClosesWithEscapeAndFitsOnClick();
    void theMapSaysHowThingsStand();
};

void ViewsTest::picturesAreNeverMagnified_data() {
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QRect>("place"); // in a view of 300 by 200

    QTest::newRow("wide") << QSize(3000, 1000) << QRect(0, 50, 300, 100);
    QTest::newRow("high") << QSize(100, 400) << QRect(125, 0, 50, 200);
    QTest::newRow("small") << QSize(20, 10) << QRect(140, 95, 20, 10);
    QTest::newRow("a line") << QSize(6000, 1) << QRect(0, 99, 300, 1);
    QTest::newRow("none") << QSize() << QRect();
}

void ViewsTest::picturesAreNeverMagnified() {
    QFETCH(QSize, picture);
    QFETCH(QRect, place);
    ImageWell well;
    Observable<bool> loading{false};
    PictureView view(well, loading);
    view.resize(300, 200);
    if (!picture.isEmpty()) {
        well.image.set(std::make_shared<QImage>(picture, QImage::Format_RGB32));
    }
    if (place.isEmpty()) {
        QVERIFY(view.pictureRect().isEmpty());
    } else {
        QCOMPARE(view.pictureRect(), place);
    }
    view.grab();
}

void ViewsTest::fullViewClosesWithEscapeAndFitsOnClick() {
    PreviewOutlets outlets;
    Preview preview(outlets, {1920, 1080});
    Window window;
    FullViewWindow widget(window, outlets.theImageViewLarge, preview);
    widget.resize(300, 200);
    outlets.theImageViewLarge.image.set(std::make_shared<QImage>(1200, 800, QImage::Format_RGB32));
    window.makeKeyAndOrderFront();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    auto *view = widget.findChild<PictureView *>();
    QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(150, 100));
    QCOMPARE(view->size(), QSize(1200, 800));
    QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(600, 400));
    QVERIFY(view->width() <= 300);
    QTest::keyClick(&widget, Qt::Key_Escape);
    QVERIFY(!window.visible.get());
    QVERIFY(!widget.isVisible());
    window.makeKeyAndOrderFront();
    widget.close();
    QVERIFY(!window.visible.get());
}

void ViewsTest::theMapSaysHowThingsStand() {
    MapView map;
    StubPage *page = nullptr;
    MapPane pane(map, [&](MapView &, QWidget *parent) { return page = new StubPage(parent); });
    auto *words = pane.findChild<QLabel *>();
    auto *again = pane.findChild<QPushButton *>();
    QCOMPARE(words->text(), QStringLiteral("The map appears here."));
    QVERIFY(!page);
    pane.show();
    QTRY_VERIFY(page);
    QCOMPARE(page->begun, 1);
    QVERIFY(words->isVisible() && !again->isVisible());
    Q_EMIT page->loadStarted();
    QCOMPARE(words->text(), QStringLiteral("The map is loading…"));
    Q_EMIT page->loadFinished(false);
    QVERIFY(again->isVisible());
    QTest::mouseClick(again, Qt::LeftButton);
    QCOMPARE(words->text(), QStringLiteral("The map is loading…"));
    QVERIFY(!again->isVisible());
    Q_EMIT page->loadFinished(true);
    QVERIFY(page->isVisible() && !words->isVisible());
}

QTEST_MAIN(ViewsTest)
#include "views_test.moc"
