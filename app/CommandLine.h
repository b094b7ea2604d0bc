#pragma once

#include <QString>
#include <QStringList>

namespace brenix {

/// What the command line asks for: the arguments joined as they were typed, without double quotes
/// and outer blanks. The one switch is "-StartFirst"; anything else is the path of one file, blanks
/// included.
struct CommandLine
{
    bool startFirst = false;
    QString path; ///< empty when no file is named
};
CommandLine ReadCommandLine(const QStringList &arguments);

} // namespace brenix
