#include "files.h"
#include "platform/property_list.h"
#include "rows.h"

#include <QTemporaryDir>
#include <plist/plist.h>

using namespace pinmora;
namespace fs = std::filesystem;

namespace {

const QByteArray head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">";

QByteArray binary() {
    const plist_t top = plist_new_dict();
    plist_dict_set_item(top, "ProductVersion", plist_new_string("10.6.8"));
    char *bytes = nullptr;
    uint32_t size = 0;
    plist_to_bin(top, &bytes, &size);
    const QByteArray result(bytes, static_cast<qsizetype>(size));
    plist_to_bin_free(bytes);
    plist_free(top);
    return result;
}

} // namespace

class PropertyListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void text_data() {
        const auto row = test::rows<QByteArray, QByteArray>();
        const auto dictionary = [](const char *value) {
            return head + "<dict><key>Other</key><string>1</string><key>ProductVersion</key>" +
                   value + "</dict></plist>";
        };
        row("XML", dictionary("<string>10.5.8</string>"), "10.5.8");
        row("binary", binary(), "10.6.8");
        row("beyond ASCII", dictionary("<string>Caf\xC3\xA9 &amp; more</string>"),
            "Caf\xC3\xA9 & more");
        row("empty text", dictionary("<string></string>"), "");
        row("no text", dictionary("<integer>10</integer>"), "-");
        row("no such key", head + "<dict><key>A</key><string>b</string></dict></plist>", "-");
        row("no dictionary", head + "<string>10.5.8</string></plist>", "-");
        row("cut", dictionary("<string>10.5.8").chopped(20), "-");
        row("cut binary", binary().chopped(9), "-");
        row("anything", "bplist00\xFF\xFF\xFF\xFF", "-");
        row("empty", "", "-");
        row("too large", dictionary("<string>1</string>") + QByteArray(2 << 20, ' '), "-");
    }

    void text() {
        const auto [content, expected] = test::fetch<QByteArray, QByteArray>();
        const QTemporaryDir folder;
        const auto file =
            test::put(fs::path(folder.path().toStdString()) / "list", content.toStdString());
        const auto found = stringInPropertyList(file, "ProductVersion");
        QCOMPARE(QByteArray::fromStdString(found.value_or("-")), expected);
        QVERIFY(!stringInPropertyList(file.parent_path(), "ProductVersion"));
        QVERIFY(!stringInPropertyList(file.parent_path() / "absent", "ProductVersion"));
    }
};

QTEST_APPLESS_MAIN(PropertyListTest)

#include "property_list_test.moc"
