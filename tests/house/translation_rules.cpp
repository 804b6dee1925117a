#include "house/translation_rules.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace house {

namespace {

Message messageAt(QXmlStreamReader &xml, const QString &context) {
    Message message;
    message.context = context;
    message.hasNumber = xml.attributes().value(QLatin1String("numerus")) == u"yes";
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            message.comment = xml.readElementText();
        } else if (xml.name() != u"translation") {
            xml.skipCurrentElement();
        } else {
            message.isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
            if (!message.hasNumber) {
                message.forms << xml.readElementText();
                continue;
            }
            while (xml.readNextStartElement()) {
                message.forms << xml.readElementText();
            }
        }
    }
    return message;
}

QStringList matches(const QRegularExpression &pattern, const QString &text) {
    QStringList found;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        found << match.next().captured();
    }
    found.sort();
    return found;
}

QStringList placesIn(const QString &text) {
    static const QRegularExpression place(QStringLiteral("%L?[1-9n]"));
    QStringList places = matches(place, text);
    places.removeDuplicates();
    return places;
}

qsizetype mnemonicsIn(const QString &text) {
    static const QRegularExpression mnemonic(QStringLiteral("&[\\w]"));
    return matches(mnemonic, QString(text).remove(QStringLiteral("&&"))).size();
}

/// As the English for one may do without the number, so may the first form, which is for one.
bool hasPlaces(const Message &message, qsizetype form) {
    const QStringList places = placesIn(message.forms[form]);
    return places == placesIn(message.source) ||
           (message.hasNumber && form == 0 && places == placesIn(message.comment));
}

QString faultOf(const Message &message) {
    const QStringList &forms = message.forms;
    if (!message.isFinished || forms.isEmpty() || forms.contains(QString())) {
        return QStringLiteral("not translated");
    }
    for (qsizetype i = 0; i < forms.size(); ++i) {
        if (!hasPlaces(message, i)) {
            return QStringLiteral("other places for values");
        }
        if (mnemonicsIn(forms[i]) != mnemonicsIn(message.source)) {
            return QStringLiteral("a mnemonic too many or too few");
        }
        if (forms[i].endsWith(u'…') != message.source.endsWith(u'…')) {
            return QStringLiteral("“…” at one end only");
        }
    }
    return {};
}

} // namespace

std::vector<Message> messagesIn(const QByteArray &translationFile) {
    std::vector<Message> messages;
    QXmlStreamReader xml(translationFile);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"message") {
            messages.push_back(messageAt(xml, context));
        }
    }
    return messages;
}

QStringList faultsOf(const std::vector<Message> &messages) {
    QStringList faults;
    for (const Message &message : messages) {
        if (const QString fault = faultOf(message); !fault.isEmpty()) {
            faults << message.key() + QStringLiteral(": ") + fault;
        }
    }
    return faults;
}

} // namespace house
