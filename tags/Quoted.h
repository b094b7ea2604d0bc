#pragma once

#include <QString>

namespace brenix {

/// An attribute's value in double quotes. One that holds double quotes has them written as
/// "&quot;", since the value would end there.
inline QString Quoted(QString value)
{
    value.replace(u'"', QStringLiteral("&quot;"));
    return u'"' + value + u'"';
}

} // namespace brenix
