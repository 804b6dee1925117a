#pragma once

#include "shell/appearance.h"

#include <QColor>

#include <initializer_list>

class QApplication;
class QPalette;

namespace pinmora {

/// The colours of the program's roles, for a light or a dark desktop.
struct Colours {
    bool dark = false;
    QColor window;
    QColor content;
    QColor text;
    QColor quietText;    ///< 4.5 to 1 against window and content
    QColor disabledText; ///< 3 to 1 against window, content and accent ground
    QColor line;
    QColor edge; ///< of what is ticked; 3 to 1 against window and content
    QColor accent;
    QColor accentGround;
    QColor warning;
    QColor warningGround;
    QColor track;

    /// White or nearly black, whichever reads better on the accent.
    QColor onAccent() const;
};

/// The role colours as they are on a light or a dark desktop; the accent is used where it is valid,
/// made darker or lighter where text in it could not be read.
Colours coloursFor(bool dark, const QColor &desktopAccent = QColor());

QColor mixed(const QColor &a, const QColor &b, float shareOfB);
/// By the contrast ratio of WCAG 2: from 1 to 21.
double contrast(const QColor &a, const QColor &b);
inline constexpr double textContrast = 4.5; ///< WCAG 2, level AA
inline constexpr double shapeContrast = 3;  ///< the same, for what is not text; and disabled text
/// The colour, moved towards black or white as far as it takes for that contrast on all of the
/// grounds.
QColor readable(QColor ink, std::initializer_list<QColor> grounds, double least = textContrast);

/// Gives the application style, palette and style sheet. The accent is the desktop's where it sets
/// one. To be called again when the desktop's look has changed (QEvent::ThemeChange).
void applyTheme(QApplication &application, Appearance appearance);

// Its two halves, for a start: widgets that are put together under a style sheet are styled anew
// each time they are put into another, which would double the time until the window is up.
void applyColours(QApplication &application, Appearance appearance);
void applyStyleSheet(QApplication &application);

/// The colours in force, by what applyTheme() was last called with.
const Colours &colours();

/// One spacing unit, in device-independent pixels.
inline constexpr int spacing = 8;
/// Between things that belong together.
inline constexpr int smallGap = spacing / 2;

} // namespace pinmora
