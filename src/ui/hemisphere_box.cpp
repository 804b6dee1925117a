#include "ui/hemisphere_box.h"

#include "ui/theme.h"

#include <QAccessibleWidget>

namespace pinmora {
namespace {

class HemisphereAccessible : public QAccessibleWidget {
public:
    explicit HemisphereAccessible(HemisphereBox *box)
        : QAccessibleWidget(box, QAccessible::ComboBox), box_(box) {}

    QString text(QAccessible::Text which) const override {
        return which == QAccessible::Value ? box_->currentData(Qt::AccessibleTextRole).toString()
                                           : QAccessibleWidget::text(which);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.hasPopup = true;
        return state;
    }
    int childCount() const override { return 0; } // the letters say nothing more
    QStringList actionNames() const override {
        return QStringList{showMenuAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString &name) override {
        if (name == showMenuAction()) {
            box_->showPopup();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    HemisphereBox *box_;
};

QAccessibleInterface *accessibleHemisphere(const QString &, QObject *object) {
    auto *const box = qobject_cast<HemisphereBox *>(object);
    return box ? new HemisphereAccessible(box) : nullptr; // the toolkit keeps and deletes it
}

} // namespace

HemisphereBox::HemisphereBox(bool isLatitude, QWidget *parent) : QComboBox(parent) {
    static const bool isInstalled = (QAccessible::installFactory(accessibleHemisphere), true);
    static_cast<void>(isInstalled);
    //: the letters of the four winds, as positions are written
    addItem(isLatitude ? tr("N") : tr("E"), 0);
    addItem(isLatitude ? tr("S") : tr("W"), 1);
    setItemData(0, isLatitude ? tr("north") : tr("east"), Qt::AccessibleTextRole);
    setItemData(1, isLatitude ? tr("south") : tr("west"), Qt::AccessibleTextRole);
    setToolTip(isLatitude ? tr("North or south of the equator") : tr("East or west of Greenwich"));
    setStyleSheet(QStringLiteral("QComboBox { padding: 3px 0 3px 5px; }"
                                 "QComboBox::drop-down { width: 14px; }"
                                 "QComboBox::down-arrow { width: 10px; }"));
    setFixedWidth(fontMetrics().horizontalAdvance(u'W') + 3 * spacing + smallGap);
}

} // namespace pinmora
