#include "platform/program_language.h"
#include "platform/translation.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>

using namespace pinmora;

namespace {

/// A text of the rooms below the windows, one of the windows, and one of Qt's own.
QStringList spoken() {
    const QDialogButtonBox buttons(QDialogButtonBox::Cancel);
    return {QString::fromStdString(translated("shell", "%n photos", "%n photo", 2)),
            QCoreApplication::translate("ui", "&File"),
            buttons.button(QDialogButtonBox::Cancel)->text().remove(QLatin1Char('&'))};
}

} // namespace

class LanguageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void firstKnownLanguageIsSpoken_data() {
        QTest::addColumn<QStringList>("wanted");
        QTest::addColumn<QStringList>("texts");
        const QStringList english{QStringLiteral("2 photos"), QStringLiteral("&File"),
                                  QStringLiteral("Cancel")};
        const QStringList german{QStringLiteral("2 Fotos"), QStringLiteral("&Datei"),
                                 QStringLiteral("Abbrechen")};
        const auto row = [](const char *languages, const QStringList &texts) {
            QTest::newRow(languages)
                << QString::fromLatin1(languages).split(QLatin1Char(' ')) << texts;
        };
        row("de", german);
        row("de-AT en", german);
        row("fy de_CH", german);
        row("en-GB de", english);
        row("C de", english);
        row("fy", english);
    }
    void firstKnownLanguageIsSpoken() {
        QFETCH(const QStringList, wanted);
        {
            const ProgramLanguage language(wanted);
            QTEST(spoken(), "texts");
        }
        QCOMPARE(spoken().front(), QStringLiteral("2 photos"));
    }
};

QTEST_MAIN(LanguageTest)
#include "language_test.moc"
