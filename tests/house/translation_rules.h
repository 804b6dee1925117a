#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace house {

/// A text of the program with its translation, as a translation file (.ts) has them.
struct Message {
    QString context;
    QString source;  ///< English; for any number but one where the text has a number
    QString comment; ///< English for exactly one where the text has a number
    bool hasNumber = false;
    bool isFinished = false;
    QStringList forms; ///< one, or as many as the language has for numbers

    /// What it is looked up by.
    QString key() const { return QStringLiteral("%1: %2 | %3").arg(context, source, comment); }
};

std::vector<Message> messagesIn(const QByteArray &translationFile);

/// A line for each fault of a translation: one that is missing, unfinished or has an empty form;
/// that does not have the places of values ("%1", "%n") of its source; whose source has a mnemonic
/// or ends in "…" and it does not, or the other way round.
QStringList faultsOf(const std::vector<Message> &messages);

} // namespace house
