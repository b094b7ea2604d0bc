#pragma once

#include <QProxyStyle>

namespace brenix {

/// The desktop's style, whose small icons of title bars and tool bars are read when they are first
/// drawn. Menu bars and windows ask for them when they are made, most are never seen, and reading
/// them took a tenth of the time until the main window stands.
class LazyIconStyle : public QProxyStyle
{
public:
    QIcon standardIcon(StandardPixmap picture,
                       const QStyleOption *option,
                       const QWidget *widget) const override;
};

} // namespace brenix
