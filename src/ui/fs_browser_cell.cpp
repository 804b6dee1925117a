#include "ui/fs_browser_cell.h"

#include "ui/browser_model.h"
#include "ui/icons.h"
#include "ui/theme.h"

#include <QAbstractItemView>
#include <QMimeDatabase>
#include <QPainter>

#include <algorithm>

namespace pinmora {
namespace {

constexpr int iconSide = 16;
constexpr int iconIndent = 4;
constexpr int stripWidth = iconSide + 6;
constexpr int rowHeight = 20;
constexpr int badgeSide = 9;
constexpr double cornerRadius = 3;

QIcon folderIcon() {
    return QIcon::fromTheme(QStringLiteral("folder"), icon("folder"));
}

QIcon fileIcon(const QString &name) {
    const QList<QMimeType> types = QMimeDatabase().mimeTypesForFileName(name);
    if (types.isEmpty()) {
        return QIcon::fromTheme(QStringLiteral("text-x-generic"), icon("file"));
    }
    const QMimeType &type = types.front();
    const bool isPicture = type.name().startsWith(QLatin1StringView("image/"));
    return QIcon::fromTheme(
        type.iconName(),
        QIcon::fromTheme(type.genericIconName(), icon(isPicture ? "picture" : "file")));
}

void paintGround(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) {
    if (!option.state.testFlag(QStyle::State_Selected)) {
        return;
    }
    const auto *const view = qobject_cast<const QAbstractItemView *>(option.widget);
    const bool hasKeyboard = view && view->hasFocus() && view->currentIndex() == index;
    painter->setPen(hasKeyboard ? QPen(colours().accent, 1) : QPen(Qt::NoPen));
    painter->setBrush(colours().accentGround);
    const QRectF frame(option.rect);
    painter->drawRoundedRect(hasKeyboard ? frame.adjusted(0.5, 0.5, -0.5, -0.5) : frame,
                             cornerRadius, cornerRadius);
}

/// Over the lower right corner of the icon, on a ground of its own.
void paintBadge(QPainter *painter, const QRect &iconFrame, bool isSelected) {
    QRect badge(0, 0, badgeSide, badgeSide);
    badge.moveBottomRight(iconFrame.bottomRight() + QPoint(1, 1));
    painter->setPen(Qt::NoPen);
    painter->setBrush(isSelected ? colours().accentGround : colours().content);
    painter->drawEllipse(badge);
    icon("link-arrow").paint(painter, badge);
}

} // namespace

QSize FSBrowserCell::sizeHint(const QStyleOptionViewItem &option,
                              const QModelIndex & /*index*/) const {
    return {stripWidth + option.fontMetrics.averageCharWidth(),
            std::max(rowHeight, option.fontMetrics.height())};
}

void FSBrowserCell::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const {
    const QString title = index.data().toString();
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const bool isLink = index.data(BrowserModel::IsLink).toBool();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintGround(painter, option, index);

    QRect frame(option.rect.left() + iconIndent, 0, iconSide, iconSide);
    frame.moveTop(option.rect.top() + (option.rect.height() - iconSide) / 2);
    painter->save(); // an icon that is disabled leaves its opacity behind
    iconImage(title, index.data(BrowserModel::IsFolder).toBool())
        .paint(painter, frame, Qt::AlignCenter, isEnabled ? QIcon::Normal : QIcon::Disabled);
    painter->restore();
    if (isLink) {
        paintBadge(painter, frame, option.state.testFlag(QStyle::State_Selected));
    }

    QFont font = option.font;
    font.setUnderline(isLink);
    painter->setFont(font);
    painter->setPen(isEnabled ? colours().text : mixed(colours().text, colours().content, 0.45F));
    const QRect area = option.rect.adjusted(stripWidth + 2, 0, -iconIndent, 0);
    // The end of a name tells one photo from the next, and its kind.
    painter->drawText(area, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(title, Qt::ElideMiddle, area.width()));
    painter->restore();
}

const QIcon &FSBrowserCell::iconImage(const QString &name, bool isFolder) const {
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const QString key =
        isFolder ? QStringLiteral("/") : name.mid(dot < 0 ? name.size() : dot).toLower();
    auto known = icons_.constFind(key);
    if (known == icons_.constEnd()) {
        known = icons_.insert(key, isFolder ? folderIcon() : fileIcon(name));
    }
    return *known;
}

} // namespace pinmora
