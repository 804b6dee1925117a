#pragma once

#include "outlets/selector.h"
#include "outlets/stepper.h"
#include "shell/cameras.h"
#include "ui/bindings.h"

#include <QWidget>

class QCheckBox;
class QLabel;

namespace pinmora {

class Editing;
class OffsetSteppers;

/// One camera: its name, what it has taken, and the clock that it goes by.
class CameraRow : public QWidget {
    Q_OBJECT

public:
    /// Cameras and `editing` must outlive it.
    CameraRow(Cameras &cameras, CameraInUse camera, Editing &editing, QWidget *parent = nullptr);
    ~CameraRow() override;
    CameraRow(const CameraRow &) = delete;
    CameraRow &operator=(const CameraRow &) = delete;

    const std::string &camera() const { return shown_.camera; }
    void showCamera(const CameraInUse &camera);

private:
    void connectControls();
    void showClock();

    Cameras &cameras_;
    CameraInUse shown_;
    Selector sign_;
    Stepper hours_;
    Stepper minutes_;
    Stepper seconds_;
    QLabel *photos_;
    QCheckBox *own_;
    OffsetSteppers *steppers_;
    QLabel *words_;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
