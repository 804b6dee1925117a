#pragma once

#include <QListView>

namespace pinmora {

class BrowserModel;

/// One column of a browser: what stands in one folder.
class BrowserColumn : public QListView {
    Q_OBJECT

public:
    BrowserColumn(BrowserModel &model, QAbstractItemDelegate &cell, const QModelIndex &folder,
                  QWidget *parent);

    /// Takes the keyboard, with the first entry selected where none is.
    void enter();

Q_SIGNALS:
    void selectionMade();
    void leftWanted();
    void rightWanted();
    /// The current entry is to be opened with the program for its kind.
    void openWanted();

protected:
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// What stands where there are no rows.
    QString note() const;

    const BrowserModel &model_;
};

} // namespace pinmora
