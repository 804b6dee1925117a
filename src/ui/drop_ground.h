#pragma once

#include <QFrame>

#include <functional>
#include <string_view>
#include <vector>

namespace pinmora {

/// What a place shows while there is nothing in it: what may be dropped there, and buttons for the
/// other ways.
class DropGround : public QFrame {
    Q_OBJECT

public:
    struct Choice {
        QString title;
        std::function<void()> act;
    };
    struct Parts {
        std::string_view iconName;
        QString title;
        QString words;
        std::vector<Choice> buttons{}; ///< the first is what a person will want
        std::vector<Choice> links{};
    };

    explicit DropGround(const Parts &parts, QWidget *parent = nullptr);

private:
    QWidget *makeArea(const Parts &parts);
};

} // namespace pinmora
