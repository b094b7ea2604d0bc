#include "app/LazyIconStyle.h"

#include "app/LazyIcon.h"

namespace brenix {

namespace {

    bool IsOfABar(QStyle::StandardPixmap picture)
    {
        switch (picture) {
        case QStyle::SP_TitleBarMenuButton:
        case QStyle::SP_TitleBarMinButton:
        case QStyle::SP_TitleBarMaxButton:
        case QStyle::SP_TitleBarCloseButton:
        case QStyle::SP_TitleBarNormalButton:
        case QStyle::SP_TitleBarShadeButton:
        case QStyle::SP_TitleBarUnshadeButton:
        case QStyle::SP_TitleBarContextHelpButton:
        case QStyle::SP_ToolBarHorizontalExtensionButton:
        case QStyle::SP_ToolBarVerticalExtensionButton:
            return true;
        default:
            return false;
        }
    }

} // namespace

QIcon LazyIconStyle::standardIcon(StandardPixmap picture,
                                  const QStyleOption *option,
                                  const QWidget *widget) const
{
    if (!IsOfABar(picture))
        return QProxyStyle::standardIcon(picture, option, widget);
    // The option lives no longer than this call.
    return LazyIcon(
        [this, picture] { return QProxyStyle::standardIcon(picture, nullptr, nullptr); });
}

} // namespace brenix
