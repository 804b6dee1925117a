#include "ui/file_panel_look.h"

#include "ui/mount_points.h"
#include "ui/theme.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QPushButton>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>

namespace pinmora {
namespace {

QList<QUrl> places() {
    QList<QUrl> places;
    for (const auto place : {QStandardPaths::HomeLocation, QStandardPaths::DesktopLocation,
                             QStandardPaths::PicturesLocation, QStandardPaths::DownloadLocation}) {
        const QUrl folder = QUrl::fromLocalFile(QStandardPaths::writableLocation(place));
        if (!places.contains(folder) && QFileInfo::exists(folder.toLocalFile())) {
            places << folder;
        }
    }
    for (const std::string &point : mountPoints()) {
        places << QUrl::fromLocalFile(QFile::decodeName(QByteArray::fromStdString(point)));
    }
    return places;
}

} // namespace

void makeRoomy(QFileDialog &dialog) {
    dialog.setSidebarUrls(places());
    if (auto *list = dialog.findChild<QTreeView *>()) {
        constexpr int typeColumn = 2;
        list->setColumnHidden(typeColumn, true);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        list->header()->setSectionResizeMode(3, QHeaderView::ResizeToContents);
    }
    dialog.resize(105 * spacing, 65 * spacing);
}

void makeCalm(QFileDialog &dialog) {
    if (const auto *buttons = dialog.findChild<QDialogButtonBox *>()) {
        for (QAbstractButton *button : buttons->buttons()) {
            button->setIcon({});
        }
    }
}

void showTypes(const QFileDialog &dialog, bool shown) {
    for (const char *name : {"fileTypeLabel", "fileTypeCombo"}) {
        if (auto *widget = dialog.findChild<QWidget *>(QLatin1String(name))) {
            widget->setVisible(shown);
        }
    }
}

} // namespace pinmora
