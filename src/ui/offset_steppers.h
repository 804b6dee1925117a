#pragma once

#include "ui/bindings.h"

#include <QWidget>

#include <vector>

class QHBoxLayout;

namespace pinmora {

class Editing;
class StepperBox;
struct MatchingOutlets;
struct Selector;

/// Sign, hours, minutes and seconds of the camera clock's offset, in a row.
class OffsetSteppers : public QWidget {
    Q_OBJECT

public:
    /// All must outlive it. `sign` is one of the outlets' selectors.
    OffsetSteppers(MatchingOutlets &outlets, Selector &sign, Editing &editing,
                   QWidget *parent = nullptr);

private:
    void addSigns(QHBoxLayout &row, Selector &sign);
    void addBoxes(QHBoxLayout &row, MatchingOutlets &outlets);

    std::vector<StepperBox *> boxes_;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
