#pragma once

#include <QLineEdit>

#include <functional>

namespace pinmora {

/// A line edit that takes its edited text back on Escape, and shows why its text is unfit.
class FieldEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit FieldEdit(QWidget *parent = nullptr);

    /// Takes back what has been typed; false when nothing has, and Escape is then left to others.
    using Revert = std::function<bool()>;
    void setRevert(Revert revert) { revert_ = std::move(revert); }
    /// Makes it just as wide as a text, for fields that stand close together.
    void fitTo(const QString &widest);
    /// Marks the field, with the reason as tool tip; "" takes both away.
    void showProblem(const QString &why);

protected:
    bool event(QEvent *event) override;

private:
    Revert revert_;
};

} // namespace pinmora
