#include "ui/roles.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace pinmora {
namespace {

const char *nameOf(Role role) {
    switch (role) {
    case Role::Heading:
        return "heading";
    case Role::Title:
        return "title";
    case Role::Question:
        return "question";
    case Role::Quiet:
        return "quiet";
    case Role::Strong:
        return "strong";
    case Role::Problem:
        return "problem";
    case Role::Link:
        return "link";
    case Role::Removal:
        return "removal";
    case Role::Flat:
        return "flat";
    case Role::Plain:
        return "";
    case Role::Default:
        return "default";
    case Role::Strip:
        return "strip";
    case Role::Footer:
        return "footer";
    case Role::Content:
        return "content";
    case Role::Framed:
        return "framed";
    case Role::QuietBar:
        return "quietBar";
    case Role::Dashed:
        return "dashed";
    case Role::DropOver:
        return "dropOver";
    case Role::Card:
        return "card";
    case Role::Pages:
        return "pages";
    case Role::Steps:
        return "steps";
    case Role::Step:
        return "step";
    case Role::StepDone:
        return "stepDone";
    case Role::StepNow:
        return "stepNow";
    case Role::StepAhead:
        return "stepAhead";
    }
    return "";
}

} // namespace

void setRole(QWidget *widget, Role role) {
    widget->setProperty("role", QLatin1StringView(nameOf(role)).toString());
    if (role == Role::Title || role == Role::Question) {
        QFont larger = widget->font();
        larger.setPointSizeF(larger.pointSizeF() * (role == Role::Title ? 1.3 : 1.65));
        widget->setFont(larger);
    }
    // Properties count only when the widget is styled anew.
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace pinmora
