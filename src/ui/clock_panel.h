#pragma once

#include "platform/end_of_turn.h"
#include "ui/bindings.h"

#include <QWidget>

#include <functional>

class QBoxLayout;
class QLabel;
class QPushButton;
class QStackedLayout;
class QVBoxLayout;

namespace pinmora {

class ClockSaying;
class ClockLine;
class Editing;
enum class Role;
struct MatchingOutlets;
struct TextField;

/// How far the camera's clock is off: sign, hours, minutes and seconds, the same in words, what
/// that makes of the selected photo's time, and, folded away, the ways to derive it from a point of
/// a track.
class ClockPanel : public QWidget {
    Q_OBJECT

public:
    /// Outlets, saying, line and `editing` must outlive the panel. `find` looks for the track
    /// point nearest to the known position (Matcher::guessFromLatLon).
    ClockPanel(MatchingOutlets &outlets, ClockSaying &saying, ClockLine &line, Editing &editing,
               const std::function<void()> &find, QWidget *parent = nullptr);

    /// Half as high and twice as wide, where it has that width.
    void setLow(bool low);
    /// As narrow as it is when it is not low.
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void arrange();
    QLabel *elided(TextField &field, Role role);
    void addClock(QVBoxLayout &column, ClockSaying &saying, ClockLine &line, Editing &editing);
    void addTimes(QVBoxLayout &column);
    void addActions(QVBoxLayout &column);
    QWidget *makeMore(const std::function<void()> &find);
    void showTimes();

    MatchingOutlets &outlets_;
    QLayout *clock_;
    QLayout *photo_; ///< what the clock makes of a photo
    QBoxLayout *halves_ = nullptr;
    bool isLow_ = false;
    QLabel *chooseFirst_;
    QWidget *times_;
    QStackedLayout *instead_; ///< one of these two
    QLabel *taken_;
    QLabel *corrected_;
    QPushButton *set_ = nullptr;
    QWidget *more_ = nullptr;
    EndOfTurn endOfTurn_;
    Bindings bindings_;
};

} // namespace pinmora
