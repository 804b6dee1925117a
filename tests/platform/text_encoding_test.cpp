#include "platform/text_encoding.h"
#include "rows.h"

using namespace pinmora;

class TextEncodingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void validity_data() {
        const auto row = test::rows<QByteArray, bool>();
        row("empty", "", true);
        row("ascii", "a long line of plain letters", true);
        row("first and last of two", "\xC2\x80\xDF\xBF", true);
        row("first and last of three", "\xE0\xA0\x80\xEF\xBF\xBF", true);
        row("around the surrogates", "\xED\x9F\xBF\xEE\x80\x80", true);
        row("first and last of four", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", true);
        row("after eight letters", "12345678\xC3\xA4", true);
        row("latin-1 among letters", "1234567 Z\xFCrich 1234567", false);
        row("overlong two", "\xC1\xBF", false);
        row("overlong three", "\xE0\x9F\xBF", false);
        row("overlong four", "\xF0\x8F\xBF\xBF", false);
        row("surrogate", "\xED\xA0\x80", false);
        row("beyond", "\xF4\x90\x80\x80", false);
        row("no lead", "\xF5\x80\x80\x80", false);
        row("lone continuation", "\x80", false);
        row("third byte", "\xE2\x82z", false);
        row("fourth byte", "\xF0\x9F\x98z", false);
    }

    void validity() {
        const auto [bytes, valid] = test::fetch<QByteArray, bool>();
        QCOMPARE(isUtf8(bytes.toStdString()), valid);
    }

    void characterCutAnywhereIsInvalid() {
        for (const std::string_view whole : {"\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"}) {
            for (std::size_t length = 1; length < whole.size(); ++length) {
                QVERIFY(!isUtf8(whole.substr(0, length))); // what follows does not count
            }
        }
    }

    void latin1BecomesUtf8() {
        std::string all(256, '\0');
        for (std::size_t i = 0; i < all.size(); ++i) {
            all[i] = static_cast<char>(i);
        }
        const QByteArray expected = QString::fromLatin1(QByteArray::fromStdString(all)).toUtf8();
        QCOMPARE(utf8FromLatin1(all), expected.toStdString());
        QVERIFY(fitsLatin1(utf8FromLatin1(all)));
        QCOMPARE(utf8OrLatin1("Z\xFCrich"), "Z\xC3\xBCrich");
        QCOMPARE(utf8OrLatin1("Z\xC3\xBCrich"), "Z\xC3\xBCrich");
    }

    void charactersOutsideLatin1() {
        QVERIFY(!fitsLatin1("\xC4\x80")); // U+0100
        QVERIFY(!fitsLatin1("Stra\xC3\x9F\x65 \xE2\x82\xAC"));
        QVERIFY(isAscii("plain letters and more\x7F"));
        QVERIFY(!isAscii("plain letters and\xC2\xA0"));
    }

    void startAndEnd() {
        QCOMPARE(withoutByteOrderMark("\xEF\xBB\xBF<?xml"), std::string_view{"<?xml"});
        QCOMPARE(withoutByteOrderMark("\xEF\xBB"), std::string_view{"\xEF\xBB"});
        QCOMPARE(upToNul(std::string_view{"a\0b\0", 4}), std::string_view{"a"});
        QCOMPARE(upToNul("abc"), std::string_view{"abc"});
    }
};

QTEST_APPLESS_MAIN(TextEncodingTest)
#include "text_encoding_test.moc"
