#include "files.h"
#include "platform/defaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace pinmora;

class DefaultsTest : public QObject {
    Q_OBJECT

    QTemporaryDir home_;
    QString file_ = home_.filePath(QStringLiteral("Pinmora/Pinmora.ini"));

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_CONFIG_HOME", home_.path().toUtf8()); }
    void init() { QFile::remove(file_); }

    void textsComeBackFromTheFile() {
        const std::string odd = "@ \xC3\xA4; \"two, three\" = #\\ \xE2\x82\xAC\n";
        {
            Defaults defaults;
            QVERIFY(!defaults.text("logReading"));
            defaults.setText("logReading", "tolerant");
            defaults.setText("odd", odd);
            defaults.setText("empty", "");
        }
        QVERIFY(QFile::exists(file_));
        const Defaults again;
        QCOMPARE(again.text("logReading").value(), "tolerant");
        QCOMPARE(again.text("odd").value(), odd);
        QCOMPARE(again.text("empty").value(), "");
        QVERIFY(!again.text("logreading"));
    }

    void fileEditedByHand() {
        QVERIFY(QDir{}.mkpath(home_.filePath(QStringLiteral("Pinmora"))));
        test::put(file_.toStdString(), "[General]\nlogReading=tolerant\ntitle=one, two\n");
        Defaults defaults;
        QVERIFY(defaults.synchronize());
        QCOMPARE(defaults.text("logReading").value(), "tolerant");
        QCOMPARE(defaults.text("title").value(), "one, two");
    }

    void changesAreTold() {
        Defaults defaults;
        int told = 0;
        {
            const auto observation = defaults.onChange("key", [&told] { ++told; });
            defaults.setText("key", "a");
            defaults.setText("key", "a"); // no change
            defaults.setText("other", "b");
            QCOMPARE(told, 1);
            defaults.remove("key");
            defaults.remove("key");
            QCOMPARE(told, 2);
            QVERIFY(!defaults.text("key"));
        }
        defaults.setText("key", "c");
        QCOMPARE(told, 2);
    }

    void unwritablePlaceIsReported() {
        QDir{home_.filePath(QStringLiteral("Pinmora"))}.removeRecursively();
        QFile obstacle(
            home_.filePath(QStringLiteral("Pinmora"))); // a file where the folder belongs
        QVERIFY(obstacle.open(QIODevice::WriteOnly));
        {
            Defaults defaults;
            defaults.setText("key", "value");
            QVERIFY(!defaults.synchronize());
        }
        QVERIFY(obstacle.remove());
    }
};

QTEST_GUILESS_MAIN(DefaultsTest)
#include "defaults_test.moc"
