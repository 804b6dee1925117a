#pragma once

#include <QComboBox>

namespace pinmora {

/// Chooses between N and S, or E and W; their data are 0 and 1. To assistive technology it says
/// what is chosen in a word, and always what it chooses for: the toolkit's own boxes say there only
/// the letter that is seen.
class HemisphereBox : public QComboBox {
    Q_OBJECT

public:
    explicit HemisphereBox(bool isLatitude, QWidget *parent = nullptr);
};

} // namespace pinmora
