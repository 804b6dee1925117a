#pragma once

#include <QTextBrowser>

namespace pinmora {

/// A page of the manual, in the colours in force, with its pictures no wider than the page.
class ManualPage : public QTextBrowser {
    Q_OBJECT

public:
    explicit ManualPage(QWidget *parent = nullptr);

    QVariant loadResource(int type, const QUrl &name) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void takeColours();
};

} // namespace pinmora
