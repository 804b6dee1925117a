#include "ui/theme.h"

#include "ui/calm_style.h"
#include "ui/style_sheet.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace pinmora {
namespace {

/// Relative luminance of sRGB, by WCAG 2.
double luminance(const QColor &colour) {
    const auto linear = [](float channel) {
        const auto c = static_cast<double>(channel);
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

Colours &inForce() {
    static Colours colours = coloursFor(false);
    return colours;
}

/// What the desktop says where the program has said nothing yet.
QPalette desktopPalette() {
    QApplication::setPalette(QPalette());
    return QApplication::palette();
}

/// Invalid where the desktop leaves the choice to the style.
QColor desktopAccent(const QPalette &desktop) {
    const QColor highlight = desktop.color(QPalette::Active, QPalette::Highlight);
    const QColor ofStyle =
        QApplication::style()->standardPalette().color(QPalette::Active, QPalette::Highlight);
    return highlight == ofStyle ? QColor() : highlight;
}

QPalette paletteIn(const Colours &c) {
    QPalette palette(c.text, c.window, c.dark ? c.line.lighter(130) : c.content, c.line.darker(115),
                     c.line, c.text, c.content);
    palette.setColor(QPalette::Base, c.content);
    palette.setColor(QPalette::AlternateBase, mixed(c.content, c.window, 0.6F));
    palette.setColor(QPalette::Button, c.dark ? mixed(c.window, c.text, 0.04F) : c.window);
    palette.setColor(QPalette::ButtonText, c.text);
    palette.setColor(QPalette::Midlight, c.line);
    palette.setColor(QPalette::Shadow, c.dark ? QColor(Qt::black) : c.quietText);
    palette.setColor(QPalette::Highlight, c.accent);
    palette.setColor(QPalette::HighlightedText, c.onAccent());
    palette.setColor(QPalette::Link, c.accent);
    palette.setColor(QPalette::LinkVisited, c.accent);
    palette.setColor(QPalette::ToolTipBase, c.content);
    palette.setColor(QPalette::ToolTipText, c.text);
    palette.setColor(QPalette::PlaceholderText, c.quietText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, c.disabledText);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, c.line);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, c.quietText);
    return palette;
}

} // namespace

QColor mixed(const QColor &a, const QColor &b, float shareOfB) {
    const auto mix = [shareOfB](float x, float y) { return x + (y - x) * shareOfB; };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()),
                            mix(a.blueF(), b.blueF()));
}

double contrast(const QColor &a, const QColor &b) {
    const double one = luminance(a) + 0.05;
    const double other = luminance(b) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

QColor readable(QColor ink, std::initializer_list<QColor> grounds, double least) {
    const auto lowest = [grounds](const QColor &colour) {
        double found = 21;
        for (const QColor &ground : grounds) {
            found = std::min(found, contrast(colour, ground));
        }
        return found;
    };
    const QColor end = lowest(Qt::black) > lowest(Qt::white) ? Qt::black : Qt::white;
    const QColor start = ink;
    for (float share = 0; lowest(ink) < least && share < 1; share += 0.02F) {
        ink = mixed(start, end, share);
    }
    return ink;
}

QColor Colours::onAccent() const {
    const QColor nearlyBlack(0x1b, 0x1d, 0x20);
    return contrast(accent, Qt::white) >= contrast(accent, nearlyBlack) ? QColor(Qt::white)
                                                                        : nearlyBlack;
}

Colours coloursFor(bool dark, const QColor &desktopAccent) {
    Colours c;
    c.dark = dark;
    c.window = dark ? QColor(0x24, 0x27, 0x2b) : QColor(0xf4, 0xf5, 0xf6);
    c.content = dark ? QColor(0x1b, 0x1d, 0x20) : QColor(0xff, 0xff, 0xff);
    c.text = dark ? QColor(0xe6, 0xe8, 0xea) : QColor(0x23, 0x27, 0x2b);
    c.line = dark ? QColor(0x3a, 0x3f, 0x45) : QColor(0xd9, 0xdd, 0xe1);
    c.accent = dark ? QColor(0x7a, 0xa8, 0xf0) : QColor(0x2f, 0x6f, 0xdb);
    c.accentGround = dark ? QColor(0x2b, 0x3d, 0x5c) : QColor(0xe3, 0xed, 0xfc);
    c.warningGround = dark ? QColor(0x3d, 0x32, 0x22) : QColor(0xfd, 0xf0, 0xdc);
    c.track = dark ? QColor(0xf0, 0x7a, 0x70) : QColor(0xd1, 0x46, 0x3f);
    if (desktopAccent.isValid()) {
        c.accent = desktopAccent;
        c.accentGround = mixed(c.content, desktopAccent, dark ? 0.3F : 0.14F);
    }
    c.accent = readable(c.accent, {c.window, c.content});
    c.quietText = readable(dark ? QColor(0x98, 0xa1, 0xaa) : QColor(0x71, 0x7a, 0x83),
                           {c.window, c.content, c.accentGround});
    c.warning = readable(dark ? QColor(0xf0, 0xb2, 0x5a) : QColor(0xb4, 0x53, 0x09),
                         {c.window, c.content, c.accentGround, c.warningGround});
    c.disabledText = readable(mixed(c.text, c.window, 0.55F), {c.window, c.content, c.accentGround},
                              shapeContrast);
    c.edge = readable(mixed(c.line, c.text, 0.25F), {c.window, c.content}, shapeContrast);
    return c;
}

void applyColours(QApplication &application, Appearance appearance) {
    // Only before the first style of one's own does the desktop's palette show through everywhere.
    const QPalette desktop = desktopPalette();
    const bool dark = appearance == Appearance::System
                          ? luminance(desktop.color(QPalette::Window)) < 0.2
                          : appearance == Appearance::Dark;
    inForce() = coloursFor(dark, desktopAccent(desktop));
    if (application.styleSheet().isEmpty()) {
        QApplication::setStyle(new CalmStyle); // the application owns it
    }
    QApplication::setPalette(paletteIn(inForce()));
}

void applyStyleSheet(QApplication &application) {
    application.setStyleSheet(styleSheetIn(inForce()));
}

void applyTheme(QApplication &application, Appearance appearance) {
    applyColours(application, appearance);
    applyStyleSheet(application);
}

const Colours &colours() {
    return inForce();
}

} // namespace pinmora
