#pragma once

#include "ui/bindings.h"

#include <QWidget>

namespace pinmora {

class ClockSaying;
class Matcher;
struct MatchingOutlets;

/// The tool of the page on which a photo's latitude and longitude are typed.
class PositionTool : public QWidget {
    Q_OBJECT

public:
    /// All must outlive it.
    PositionTool(MatchingOutlets &outlets, Matcher &matcher, ClockSaying &saying,
                 QWidget *parent = nullptr);

private:
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
