#include "app/CommandLine.h"

using namespace Qt::StringLiterals;

namespace brenix {

CommandLine ReadCommandLine(const QStringList &arguments)
{
    const QString line = arguments.join(u' ').remove(u'"').trimmed();
    if (line == u"-StartFirst")
        return {.startFirst = true, .path = {}};
    return {.startFirst = false, .path = line};
}

} // namespace brenix
