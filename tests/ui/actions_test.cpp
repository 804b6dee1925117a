#include "ui/action_table.h"

#include "platform/program_language.h"

#include <QAction>
#include <QMenuBar>
#include <QSet>
#include <QTest>

using namespace pinmora;

class ActionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachIsWhole_data() {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << QStringLiteral("en");
        QTest::newRow("German") << QStringLiteral("de");
    }
    /// Every action can be reached by menu and keyboard, and says what it does.
    void eachIsWhole() {
        QFETCH(const QString, language);
        const ProgramLanguage spoken({language});
        Actions actions(this);
        QMenuBar bar;
        actions.fill(bar);
        QSet<QKeySequence> keys;
        QSet<QString> mnemonics;
        MenuName menu = actionTable().front().menu;
        for (const ActionRow &row : actionTable()) {
            const QAction *const action = actions[row.name];
            const QString text = action->text();
            QVERIFY2(!text.isEmpty() && *row.tip != '\0', qPrintable(text));
            QVERIFY2(!action->shortcut().isEmpty() && !keys.contains(action->shortcut()),
                     qPrintable(text));
            keys.insert(action->shortcut());
            if (row.menu != menu) {
                menu = row.menu;
                mnemonics.clear();
            }
            const QString letter = text.mid(text.indexOf(QLatin1Char('&')) + 1, 1).toUpper();
            QVERIFY2(text.contains(QLatin1Char('&')) && !mnemonics.contains(letter),
                     qPrintable(text));
            mnemonics.insert(letter);
            QCOMPARE(action->associatedObjects().size(), 1);
            QVERIFY2(row.icon.empty() || !action->icon().pixmap(24).isNull(), qPrintable(text));
        }
    }
};

QTEST_MAIN(ActionsTest)
#include "actions_test.moc"
