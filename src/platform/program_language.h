#pragma once

#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace pinmora {

/// While it lives, the program speaks the first of the wanted languages that it has a translation
/// for, and with it Qt in its own dialogs and buttons. English is what the source is written in:
/// where it comes first, or none of the others is known, nothing is translated. To be made after
/// the application and before anything that has a text.
class ProgramLanguage {
public:
    /// `wanted`: such as "de-AT" or "pt_BR", the most wanted first.
    explicit ProgramLanguage(const QStringList &wanted = QLocale::system().uiLanguages());
    ~ProgramLanguage() = default;
    ProgramLanguage(const ProgramLanguage &) = delete;
    ProgramLanguage &operator=(const ProgramLanguage &) = delete;

private:
    QTranslator own_;
    QTranslator qt_;
};

} // namespace pinmora
