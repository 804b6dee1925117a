#pragma once

#include "ui/bindings.h"

#include <QScrollArea>

#include <functional>

class QGridLayout;
class QLabel;
class QVBoxLayout;

namespace pinmora {

struct ImageWell;
class WizardDetails;

/// What the wizard shows of the selected photo: its picture, and what is known of it. Buttons that
/// do something with it stand below.
class DetailsColumn : public QScrollArea {
    Q_OBJECT

public:
    struct Parts {
        WizardDetails &details;
        ImageWell &picture;
        Observable<bool> &pictureLoading;
        std::function<void()> fullSize; ///< shows the picture at full size
    };
    /// What the parts refer to must outlive the column.
    explicit DetailsColumn(const Parts &parts, QWidget *parent = nullptr);

    void addTool(QWidget *tool);

private:
    QWidget *addPicture(const Parts &parts);
    void addPair(QGridLayout &grid, int row, int column, Control &caption, TextField &value,
                 const QString &captionText);

    QVBoxLayout *column_;
    QLabel *choose_;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
