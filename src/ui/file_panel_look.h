#pragma once

class QFileDialog;

namespace pinmora {

// What the toolkit's own file dialog lacks for a person who works with photos.

/// Wide enough for a date to be read; with the person's folders, and cards and receivers that are
/// plugged in.
void makeRoomy(QFileDialog &dialog);
/// Without pictures on its buttons.
void makeCalm(QFileDialog &dialog);
/// Whether the choice among kinds of files is seen; where there is one kind only, it tells nothing.
void showTypes(const QFileDialog &dialog, bool shown);

} // namespace pinmora
