#pragma once

#include "ui/sheet_dialog.h"

class QDateTimeEdit;

namespace pinmora {

class TrueTime;
struct ImageWell;

/// Asks when the selected photo was really taken.
class TrueTimeDialog : public SheetDialog {
    Q_OBJECT

public:
    /// All must outlive the dialog. `picture` shows the selected photo.
    TrueTimeDialog(TrueTime &trueTime, ImageWell &picture, Observable<bool> &loading,
                   WidgetOf widgetOf, QWidget *owner);

protected:
    void aboutToShow() override;

private:
    void addPicture(ImageWell &picture, Observable<bool> &loading);
    void addTimes();

    TrueTime &trueTime_;
    QDateTimeEdit *taken_;
};

} // namespace pinmora
