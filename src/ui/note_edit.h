#pragma once

#include <QPlainTextEdit>

#include <functional>

namespace pinmora {

/// A field for a few lines of text. Return and leaving it finish; Shift+Return begins a line.
/// Escape takes edited text back.
class NoteEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit NoteEdit(int lines, QWidget *parent = nullptr);

    /// Takes back what has been typed; false when nothing has.
    using Revert = std::function<bool()>;
    void setRevert(Revert revert) { revert_ = std::move(revert); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void editingFinished();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QSize sizeOf(int lines) const;

    const int lines_;
    Revert revert_;
};

} // namespace pinmora
