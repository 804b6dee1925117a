#include "ui/inspector_text.h"

namespace pinmora {
namespace {

constexpr int linesOfRoom = 3;

/// Names have no spaces to break lines at.
QString breakable(const QString &text) {
    const QChar mayBreak(0x200B);
    QString result;
    for (const QChar c : text) {
        result += c;
        if (!c.isSpace() && !c.isHighSurrogate()) {
            result += mayBreak;
        }
    }
    return result;
}

QString htmlOf(const AttributedText &text) {
    QString html;
    for (const TextRun &run : text) {
        const QString words = QString::fromStdString(run.text);
        QString escaped = (run.bold ? words : breakable(words)).toHtmlEscaped();
        escaped.replace(u'\n', QLatin1String("<br>"));
        html += run.bold ? QLatin1String("<b>") + escaped + QLatin1String("</b>") : escaped;
    }
    return html;
}

QString plainOf(const AttributedText &text) {
    QString plain;
    for (const TextRun &run : text) {
        plain += QString::fromStdString(run.text);
    }
    return plain.trimmed();
}

} // namespace

InspectorText::InspectorText(AttributedField &field, QWidget *parent) : QLabel(parent) {
    setTextFormat(Qt::RichText);
    setWordWrap(true);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFixedHeight(linesOfRoom * fontMetrics().lineSpacing());
    bindings_.follow(field, this);
    bindings_.watch(field.text, [this](const AttributedText &text) {
        setText(htmlOf(text));
        setAccessibleName(plainOf(text));
        setToolTip(plainOf(text).toHtmlEscaped());
    });
}

} // namespace pinmora
