#include "ui/file_panel_look.h"

#include "ui/mount_points.h"
#include "ui/theme.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
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

/// Keeps the list of what could be typed away while nothing is typed, as after a folder was
/// entered: it would take the click on whatever lies below it.
class NoListForNothing : public QObject {
public:
    explicit NoListForNothing(QLineEdit &typed) : QObject(&typed), typed_(typed) {
        typed.completer()->popup()->installEventFilter(this);
        connect(&typed, &QLineEdit::textChanged, this, &NoListForNothing::hideForNothing);
    }

private:
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Show) {
            QMetaObject::invokeMethod(this, &NoListForNothing::hideForNothing,
                                      Qt::QueuedConnection);
        }
        return false;
    }

    void hideForNothing() {
        if (typed_.text().isEmpty()) {
            typed_.completer()->popup()->hide();
        }
    }

    QLineEdit &typed_;
};

} // namespace

void makeRoomy(QFileDialog &dialog) {
    dialog.setSidebarUrls(places());
    if (auto *list = dialog.findChild<QTreeView *>()) {
        constexpr int typeColumn = 2;
        list->setColumnHidden(typeColumn, true);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        for (const int column : {1, 3}) {
            list->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
        }
    }
    if (auto *splitter = dialog.findChild<QSplitter *>()) {
        splitter->setSizes({18 * spacing, 87 * spacing});
    }
    if (auto *typed = dialog.findChild<QLineEdit *>(); typed && typed->completer()) {
        new NoListForNothing(*typed);
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
