#include "ui/error_dialog.h"

#include "outlets/error_sheet.h"
#include "ui/scrolled_focus.h"
#include "ui/theme.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace pinmora {

namespace {

/// A message may name a hundred files: it is scrolled then.
class Message : public QScrollArea {
public:
    explicit Message(QLabel *label) : label_(label) {
        setWidget(label);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        viewport()->setAutoFillBackground(false);
        label->setAutoFillBackground(false);
    }

    QSize sizeHint() const override {
        const int width = 54 * spacing;
        const int height = label_->heightForWidth(width);
        return {width, qBound(3 * spacing, height, 40 * spacing)};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    QLabel *label_;
};

} // namespace

ErrorDialog::ErrorDialog(ErrorSheet &errors, WidgetOf widgetOf, QWidget *owner)
    : SheetDialog(
          errors.errorWindow, std::move(widgetOf), [&errors] { errors.errorWindowClose(); },
          owner) {
    bindings_.show(errors.errorHeader, addText(Role::Title));
    auto *text = new QLabel;
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *message = new Message(text);
    message->setAccessibleName(tr("Message"));
    focusWhileScrollable(*message);
    column()->addWidget(message);
    bindings_.watch(errors.errorText.text, [this, text, message](const std::string &words) {
        text->setText(QString::fromStdString(words));
        message->updateGeometry();
        if (isVisible()) {
            fit();
        }
    });
    auto *ok = new QPushButton(tr("OK"));
    ok->setDefault(true);
    setRole(ok, Role::Default);
    connect(ok, &QPushButton::clicked, this, &ErrorDialog::reject);
    addButtons({}, {ok});
}

} // namespace pinmora
