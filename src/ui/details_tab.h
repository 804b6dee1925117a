#pragma once

#include "outlets/observable.h"
#include "ui/bindings.h"

#include <QWidget>

#include <functional>

class QGridLayout;

namespace pinmora {

class DetailFields;
struct DetailField;
struct ImageWell;

/// The details of the selected photos: a large picture, the name, and the texts that go into the
/// saved photo.
class DetailsTab : public QWidget {
    Q_OBJECT

public:
    struct Parts {
        DetailFields &details;
        ImageWell &picture;
        Observable<bool> &pictureLoading;
        std::function<void()> rename;
        std::function<void()> fullSize; ///< shows the picture at full size
    };
    /// What the parts refer to must outlive the tab.
    explicit DetailsTab(Parts parts, QWidget *parent = nullptr);

private:
    void addName(QGridLayout &grid, DetailFields &details, const std::function<void()> &rename);
    void addNote(QGridLayout &grid, DetailField &field, const QString &name, int lines);
    void addLine(QGridLayout &grid, int column, DetailField &field, const QString &name);
    void addCity(QGridLayout &grid, DetailFields &details);
    void addAltitude(QGridLayout &grid, DetailField &field);

    Bindings bindings_;
};

} // namespace pinmora
