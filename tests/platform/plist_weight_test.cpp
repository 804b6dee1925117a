#include "platform/property_list.h"

#include <QTest>
#include <plist/plist.h>

using namespace pinmora;

namespace {

/// A binary list of objects that each hold `width` references to the next one, the last a text.
std::string binaryChain(std::uint32_t levels, std::uint32_t width) {
    const auto number = [](std::uint64_t value, int size) {
        std::string bytes;
        for (int i = size - 1; i >= 0; --i) {
            bytes += static_cast<char>(value >> (8U * static_cast<unsigned>(i)));
        }
        return bytes;
    };
    std::string list = "bplist00";
    std::string offsets;
    const auto begin = [&] { offsets += number(list.size(), 4); };
    begin(); // the dictionary: a key, and the chain
    list += '\xD1' + number(1, 4) + number(2, 4);
    begin();
    list += "\x51k";
    for (std::uint32_t i = 0; i < levels; ++i) {
        begin();
        list += static_cast<char>(0xA0U + width);
        for (std::uint32_t j = 0; j < width; ++j) {
            list += number(3 + i, 4);
        }
    }
    begin();
    list += "\x53"
            "end";
    const std::size_t table = list.size();
    return list + offsets + std::string(6, '\0') + '\x04' + '\x04' + number(3 + levels, 8) +
           number(0, 8) + number(table, 8);
}

std::string xmlChain(int levels) {
    std::string list = "<plist version=\"1.0\"><dict><key>k</key>";
    for (int i = 0; i < levels; ++i) {
        list += "<array>";
    }
    list += "<string>end</string>";
    for (int i = 0; i < levels; ++i) {
        list += "</array>";
    }
    return list + "</dict></plist>";
}

} // namespace

class PlistWeightTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void chains_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isRead");
        const auto row = [](const char *name, const std::string &bytes, bool isRead) {
            QTest::newRow(name) << QByteArray::fromStdString(bytes) << isRead;
        };
        row("binary", binaryChain(1, 1), true);
        row("binary, a few levels", binaryChain(40, 1), true);
        row("binary, some width", binaryChain(3, 8), true);
        row("binary, too deep for a stack", binaryChain(60'000, 1), false);
        row("binary, too much for a memory", binaryChain(30, 10), false);
        row("XML", xmlChain(1), true);
        row("XML, too deep for a stack", xmlChain(60'000), false);
        row("XML after a mark of its encoding", "\xEF\xBB\xBF" + xmlChain(1), true);
    }

    void chains() {
        QFETCH(QByteArray, bytes);
        const auto list = PropertyList::fromBytes(bytes.toStdString());
        QTEST(list.has_value(), "isRead");
        if (list && bytes.size() < 150) {
            QCOMPARE(list->firstString("k"), std::optional<std::string>("end"));
        }
    }

    /// None of them may take the program down, whatever is read.
    void damaged() {
        for (const std::string &whole : {binaryChain(2, 2), xmlChain(2)}) {
            for (std::size_t at = 0; at < whole.size(); ++at) {
                PropertyList::fromBytes(whole.substr(0, at));
                for (const int with : {0, 0x0F, 0x3C, 0x7F, 0x80, 0xA1, 0xDF, 0xFF}) {
                    std::string other = whole;
                    other[at] = static_cast<char>(with);
                    if (const auto list = PropertyList::fromBytes(other)) {
                        list->string("k");
                        list->firstString("k");
                    }
                }
            }
        }
    }
};

QTEST_APPLESS_MAIN(PlistWeightTest)
#include "plist_weight_test.moc"
