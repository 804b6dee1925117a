#pragma once

#include "outlets/signal.h"

#include <QWidget>

#include <string>
#include <vector>

class QScrollArea;

namespace pinmora {

class BrowserColumn;
class BrowserModel;
class FileBrowser;
class FSBrowserCell;
struct BrowserView;
struct FileBrowserOutlets;

/// The folders and files below the home folder, in a column for each level. Where one folder is
/// selected, the next column shows what is in it.
///
/// Made of plain lists: the toolkit's own column view has one selection for all of its columns, and
/// a column for a preview that cannot be left out.
class ColumnBrowser : public QWidget {
    Q_OBJECT

public:
    /// All but the parent must outlive it.
    ColumnBrowser(FileBrowserOutlets &outlets, FileBrowser &browser, QWidget *parent = nullptr);
    ~ColumnBrowser() override;
    ColumnBrowser(const ColumnBrowser &) = delete;
    ColumnBrowser &operator=(const ColumnBrowser &) = delete;

    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    /// Reads all anew from the first column, at once or when it is looked at.
    void reload();
    void openColumn(const QModelIndex &folder);
    void closeColumnsFrom(std::size_t first);
    void connectColumn(BrowserColumn &column);
    std::size_t positionOf(const BrowserColumn &column) const;
    void takeSelection(BrowserColumn &column);
    void tellSelection(const BrowserColumn &column);
    void goLeft(const BrowserColumn &column);
    void goRight(const BrowserColumn &column);
    void folderListed(const QModelIndex &folder);
    void placeColumns();
    void revealLastColumn();
    void giveKeyboardTo(BrowserColumn &column);

    BrowserView &view_;
    FileBrowser &browser_;
    BrowserModel *model_;
    FSBrowserCell *cell_;
    QScrollArea *area_;
    QWidget *strip_; ///< on which the columns stand side by side
    std::vector<BrowserColumn *> columns_;
    const BrowserColumn *entered_ = nullptr; ///< the keyboard goes there when its rows come
    bool mustReload_ = true;
    Connection reloads_;
};

} // namespace pinmora
