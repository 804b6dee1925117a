#pragma once

#include <QString>

class QAbstractButton;
class QLabel;
class QVBoxLayout;
class QWidget;

namespace pinmora {

/// How far the text of a box stands from its left edge, in device-independent pixels: the mark with
/// its lines, and the gap, as the style sheet has them.
inline constexpr int besideMark = 13 + 2 + 7;

/// A quiet sentence that takes as many lines as it needs.
QLabel *sentence(const QString &text);

/// A box or a radio button above the sentence that says what it does, aligned with its text.
QVBoxLayout *explained(QAbstractButton *button, const QString &text);

} // namespace pinmora
