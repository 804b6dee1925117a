#pragma once

#include "ui/sheet_dialog.h"

class QGridLayout;

namespace pinmora {

class ColumnBrowser;
class FileBrowser;
class MissingList;
class MissingPhotos;
struct FileBrowserOutlets;
struct MissingPhotosOutlets;

/// The photos that are no longer where they were, and what can be done about it.
class MissingDialog : public SheetDialog {
    Q_OBJECT

public:
    /// All but the owner must outlive the dialog.
    MissingDialog(MissingPhotosOutlets &outlets, MissingPhotos &missing, FileBrowser &browser,
                  WidgetOf widgetOf, QWidget *owner);

protected:
    void aboutToShow() override;

private:
    void addHeading();
    void addBody(FileBrowser &browser);
    QWidget *makeListActions();
    QWidget *makeChoice();
    void addWaysOut();
    void showHeading();

    MissingPhotosOutlets &outlets_;
    MissingPhotos &missing_;
    MissingList *list_ = nullptr;
    ColumnBrowser *columns_ = nullptr;
    QLabel *heading_ = nullptr;
    QLabel *words_ = nullptr;
};

} // namespace pinmora
