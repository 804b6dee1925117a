#pragma once

#include "shell/desk.h"
#include "ui/photo_table.h"
#include "ui/program_windows.h"
#include "ui/work_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

/// The program with its windows, driven as a person would.
struct WindowDesk : Desk {
    explicit WindowDesk(QSize size = {1280, 800},
                        const std::filesystem::path &resources = PINMORA_SOURCE_DIR "/samples",
                        pinmora::MapPane::MakePage makePage = nullptr)
        : Desk(resources) {
        start();
        windows = std::make_unique<pinmora::ProgramWindows>(delegate, std::move(makePage));
        quitting = delegate.terminate.connect([this] { windows->quit(); });
        turnToFront();
        window->resize(size);
    }

    /// Goes on in the window that has come to the front.
    void turnToFront() {
        window = windows->windowInFront();
        static_cast<void>(QTest::qWaitForWindowExposed(window));
    }
    /// What an action has left for the turns of the event loop after it. The list follows a load
    /// when there is time.
    void settle() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        const bool followed = QTest::qWaitFor([this] {
            return photoTable()->model()->rowCount() ==
                   static_cast<int>(parts().arrays.pictureArray.count());
        });
        if (!QApplication::activeWindow()) { // a sheet has gone, and there is no window manager
            window->activateWindow();
            static_cast<void>(QTest::qWaitForWindowActive(window));
        }
        if (!followed) {
            qFatal("the list does not follow the library");
        }
    }
    QAction *action(pinmora::ActionName name) const { return windows->action(name); }
    /// What is shown to assistive technology by this name; it must be there, and to be seen.
    template <class Widget>
    Widget *named(const char *name) const {
        for (auto *widget : window->findChildren<Widget *>()) {
            if (widget->accessibleName() == QString::fromUtf8(name) && widget->isVisible()) {
                return widget;
            }
        }
        qFatal("nothing visible is called \"%s\"", name);
    }
    QAbstractButton *button(const char *text) const {
        for (QWidget *top : QApplication::topLevelWidgets()) {
            for (auto *one : top->findChildren<QAbstractButton *>()) {
                if (one->isVisible() &&
                    one->text().remove(QLatin1Char('&')) == QString::fromUtf8(text)) {
                    return one;
                }
            }
        }
        return nullptr;
    }
    void type(const char *field, const char *text) const {
        auto *const edit = named<QLineEdit>(field);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, QString::fromUtf8(text));
        QTest::keyClick(edit, Qt::Key_Return);
    }
    QTableView *photoTable() const { return window->findChild<pinmora::PhotoTable *>(); }
    void clickRow(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QTableView *const table = photoTable();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, keys,
                          table->visualRect(table->model()->index(row, 0)).center());
        settle();
    }
    QDialog *sheet() const { return qobject_cast<QDialog *>(QApplication::activeModalWidget()); }
    const pinmora::image &photo(std::size_t row) {
        return *parts().arrays.pictureArray.arrangedObjects().at(row);
    }

    std::unique_ptr<pinmora::ProgramWindows> windows;
    pinmora::WorkWindow *window = nullptr; ///< the one that is worked in
    pinmora::Connection quitting;
};
