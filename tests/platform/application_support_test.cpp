#include "platform/application_support.h"
#include "rows.h"

using namespace pinmora;

class ApplicationSupportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void base_data() {
        const auto row = test::rowsByValue<QByteArray, QByteArray, std::string>();
        row("/data", "/home/a", "/data");
        row("", "/home/a", "/home/a/.local/share");
        row("data", "/home/a", "/home/a/.local/share"); // relative ones do not count
        row("/d\xE9t\xE9", "/home/a", "/d\xE9t\xE9");   // names are bytes
        row("", "", "/temporary");
        row("", "home/a", "/temporary");
    }

    void base() {
        const auto [data, home, expected] = test::fetch<QByteArray, QByteArray, std::string>();
        qputenv("TMPDIR", "/temporary");
        qputenv("XDG_DATA_HOME", data);
        qputenv("HOME", home);
        QCOMPARE(applicationSupportBase().native(), expected);
    }

    void withoutAnything() {
        for (const char *variable : {"TMPDIR", "XDG_DATA_HOME", "HOME"}) {
            qunsetenv(variable);
        }
        QCOMPARE(applicationSupportBase().native(), "/tmp");
    }
};

QTEST_APPLESS_MAIN(ApplicationSupportTest)
#include "application_support_test.moc"
