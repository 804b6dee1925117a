#pragma once

#include <QHash>
#include <QIcon>
#include <QStyledItemDelegate>

namespace pinmora {

/// Paints an entry of the file system: its icon, with a badge on links, and its name.
class FSBrowserCell : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// The desktop's icons may be other ones now.
    void forgetIcons() { icons_.clear(); }

private:
    /// The desktop's icon for a folder, or for files of such a name; files are not looked into.
    const QIcon &iconImage(const QString &name, bool isFolder) const;

    mutable QHash<QString, QIcon> icons_; ///< by extension; "/" for folders
};

} // namespace pinmora
