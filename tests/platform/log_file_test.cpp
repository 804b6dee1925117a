#include "platform/log_file.h"
#include "rows.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <fstream>

using namespace pinmora;
namespace fs = std::filesystem;

class LogFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anEntryIsOneLine_data() {
        const auto row = test::rows<QByteArray, QByteArray>();
        row("plain", "a.jpg: disk full", "a.jpg: disk full");
        row("letters", "Zürich 東京 🏔", "Zürich 東京 🏔");
        row("lines", "one\ntwo\r\nthree\n\n", "one | two | three");
        row("Unicode's lines", "one\u2028two\u0085three", "one | two | three");
        row("begins with a line end", "\none", "one");
        row("tab", "a\tb", "a b");
        row("escape sequence", "\x1b[31mred", "\uFFFD[31mred");
        row("NUL", QByteArray("a\0b", 3), "a\uFFFDb");
        row("not UTF-8", "IMG_\xfc.jpg", "IMG_\uFFFD.jpg");
        row("nothing", "", "");
    }

    void anEntryIsOneLine() {
        const auto [entry, line] = test::fetch<QByteArray, QByteArray>();
        const QTemporaryDir folder;
        LogFile log((folder.path() + QStringLiteral("/new/Pinmora.log")).toStdString());
        QVERIFY(!fs::exists(log.path()));
        log.append({entry.constData(), static_cast<std::size_t>(entry.size())});
        const QString text = QString::fromStdString(log.text());
        static const QRegularExpression stamped(
            QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d (.*)\n$"));
        QCOMPARE(stamped.match(text).captured(1).toUtf8(), line);
    }

    void growsUpToTwiceItsLimit() {
        const QTemporaryDir folder;
        constexpr std::size_t limit = 1000;
        LogFile log(folder.filePath(QStringLiteral("log")).toStdString(), limit);
        for (int i = 1; i <= 100; ++i) {
            log.append("entry " + std::to_string(i));
            QVERIFY(fs::file_size(log.path()) <= limit);
        }
        const QStringList lines = QString::fromStdString(log.text()).split(u'\n');
        QVERIFY(lines.size() > 40);
        QVERIFY(lines.at(lines.size() - 2).endsWith(QStringLiteral("entry 100")));
        for (qsizetype i = 0; i + 1 < lines.size(); ++i) { // the latest, without a gap
            QVERIFY(lines.at(i).endsWith(QStringLiteral(" %1").arg(102 - lines.size() + i)));
        }
        log.append(std::string(2 * limit, 'x'));
        QCOMPARE(log.text().substr(log.text().size() - 3), "xx\n");
    }

    void whatCannotBeWrittenIsDropped_data() {
        const auto row = test::rows<QByteArray>();
        row("full disk", "/dev/full");
        row("no folder can be made", "/proc/none/Pinmora.log");
        row("a folder", "/tmp");
    }

    void whatCannotBeWrittenIsDropped() {
        const auto [path] = test::fetch<QByteArray>();
        LogFile log(path.toStdString());
        log.append("lost");
        QVERIFY(log.path() == path.toStdString());
    }
};

QTEST_GUILESS_MAIN(LogFileTest)
#include "log_file_test.moc"
