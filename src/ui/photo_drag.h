#pragma once

#include <QtGlobal>

class QDropEvent;
class QWidget;

namespace pinmora {

/// Drags the selected photos, as many as they are, until they are dropped somewhere.
void dragPhotos(QWidget *source, qsizetype count);

/// Whether photos of this program's own list are dragged.
bool carriesPhotos(const QDropEvent &event);

} // namespace pinmora
