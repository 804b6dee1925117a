#include "platform/application_support.h"

#include <QTest>

using namespace pinmora;

class ApplicationSupportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void base_data() {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QByteArray>("home");
        QTest::addColumn<std::string>("expected");
        const auto row = [](const char *data, const char *home, const char *expected) {
            QTest::addRow("\"%s\", \"%s\"", data, home)
                << QByteArray(data) << QByteArray(home) << std::string(expected);
        };
        row("/data", "/home/a", "/data");
        row("", "/home/a", "/home/a/.local/share");
        row("data", "/home/a", "/home/a/.local/share"); // relative ones do not count
        row("/d\xE9t\xE9", "/home/a", "/d\xE9t\xE9");   // names are bytes
        row("", "", "/temporary");
        row("", "home/a", "/temporary");
    }

    void base() {
        QFETCH(QByteArray, data);
        QFETCH(QByteArray, home);
        QFETCH(std::string, expected);
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
