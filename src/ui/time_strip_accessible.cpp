#include "ui/time_strip_accessible.h"

#include "ui/time_strip_widget.h"

#include <QAccessibleWidget>

namespace pinmora {
namespace {

/// Hours up to 999 999, as the steppers have them.
constexpr qlonglong mostSeconds = 999'999LL * 3600;

class TimeStripAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit TimeStripAccessible(TimeStripWidget *widget)
        : QAccessibleWidget(widget, QAccessible::Slider), strip_(widget->strip()) {}

    void *interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text which) const override {
        return which == QAccessible::Value ? QString::fromStdString(strip_.clockWords())
                                           : QAccessibleWidget::text(which);
    }

    QVariant currentValue() const override {
        return static_cast<qlonglong>(strip_.clock().count());
    }
    void setCurrentValue(const QVariant &value) override {
        const std::chrono::seconds wanted(qBound(-mostSeconds, value.toLongLong(), mostSeconds));
        strip_.step(wanted - strip_.clock());
    }
    QVariant minimumValue() const override { return -mostSeconds; }
    QVariant maximumValue() const override { return mostSeconds; }
    QVariant minimumStepSize() const override { return 1; }

private:
    TimeStrip &strip_;
};

QAccessibleInterface *accessibleStrip(const QString &, QObject *object) {
    auto *const widget = qobject_cast<TimeStripWidget *>(object);
    return widget ? new TimeStripAccessible(widget) : nullptr; // the toolkit keeps and deletes it
}

} // namespace

void makeTimeStripsAccessible() {
    static const bool isDone = (QAccessible::installFactory(accessibleStrip), true);
    static_cast<void>(isDone);
}

} // namespace pinmora
