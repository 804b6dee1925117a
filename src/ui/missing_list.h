#pragma once

#include "outlets/array_controller.h"

#include <QTableView>

#include <string>

namespace pinmora {

class MissingTableModel;
class image;

/// The list of the photos without a file. What is selected in it is selected among them.
class MissingList : public QTableView {
    Q_OBJECT

public:
    /// As MissingTableModel has it.
    MissingList(ArrayController<image> &photos, std::string home, QWidget *parent = nullptr);

    /// Follows at once what has changed.
    void catchUp();

protected:
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

private:
    void takeSelection();

    ArrayController<image> &photos_;
    MissingTableModel *model_;
    bool isTaking_ = false; ///< the selection over from the photos
};

} // namespace pinmora
