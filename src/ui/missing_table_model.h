#pragma once

#include "outlets/array_controller.h"
#include "ui/unhurried.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <string>
#include <vector>

namespace pinmora {

class image;

/// Photos without a file: what they are called, and where they were. It follows the list in turns
/// of the event loop.
class MissingTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Photo, WasIn, ColumnCount };

    /// The list must outlive the model. Folders below `home` are written with "~".
    MissingTableModel(ArrayController<image> &list, std::string home, QObject *parent = nullptr);

    /// Perhaps one that has gone: good for an ArrayController to be told of.
    image *photoAt(int row) const { return rows_.at(static_cast<std::size_t>(row)).photo; }
    /// Follows at once what has changed.
    void catchUp() { following_.finish(); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// The list or its selection may be another one.
    void followed();

private:
    struct Row {
        image *photo;
        std::uint32_t serial;
        QString name;
        QString folder;
        QString path;
    };

    void follow();
    bool isUpToDate() const;
    Row rowOf(image &photo) const;

    ArrayController<image> &list_;
    const std::string home_;
    std::vector<Row> rows_;
    Unhurried following_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
