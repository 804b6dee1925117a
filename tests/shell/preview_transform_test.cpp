#include "shell/preview_transform.h"

#include <QTest>

#include "platform/tagged_photo.h"

using namespace pinmora;

namespace {

PropertyDictionary properties(double orientation, double dpiWidth, double dpiHeight) {
    PropertyDictionary top;
    top.set("PixelWidth", 3000.0);
    top.set("PixelHeight", 2000.0);
    if (orientation >= 0) {
        top.set("Orientation", orientation);
    }
    if (dpiWidth > 0) {
        top.set("DPIWidth", dpiWidth);
        top.set("DPIHeight", dpiHeight);
    }
    return top;
}

QByteArray text(const AffineTransform &transform) {
    QByteArrayList list;
    for (const double value :
         {transform.a, transform.b, transform.c, transform.d, transform.tx, transform.ty}) {
        list << QByteArray::number(value + 0.0); // no "-0"
    }
    return list.join(' ');
}

} // namespace

/// How pictures are turned upright.
class PreviewTransformTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void table_data() {
        QTest::addColumn<double>("orientation");
        QTest::addColumn<double>("dpiWidth");
        QTest::addColumn<double>("dpiHeight");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](double orientation, double dpiWidth, double dpiHeight,
                            const char *expected) {
            QTest::addRow("%g at %g by %g", orientation, dpiWidth, dpiHeight)
                << orientation << dpiWidth << dpiHeight << QByteArray(expected);
        };
        row(1, 72, 72, "1 0 0 1 0 0");
        row(2, 72, 72, "-1 0 0 1 3000 0");
        row(3, 72, 72, "-1 0 0 -1 3000 2000");
        row(4, 72, 72, "1 0 0 -1 0 2000");
        row(5, 72, 72, "0 -1 -1 0 2000 3000");
        row(6, 72, 72, "0 -1 1 0 0 3000");
        row(7, 72, 72, "0 1 1 0 0 0");
        row(8, 72, 72, "0 1 -1 0 2000 0");
        row(6, 300, 150, "0 -1 2 0 0 3000");
        row(8, 300, 150, "0 1 -2 0 4000 0");
        row(3, 150, 300, "-2 0 0 -1 6000 2000");
        row(5, 150, 300, "0 -2 -1 0 2000 6000");
        row(6, 0, 0, "0 -1 1 0 0 3000"); // no resolution counts as 72
        row(1, 36, -1, "2 0 0 1 0 0");   // nor does a part of it
        for (const double unknown : {-1, 0, 9, 65535}) {
            row(unknown, 300, 300, "1 0 0 1 0 0");
        }
    }

    void table() {
        QFETCH(double, orientation);
        QFETCH(double, dpiWidth);
        QFETCH(double, dpiHeight);
        QTEST(text(imageTransform(properties(orientation, dpiWidth, dpiHeight))), "expected");
    }

    void allLookAlike_data() {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QSize>("stored");
        QTest::addColumn<QByteArray>("quarters");
        const auto row = [](int orientation, QSize stored, const char *quarters) {
            QTest::newRow(qPrintable(QString::number(orientation)))
                << orientation << stored << QByteArray(quarters);
        };
        // What the eight ways to store a picture make of the one that is stored upright as RGBW.
        row(1, {60, 40}, "60x40 RGBW");
        row(2, {60, 40}, "60x40 GRWB");
        row(3, {60, 40}, "60x40 WBGR");
        row(4, {60, 40}, "60x40 BWRG");
        row(5, {60, 40}, "40x60 RBGW");
        row(6, {60, 40}, "40x60 BRWG");
        row(7, {60, 40}, "40x60 WGBR");
        row(8, {60, 40}, "40x60 GWRB");
    }

    void allLookAlike() {
        QFETCH(int, orientation);
        QFETCH(QSize, stored);
        const QImage image = quarters(stored.width(), stored.height());
        const auto top = properties(orientation, 72, 72);
        QTEST(described(transformed(image, imageTransform(top))), "quarters");
    }

    void pixelsBecomeSquare() {
        const QImage image = quarters(60, 40);
        const auto at = [&](double orientation, double dpiWidth, double dpiHeight) {
            const auto top = properties(orientation, dpiWidth, dpiHeight);
            return described(transformed(image, imageTransform(top)));
        };
        QCOMPARE(at(1, 300, 150), "60x80 RGBW");
        QCOMPARE(at(6, 300, 150), "80x60 BRWG");
        QCOMPARE(at(8, 150, 300), "40x120 GWRB");
        // No file makes the program ask for all the memory there is.
        const auto top = properties(1, 100'000, 1);
        const QImage strip = transformed(image, imageTransform(top));
        QVERIFY(strip.height() <= 32'000 && strip.width() >= 1);
    }

    void noClaimedResolutionTakesAllMemory_data() {
        QTest::addColumn<QSize>("stored");
        QTest::addColumn<double>("orientation");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("both sides") << QSize(20'000, 1000) << 1.0 << QSize(12'247, 12'247);
        QTest::newRow("on its side") << QSize(20'000, 500) << 6.0 << QSize(8660, 17'321);
        QTest::newRow("one side") << QSize(100, 5000) << 1.0 << QSize(32, 32'000);
        QTest::newRow("within reason") << QSize(3000, 2000) << 6.0 << QSize(32'000, 2400);
    }

    /// The file says that its pixels are twenty times as high as wide.
    void noClaimedResolutionTakesAllMemory() {
        QFETCH(QSize, stored);
        QFETCH(double, orientation);
        const auto transform = imageTransform(properties(orientation, 2000, 100));
        const PixelSize after = sizeAfter({stored.width(), stored.height()}, transform);
        QTEST(QSize(after.width, after.height), "expected");
        // One that is that large by itself stays as it is.
        QCOMPARE(sizeAfter({20'000, 10'000}, {}).width, 20'000);
    }

    void fitIsThatOfTheResult() {
        const auto before = [](double orientation, double dpiWidth, double dpiHeight) {
            const auto transform = imageTransform(properties(orientation, dpiWidth, dpiHeight));
            const PixelSize size = sizeBefore({1600, 1000}, transform);
            return QSize(size.width, size.height);
        };
        QCOMPARE(before(3, 72, 72), QSize(1600, 1000));
        QCOMPARE(before(6, 72, 72), QSize(1000, 1600));
        QCOMPARE(before(1, 300, 150), QSize(1600, 500));
        QCOMPARE(before(8, 300, 150), QSize(1000, 800));
    }
};

QTEST_APPLESS_MAIN(PreviewTransformTest)

#include "preview_transform_test.moc"
