#include "ui/manual_page.h"

#include "ui/theme.h"

#include <QEvent>
#include <QImage>
#include <QScrollBar>

namespace pinmora {
namespace {

constexpr int pictureWidth = 76 * spacing;

QString styleIn(const Colours &c) {
    return QStringLiteral("body { color: %1; }"
                          "a { color: %2; text-decoration: none; }"
                          "h1 { font-size: x-large; }"
                          "h2 { font-size: large; margin-top: 24px; }"
                          "p, li { line-height: 135%; margin-top: 0; margin-bottom: 9px; }"
                          "td, th { padding: 4px 14px 4px 0; }"
                          "th { text-align: left; color: %3; font-weight: normal; }"
                          "kbd { font-weight: bold; }"
                          "p.quiet { color: %3; }"
                          "pre { background-color: %4; }")
        .arg(c.text.name(), readable(c.accent, {c.content}).name(), c.quietText.name(),
             c.window.name());
}

} // namespace

ManualPage::ManualPage(QWidget *parent) : QTextBrowser(parent) {
    setAccessibleName(tr("Page of the manual"));
    document()->setDocumentMargin(3 * spacing);
    takeColours();
}

/// A picture is made as sharp as the screen can show it; the document itself would only stretch it.
QVariant ManualPage::loadResource(int type, const QUrl &name) {
    QVariant loaded = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) {
        return loaded;
    }
    QImage picture = QImage::fromData(loaded.toByteArray());
    const qreal ratio = devicePixelRatioF();
    const int widest = qRound(pictureWidth * ratio);
    if (picture.width() > widest) {
        picture = picture.scaledToWidth(widest, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(ratio);
    }
    return picture;
}

void ManualPage::changeEvent(QEvent *event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        takeColours();
    }
}

/// The style of a document counts when it is read.
void ManualPage::takeColours() {
    const QString style = styleIn(colours());
    if (document()->defaultStyleSheet() == style) {
        return;
    }
    document()->setDefaultStyleSheet(style);
    if (!source().isEmpty()) {
        const int place = verticalScrollBar()->value();
        reload();
        verticalScrollBar()->setValue(place);
    }
}

} // namespace pinmora
