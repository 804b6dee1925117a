#include "ui/wizard/clock_words.h"

#include "shell/clock_saying.h"
#include "ui/roles.h"

namespace pinmora {

ClockWords::ClockWords(ClockSaying &saying, QWidget *parent) : QLabel(parent) {
    setRole(this, Role::Quiet);
    setTextFormat(Qt::PlainText); // a camera's name comes from a file
    setAccessibleName(tr("Correction of the camera clock"));
    bindings_.watch(saying.words.text,
                    [this](const std::string &words) { setText(QString::fromStdString(words)); });
}

} // namespace pinmora
