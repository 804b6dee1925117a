#include "house/translation_rules.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace house;

namespace {

QByteArray contentsOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QSet<QString> keysOf(const std::vector<Message> &messages) {
    QSet<QString> keys;
    for (const Message &message : messages) {
        keys << message.key();
    }
    return keys;
}

QByteArray lines(QStringList texts) {
    texts.sort();
    return texts.join(u'\n').toUtf8();
}

} // namespace

/// Every text of the program is translated into every language that it has, and fits its source.
class TranslationsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void languageIsComplete_data() {
        QTest::addColumn<QString>("path");
        const QDir folder(QStringLiteral(PINMORA_SOURCE_DIR "/resources/translations"));
        for (const QFileInfo &file : folder.entryInfoList({QStringLiteral("*.ts")})) {
            QTest::newRow(qPrintable(file.baseName())) << file.filePath();
        }
    }
    void languageIsComplete() {
        QFETCH(const QString, path);
        const QTemporaryDir folder;
        const QString renewed = folder.filePath(QStringLiteral("renewed.ts"));
        QVERIFY(QFile::copy(path, renewed));
        QProcess update;
        update.start(QStringLiteral(PINMORA_SOURCE_DIR "/script/update-translations"), {renewed});
        QVERIFY(update.waitForFinished());
        QCOMPARE(update.readAllStandardError(), QByteArray()); // texts that nobody would look up
        QCOMPARE(update.exitCode(), 0);

        const std::vector<Message> now = messagesIn(contentsOf(renewed));
        QVERIFY(!now.empty());
        QCOMPARE(lines(faultsOf(now)), QByteArray());
        const QSet<QString> gone = keysOf(messagesIn(contentsOf(path))) - keysOf(now);
        QCOMPARE(lines(gone.values()), QByteArray());
    }

    void faultIsSeen_data() {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("translation");
        QTest::addColumn<QString>("fault");
        const QString fine;
        const QString places = QStringLiteral("other places for values");
        const QString mnemonic = QStringLiteral("a mnemonic too many or too few");
        const auto row = [](const char *source, const char *translation, const QString &fault) {
            QTest::addRow("%s as %s", source, translation)
                << QString::fromUtf8(source) << QString::fromUtf8(translation) << fault;
        };
        row("%1 of %2", "%2 zu %1", fine);
        row("%1 of %2", "%1 von %1", places);
        row("%Ln points", "%n Punkte", places);
        row("Save", "", QStringLiteral("not translated"));
        row("&amp;Save", "&amp;Sichern", fine);
        row("&amp;Save", "Sichern", mnemonic);
        row("Save", "&amp;Sichern", mnemonic);
        row("This &amp;&amp; That", "Dies &amp;&amp; Das", fine);
        row("Save…", "Sichern", QStringLiteral("“…” at one end only"));
    }
    void faultIsSeen() {
        QFETCH(const QString, source);
        QFETCH(const QString, translation);
        QFETCH(const QString, fault);
        const QString file = QStringLiteral("<TS><context><name>a</name><message><source>") +
                             source + QStringLiteral("</source><translation>") + translation +
                             QStringLiteral("</translation></message></context></TS>");
        const QStringList faults = faultsOf(messagesIn(file.toUtf8()));
        QCOMPARE(faults.join(u'\n').section(QStringLiteral(": "), -1), fault);
    }
};

QTEST_APPLESS_MAIN(TranslationsTest)
#include "translations_test.moc"
