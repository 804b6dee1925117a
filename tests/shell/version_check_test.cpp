#include "shell/version_check.h"

#include "platform/defaults.h"

#include <QTest>

#include <filesystem>

using namespace pinmora;

namespace {

/// Nobody listens there.
const BuildSettings build{.version = "2.1",
                          .versionInfoUrl = "http://127.0.0.1:1/build.plist",
                          .webSite = {},
                          .reportProblemAddress = {}};

} // namespace

class VersionCheckTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        std::filesystem::remove_all(qEnvironmentVariable("XDG_CONFIG_HOME").toStdString() +
                                    "/Pinmora");
    }

    void starts_data() {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<bool>("checks");
        QTest::newRow("for the first time") << QString() << true;
        QTest::newRow("as it is at first") << QStringLiteral("0") << true;
        QTest::newRow("turned off") << QStringLiteral("1") << false;
        QTest::newRow("something else") << QStringLiteral("yes") << false;
    }

    void starts() {
        QFETCH(QString, setting);
        QFETCH(bool, checks);
        Defaults defaults;
        if (!setting.isNull()) {
            defaults.setText("versionCheck", setting.toStdString());
        }
        VersionCheck check(defaults, build);
        int announced = 0;
        const Connection counting = check.testUpdate.onChange([&](updateTest *) { ++announced; });
        check.start();
        QCOMPARE(check.testUpdate.get() != nullptr, checks);
        QVERIFY(!checks || check.testUpdate.get()->isChecking());
        QVERIFY(!checks || !check.testUpdate.get()->theWindow.visible.get());

        check.checkNewVersion();
        QCOMPARE(announced, 1);
        QVERIFY(check.testUpdate.get()->theWindow.visible.get());
        QVERIFY(check.testUpdate.get()->isChecking());
        QCOMPARE(check.testUpdate.get()->noCheck.on.get(), !checks);
        QCOMPARE(defaults.text("versionCheck"), setting.isNull() ? "0" : setting.toStdString());
    }

    void theSettingWins() {
        Defaults defaults;
        const VersionCheck check(defaults, build);
        const auto address = [&] { return check.getProgDict().at("progPlist"); };
        QCOMPARE(address(), build.versionInfoUrl);
        defaults.setText("versionInfoURL", "https://velder.test/mine.plist");
        QCOMPARE(address(), std::string("https://velder.test/mine.plist"));
        defaults.setText("versionInfoURL", "");
        QCOMPARE(address(), std::string());
        QCOMPARE(check.getProgDict().at("progName"), std::string("Pinmora"));
    }
};

QTEST_GUILESS_MAIN(VersionCheckTest)
#include "version_check_test.moc"
