#pragma once

#include "ui/bindings.h"

#include <QWidget>

class QGridLayout;
class QHBoxLayout;
class QLabel;

namespace pinmora {

class AxisFields;
class CoordinateFields;
class FieldEdit;
struct CoordinateField;

/// The position of the selected photos in three notations, each of which can be edited, and the
/// button that sets or removes the marker.
class CoordinatePanel : public QWidget {
    Q_OBJECT

public:
    /// Both must outlive the panel.
    CoordinatePanel(CoordinateFields &fields, Button &addRemoveMarker, QWidget *parent = nullptr);

private:
    enum class Show { Minutes, Seconds };

    void addDecimals(QGridLayout &grid, Button &addRemoveMarker);
    void addParts(QGridLayout &grid, int row, Show show);
    void addMinutes(QHBoxLayout &row, AxisFields &axis);
    void addSeconds(QHBoxLayout &row, AxisFields &axis);
    void addHemisphere(QHBoxLayout &row, AxisFields &axis, const QString &name);
    FieldEdit *addField(CoordinateField &field, const QString &widest, const QString &name);
    void showProblems();

    CoordinateFields &fields_;
    QLabel *problem_;
    Bindings bindings_;
};

} // namespace pinmora
