#pragma once

#include <QPushButton>

#include <string_view>

namespace pinmora {

/// A way to go on: the whole card, with a picture, a title and a line on what it means, is one
/// button.
class ChoiceCard : public QPushButton {
    Q_OBJECT

public:
    ChoiceCard(std::string_view iconName, const QString &title, const QString &words,
               QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

} // namespace pinmora
