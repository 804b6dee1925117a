#include "ui/photo_texts.h"

#include "ui/photo_desk.h"
#include "ui/position_origin.h"

#include <QTest>

using namespace pinmora;
using std::chrono::seconds;

class PhotoTextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void gap_data();
    void gap();
    void distance_data();
    void distance();
    void place_data();
    void place();
    void origins_data();
    void origins();
    void positions();
    void timesOfOtherYearsSayTheYear();
};

void PhotoTextsTest::gap_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << 0 << QStringLiteral("0:00");
    QTest::newRow("seconds") << 3 << QStringLiteral("0:03");
    QTest::newRow("earlier than the point") << -65 << QStringLiteral("1:05");
    QTest::newRow("below an hour") << 3599 << QStringLiteral("59:59");
    QTest::newRow("an hour") << 3600 << QStringLiteral("1:00:00");
    QTest::newRow("below a day") << -86399 << QStringLiteral("23:59:59");
    QTest::newRow("a day") << 86400 << QStringLiteral("1 d");
    QTest::newRow("years") << 86400 * 729 + 86399 << QStringLiteral("729 d");
}

void PhotoTextsTest::gap() {
    QFETCH(const int, size);
    QTEST(photo_texts::gap(seconds(size)), "text");
    QCOMPARE(photo_texts::gap(std::nullopt), QString());
}

void PhotoTextsTest::distance_data() {
    QTest::addColumn<double>("metres");
    QTest::addColumn<QString>("text");
    const auto row = [](double metres, const char *text) {
        QTest::addRow("%g", metres) << metres << QString::fromLatin1(text);
    };
    row(0, "0 m");
    row(340.4, "340 m");
    row(999.4, "999 m");
    row(999.5, "1 km");
    row(2312, "2.3 km");
    row(2049, "2 km");
    row(9949, "9.9 km");
    row(9950, "10 km");
    row(10'499, "10 km");
    row(20'015'086, "20015 km");
}

void PhotoTextsTest::distance() {
    QFETCH(const double, metres);
    QTEST(photo_texts::distance(metres), "text");
    QCOMPARE(photo_texts::distance(std::nullopt), QString());
}

void PhotoTextsTest::place_data() {
    QTest::addColumn<QString>("altitude");
    QTest::addColumn<QString>("city");
    QTest::addColumn<QString>("province");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *altitude, const char *city, const char *province,
                        const char *text) {
        QTest::newRow(text) << QString::fromUtf8(altitude) << QString::fromUtf8(city)
                            << QString::fromUtf8(province) << QString::fromUtf8(text);
    };
    row("418.4", "Zürich", "ZH", "418 m · Zürich");
    row("-0.6", "", "ZH", "-1 m · ZH");
    row("412", "", "", "412 m");
    row("", "Zürich", "", "Zürich");
    row("", "", "", "");
    row("high up", "", "", "high up m");
}

void PhotoTextsTest::place() {
    QFETCH(const QString, altitude);
    QFETCH(const QString, city);
    QFETCH(const QString, province);
    PhotoDesk desk;
    image &photo = desk.addPhoto("a");
    photo.setAlt(altitude.toStdString());
    photo.setCity(city.toStdString());
    photo.setProv(province.toStdString());
    QTEST(photo_texts::altitudeAndPlace(photo), "text");
    photo.setPlace_distance(340);
    const bool isOfACity = !city.isEmpty();
    QCOMPARE(photo_texts::place(photo).endsWith(QStringLiteral(", 340 m")), isOfACity);
}

void PhotoTextsTest::origins_data() {
    QTest::addColumn<QString>("source");
    QTest::addColumn<double>("gap"); // s
    QTest::addColumn<bool>("isFar");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *source, double gap, bool isFar, const char *words) {
        QTest::addRow("%s %g", source, gap)
            << QString::fromLatin1(source) << gap << isFar << QString::fromUtf8(words);
    };
    row("log", -3.9, false, "From the log, 3 s from the nearest point");
    row("log", 300.9, false, "From the log, 5 min from the nearest point");
    row("log", -301, true, "From the log, 5 min 1 s from the nearest point");
    row("map", 0, false, "Placed on the map");
    row("typed", 0, false, "Typed");
    row("file", 0, false, "From the photo’s file");
    row("estimated", 0, false, "Estimated between its neighbours");
    row("", 0, false, "");
    row("some other day's", 0, false, "");
}

void PhotoTextsTest::origins() {
    QFETCH(const QString, source);
    QFETCH(const double, gap);
    PhotoDesk desk;
    image &photo = desk.addPhoto("a", {"47", "8"});
    photo.setPosition_source(source.toStdString());
    photo.setPosition_gap(gap);
    QTEST(position_origin::words(photo), "words");
    QTEST(position_origin::isFar(photo), "isFar");
    QCOMPARE(position_origin::sign(photo).empty(), position_origin::words(photo).isEmpty());
    QVERIFY(photo_texts::sentence(photo, {}).endsWith(position_origin::words(photo)));
    photo.updateLatAndLon({"", ""});
    photo.setPosition_source(source.toStdString());
    QCOMPARE(position_origin::words(photo), QString());
}

void PhotoTextsTest::positions() {
    PhotoDesk desk;
    // More digits than single precision holds.
    QCOMPARE(photo_texts::position(desk.addPhoto("a", {"-33.8568123", "151.21529"})),
             QStringLiteral("-33.85681, 151.21529"));
    image &half = desk.addPhoto("b");
    half.setLat("47");
    QCOMPARE(photo_texts::position(half), QString());
    QCOMPARE(photo_texts::sentence(half, seconds(-3)),
             QStringLiteral("b.JPG, taken 8 May 2026 09:54:28, no position, 0:03 from the nearest "
                            "track point"));
}

void PhotoTextsTest::timesOfOtherYearsSayTheYear() {
    PhotoDesk desk;
    image &photo = desk.addPhoto("a");
    photo.setDate("1999:12:05 08:09:10");
    QCOMPARE(photo_texts::taken(photo), QStringLiteral("5 Dec 1999 08:09:10"));
    photo.setDate(""); // now
    QCOMPARE(photo_texts::taken(photo).count(QLatin1Char(' ')), 2);
    photo.setNo_capture_time(true);
    QCOMPARE(photo_texts::taken(photo), QString());
}

QTEST_MAIN(PhotoTextsTest)
#include "photo_texts_test.moc"
