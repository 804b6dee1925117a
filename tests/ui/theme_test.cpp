#include "ui/theme.h"

#include "ui/icons.h"

#include <QApplication>
#include <QDirIterator>
#include <QTest>

using namespace pinmora;

namespace {

QColor averageInk(const QImage &picture) {
    double red = 0;
    double green = 0;
    double blue = 0;
    double all = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            const auto share = static_cast<double>(pixel.alphaF());
            red += share * static_cast<double>(pixel.redF());
            green += share * static_cast<double>(pixel.greenF());
            blue += share * static_cast<double>(pixel.blueF());
            all += share;
        }
    }
    return all > 0
               ? QColor::fromRgbF(static_cast<float>(red / all), static_cast<float>(green / all),
                                  static_cast<float>(blue / all))
               : QColor();
}

} // namespace

class ThemeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void contrastIsOfTheStandard();
    void textCanBeRead_data();
    void textCanBeRead();
    void looksChange();
    void iconsStandOutFromTheirGround_data();
    void iconsStandOutFromTheirGround();
};

void ThemeTest::contrastIsOfTheStandard() {
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    // #767676 is known as the lightest grey that passes on white.
    QVERIFY(contrast(QColor(0x76, 0x76, 0x76), Qt::white) >= 4.5);
    QVERIFY(contrast(Qt::white, QColor(0x77, 0x77, 0x77)) < 4.5);
}

void ThemeTest::textCanBeRead_data() {
    QTest::addColumn<bool>("dark");
    QTest::addColumn<QColor>("accent");
    for (const bool dark : {false, true}) {
        const QByteArray look = dark ? "dark, " : "light, ";
        QTest::addRow("%sown accent", look.data()) << dark << QColor();
        for (const char *accent : {"#3daee9", "#ffdd00", "#101060", "#ffffff", "#000000"}) {
            QTest::addRow("%s%s", look.data(), accent) << dark << QColor(QLatin1StringView(accent));
        }
    }
}

void ThemeTest::textCanBeRead() {
    QFETCH(const bool, dark);
    QFETCH(const QColor, accent);
    const Colours c = coloursFor(dark, accent);
    QCOMPARE(c.dark, dark);
    for (const QColor &ground : {c.window, c.content}) {
        for (const QColor &ink : {c.text, c.quietText, c.accent, c.warning}) {
            QVERIFY2(contrast(ink, ground) >= 4.5,
                     qPrintable(ink.name() + QStringLiteral(" on ") + ground.name()));
        }
        QVERIFY(contrast(c.disabledText, ground) >= 3);
        QVERIFY(contrast(c.edge, ground) >= 3);
    }
    // Frames of what has the focus.
    for (const QColor &ground : {c.line, c.accentGround, c.warningGround}) {
        QVERIFY2(contrast(c.accent, ground) >= 3, qPrintable(ground.name()));
    }
    QVERIFY(contrast(c.disabledText, c.accentGround) >= 3);
    QVERIFY(contrast(c.warning, c.warningGround) >= 4.5);
    QVERIFY(contrast(c.text, c.warningGround) >= 4.5);
    QVERIFY(contrast(c.text, c.accentGround) >= 4.5);
    QVERIFY(contrast(c.quietText, c.accentGround) >= 4.5);
    QVERIFY(contrast(c.onAccent(), c.accent) >= 4.5);
}

void ThemeTest::looksChange() {
    for (const Appearance look : {Appearance::Dark, Appearance::Light, Appearance::Dark}) {
        applyTheme(*qApp, look);
        QCOMPARE(colours().dark, look == Appearance::Dark);
        QCOMPARE(QApplication::palette().color(QPalette::Base), colours().content);
        // A name of a colour that has none would spoil the sheet from there on.
        QVERIFY(!qApp->styleSheet().contains(QLatin1Char('@')));
    }
}

void ThemeTest::iconsStandOutFromTheirGround_data() {
    QTest::addColumn<QString>("name");
    QDirIterator files(QStringLiteral(":/icons"));
    while (files.hasNext()) {
        files.next();
        const QString name = files.fileInfo().baseName();
        if (!name.startsWith(QLatin1StringView("mark-"))) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }
}

/// Also those that stand in the style sheet, whose colour is fixed.
void ThemeTest::iconsStandOutFromTheirGround() {
    QFETCH(const QString, name);
    for (const Appearance look : {Appearance::Light, Appearance::Dark}) {
        applyTheme(*qApp, look);
        const QPixmap drawn = icon(name.toStdString()).pixmap(QSize(24, 24), 2);
        QCOMPARE(drawn.size(), QSize(48, 48));
        const QColor ink = averageInk(drawn.toImage());
        QVERIFY(ink.isValid());
        if (name != QLatin1StringView("pinmora")) {
            QVERIFY2(contrast(ink, colours().content) >= 3, qPrintable(ink.name()));
        }
    }
}

QTEST_MAIN(ThemeTest)
#include "theme_test.moc"
