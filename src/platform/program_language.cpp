#include "platform/program_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace pinmora {

namespace {

/// "C" and languages that nobody has heard of are as good as English.
bool isEnglish(const QString &language) {
    const QLocale::Language spoken = QLocale(language).language();
    return spoken == QLocale::English || spoken == QLocale::C;
}

} // namespace

ProgramLanguage::ProgramLanguage(const QStringList &wanted) {
    for (QString language : wanted) {
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        if (isEnglish(language)) {
            return;
        }
        // Either load goes from "de_AT" on to "de" by itself.
        if (own_.load(QStringLiteral("pinmora_") + language, QStringLiteral(":/translations"))) {
            if (qt_.load(QStringLiteral("qtbase_") + language,
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
                QCoreApplication::installTranslator(&qt_);
            }
            QCoreApplication::installTranslator(&own_); // asked before Qt's
            return;
        }
    }
}

} // namespace pinmora
