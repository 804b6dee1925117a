#include "platform/translation.h"

#include <QTranslator>

using namespace pinmora;

namespace {

/// Two texts in a language that has three forms.
class ThreeForms : public QTranslator {
public:
    QString translate(const char *, const char *text, const char *, int n) const override {
        if (QLatin1String(text) == QLatin1String("Save")) {
            return QStringLiteral("Zapisz");
        }
        if (QLatin1String(text) == QLatin1String("%n photos")) {
            return n == 1            ? QStringLiteral("%n zdjęcie")
                   : n < 5 && n != 0 ? QStringLiteral("%n zdjęcia")
                                     : QStringLiteral("%n zdjęć");
        }
        return {};
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TranslationTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void numbersChooseTheForm() {
        const auto photos = [](std::size_t n) {
            return translated("any", "%n photos", "%n photo", n);
        };
        QCOMPARE(photos(0), std::string("0 photos"));
        QCOMPARE(photos(1), std::string("1 photo"));
        QCOMPARE(photos(2), std::string("2 photos"));
        ThreeForms polish;
        QVERIFY(QCoreApplication::installTranslator(&polish));
        QCOMPARE(photos(1), std::string("1 zdjęcie"));
        QCOMPARE(photos(3), std::string("3 zdjęcia"));
        QCOMPARE(photos(7), std::string("7 zdjęć"));
        QCOMPARE(translated("any", "Save"), std::string("Zapisz"));
        QCOMPARE(translated("any", "Open"), std::string("Open"));
        QCOMPARE(translated("any", "%n logs", "%n log", 1), std::string("1 log"));
        QLocale::setDefault(QLocale::English);
        QCOMPARE(translated("any", "%Ln logs", "%Ln log", 1), std::string("1 log"));
        QCOMPARE(translated("any", "%Ln logs", "%Ln log", 1'234), std::string("1,234 logs"));
    }

    void valuesTakeTheirPlaces_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("in any order") << QByteArray("%2 of %1") << QByteArray("b% of %2");
        QTest::newRow("twice") << QByteArray("%1, %1") << QByteArray("%2, %2");
        QTest::newRow("nothing for the third") << QByteArray("%3%1") << QByteArray("%3%2");
        QTest::newRow("signs that are none")
            << QByteArray("100 %, %n %") << QByteArray("100 %, %n %");
    }
    void valuesTakeTheirPlaces() {
        QFETCH(const QByteArray, text);
        QFETCH(const QByteArray, expected);
        QCOMPARE(filled(text.toStdString(), {"%2", "b%"}), expected.toStdString());
    }

    void fileNamesStayTheirBytes() {
        QCOMPARE(filled("“%1”", {"caf\xE9.gpx"}), std::string("“caf\xE9.gpx”"));
    }
};

QTEST_MAIN(TranslationTest)
#include "translation_test.moc"
