#pragma once

#include "outlets/attributed_text.h"
#include "ui/bindings.h"

#include <QLabel>

namespace pinmora {

/// Shows text with some of it in bold type. Long names are broken anywhere.
class InspectorText : public QLabel {
    Q_OBJECT

public:
    /// The field must outlive it.
    explicit InspectorText(AttributedField &field, QWidget *parent = nullptr);

private:
    Bindings bindings_;
};

} // namespace pinmora
