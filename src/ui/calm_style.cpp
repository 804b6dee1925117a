#include "ui/calm_style.h"

#include "ui/icons.h"

namespace pinmora {

QIcon CalmStyle::standardIcon(StandardPixmap pixmap, const QStyleOption *option,
                              const QWidget *widget) const {
    return pixmap == SP_ToolBarHorizontalExtensionButton
               ? icon("more")
               : QProxyStyle::standardIcon(pixmap, option, widget);
}

} // namespace pinmora
