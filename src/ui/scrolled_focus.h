#pragma once

class QScrollArea;

namespace pinmora {

/// The keyboard stops at an area of texts only while there is more of it than is seen.
void focusWhileScrollable(QScrollArea &area);

} // namespace pinmora
