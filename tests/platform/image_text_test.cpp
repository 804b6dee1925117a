#include "platform/image_text.h"
#include "rows.h"

using namespace pinmora;
using namespace std::string_literals;

class ImageTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void userComment_data() {
        const auto row = test::rows<std::string, std::string, std::string>();
        const auto same = [&row](const char *name, const std::string &bytes,
                                 const std::string &text) { row(name, bytes, text, text); };
        same("ASCII, cut at NUL", "ASCII\0\0\0here\0\0there"s, "here");
        same("ASCII, code with blanks", "ASCII   here", "here");
        same("ASCII that is Latin-1", "ASCII\0\0\0caf\xE9"s, "café");
        same("undefined, UTF-8", "\0\0\0\0\0\0\0\0\xC3\xA4\xC3\xB6"s, "äö");
        same("blanks stay", "ASCII\0\0\0  a  "s, "  a  ");
        same("no code", "hello, world", "hello, world");
        same("code in the wrong case", "Unicode\0plain"s, "Unicode");
        same("shorter than a code", "hi", "hi");
        same("code alone", "UNICODE\0"s, "");
        row("UNICODE", "UNICODE\0\x71\x67"s, "東", "照");
        row("UNICODE, cut at NUL", "UNICODE\0A\0\0\0B\0"s, "A", "䄀");
        row("UNICODE, odd length", "UNICODE\0A\0B"s, "A", "䄀");
        same("UNICODE, marked big", "UNICODE\0\xFE\xFF\x67\x71"s, "東");
        same("UNICODE, marked little", "UNICODE\0\xFF\xFE\x71\x67"s, "東");
        same("UNICODE, half a character", "UNICODE\0\xFE\xFF\xD8\x00"s, "?");
        same("JIS with escapes", "JIS\0\0\0\0\0\x1b$BF|\x1b(B"s, "日");
        same("JIS in Unix form", "JIS\0\0\0\0\0\xC6\xFC"s, "日");
    }

    void userComment() {
        const auto [bytes, littleEndian, bigEndian] =
            test::fetch<std::string, std::string, std::string>();
        QCOMPARE(decodeUserComment(bytes, std::endian::little), littleEndian);
        QCOMPARE(decodeUserComment(bytes, std::endian::big), bigEndian);
    }

    void iptcText_data() {
        const auto row = test::rows<std::string, std::string, std::string>();
        row("undeclared UTF-8", "", "G\xC3\xB6teborg", "Göteborg");
        row("undeclared Latin-1", "", "G\xF6teborg", "Göteborg");
        row("UTF-8", "\x1b%G", "G\xC3\xB6teborg", "Göteborg");
        row("said to be UTF-8", "\x1b%G", "G\xF6teborg", "Göteborg");
        row("Latin-1 as G1", "\x1b-A", "G\xC3\xB6", "GÃ¶");
        row("Latin-1 as G2 after ASCII", "\x1b(B\x1b.A", "G\xC3\xB6", "GÃ¶");
        row("Latin-2", "\x1b-B", "\xA3\xF3\x64\xBC", "Łódź");
        row("Greek", "\x1b-F", "\xC1\xE8\xDE\xED\xE1", "Αθήνα");
        row("unknown set", "\x1b.~", "G\xF6teborg", "Göteborg");
        row("cut escape", "\x1b-", "G\xF6teborg", "Göteborg");
        row("cut at NUL", "\x1b-A", "Rome\0Paris"s, "Rome");
    }

    void iptcText() {
        const auto [characterSet, bytes, expected] =
            test::fetch<std::string, std::string, std::string>();
        QCOMPARE(decodeIptcText(bytes, characterSet), expected);
    }
};

QTEST_APPLESS_MAIN(ImageTextTest)

#include "image_text_test.moc"
