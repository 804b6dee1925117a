#include "ui/action_table.h"
#include "ui/manual_window.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTextBrowser>

using namespace pinmora;

namespace {

const QString manual = QStringLiteral(":/manual/en/");

QString textOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList pages() {
    return QDir(manual).entryList({QStringLiteral("*.html")});
}

QList<QStringList> allIn(const QString &text, const QString &expression) {
    QList<QStringList> found;
    for (QRegularExpressionMatchIterator one =
             QRegularExpression(expression, QRegularExpression::DotMatchesEverythingOption)
                 .globalMatch(text);
         one.hasNext();) {
        found << one.next().capturedTexts();
    }
    return found;
}

QString withoutMarks(QString text) {
    return text.remove(QLatin1Char('&')).remove(QStringLiteral("…")).simplified();
}

/// What the program and its map page have to say: their string literals, those that stand behind
/// one another as one.
QSet<QString> wordsOfTheProgram() {
    QSet<QString> words;
    for (const char *const folder :
         {PINMORA_SOURCE_DIR "/src", PINMORA_SOURCE_DIR "/resources/map"}) {
        QDirIterator files(QString::fromUtf8(folder),
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.js"),
                            QStringLiteral("*.html")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            for (const QStringList &literal :
                 allIn(textOf(files.next()),
                       QStringLiteral("\"((?:[^\"\\\\\\n]|\\\\.|\"\\s*\")*)\""))) {
                QString text = literal.at(1);
                static const QRegularExpression between(QStringLiteral("\"\\s*\""));
                words << withoutMarks(text.remove(between));
            }
        }
    }
    return words;
}

} // namespace

class ManualTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theKeyboardPageHasEveryShortcut() {
        const QString page = textOf(manual + QStringLiteral("10-keyboard.html"))
                                 .section(QStringLiteral("<h2>Lists and sheets"), 0, 0);
        QSet<QString> told;
        for (const QStringList &row :
             allIn(page, QStringLiteral("<td>([^<]*)</td><td><kbd>([^<]*)</kbd>"))) {
            told << row.at(1) + QLatin1Char('=') + row.at(2);
        }
        QSet<QString> there;
        for (const ActionRow &row : actionTable()) {
            there << withoutMarks(QString::fromUtf8(row.text)) + QLatin1Char('=') +
                         QString::fromStdString(std::string(row.shortcut));
        }
        QCOMPARE(QStringList((there - told).values()), QStringList());
        QCOMPARE(QStringList((told - there).values()), QStringList());
    }

    void theCommandLinePageHasEveryOption() {
        const QString page = textOf(manual + QStringLiteral("11-command-line.html"));
        const QList<QStringList> options =
            allIn(textOf(QStringLiteral(PINMORA_SOURCE_DIR "/apps/pinmora-tag/options.cpp")),
                  QStringLiteral("option\\{\"([^\"]+)\""));
        QVERIFY(options.size() > 5);
        for (const QStringList &option : options) {
            QVERIFY2(page.contains(QStringLiteral("--") + option.at(1)), qPrintable(option.at(1)));
        }
    }

    void linksAndPicturesLeadSomewhere() {
        QVERIFY(pages().size() > 10);
        QSet<QString> shown;
        for (const QString &page : pages()) {
            const QString text = textOf(manual + page);
            QVERIFY2(text.contains(QStringLiteral("<title>")), qPrintable(page));
            for (const QStringList &link :
                 allIn(text, QStringLiteral("(?:href|src)=\"([^\"]*)\""))) {
                QVERIFY2(QFile::exists(manual + link.at(1)), qPrintable(page + link.at(1)));
                shown << link.at(1);
            }
            QCOMPARE(text.count(QStringLiteral("<img ")), text.count(QStringLiteral("\" alt=\"")));
        }
        for (const QString &picture : QDir(manual + QStringLiteral("pictures")).entryList()) {
            QVERIFY2(shown.contains(QStringLiteral("pictures/") + picture), qPrintable(picture));
        }
    }

    /// What stands in bold is what a person finds in the windows.
    void boldWordsAreTheProgramsOwn() {
        const QSet<QString> words = wordsOfTheProgram();
        QVERIFY(words.contains(QStringLiteral("Add Photos")));
        QStringList unknown;
        for (const QString &page : pages()) {
            for (const QStringList &bold :
                 allIn(textOf(manual + page), QStringLiteral("<b>(.*?)</b>"))) {
                if (!words.contains(withoutMarks(bold.at(1)))) {
                    unknown << page + QStringLiteral(": ") + bold.at(1);
                }
            }
        }
        QCOMPARE(unknown, QStringList());
    }

    void pagesAreReadByKeyboard() {
        Window outlet;
        ManualWindow window(outlet);
        outlet.makeKeyAndOrderFront();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto *const contents = window.findChild<QListWidget *>();
        auto *const page = window.findChild<QTextBrowser *>();
        const auto isShown = [&](int row) {
            return contents->currentRow() == row && page->source().fileName() == pages().at(row) &&
                   page->toPlainText().startsWith(contents->item(row)->text());
        };
        QVERIFY(isShown(0));
        QTest::keyClick(contents, Qt::Key_Down);
        QVERIFY(isShown(1));
        page->setSource(QUrl(QStringLiteral("qrc") + manual + pages().at(3))); // as a link does
        QVERIFY(isShown(3));
        QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
        QTRY_VERIFY(isShown(1)); // the button is seen to be pressed

        auto *const words = window.findChild<QLineEdit *>();
        QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(words, QStringLiteral("camera"));
        QTest::keyClick(words, Qt::Key_Return);
        const int first = page->textCursor().position();
        QCOMPARE(page->textCursor().selectedText().toLower(), QStringLiteral("camera"));
        QTest::keyClick(words, Qt::Key_Return);
        QVERIFY(page->textCursor().position() > first);

        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!outlet.visible.get() && !window.isVisible());
    }
};

QTEST_MAIN(ManualTest)
#include "manual_test.moc"
