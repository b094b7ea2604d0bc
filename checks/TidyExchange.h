#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace brenix {

/// What passes between the editor and Tidy: arguments, the script, and the page. Text passes as
/// UTF-8, whatever the page is written in.

/// For a check: Tidy writes `report`, and no page. A tab counts as one column, as in the source
/// view.
QStringList TidyCheckArguments(const QString &report, const QString &page);

/// For a run: Tidy rewrites the file `page` as the file `configuration` says, which is the script.
/// Of what the script says about encodings one thing holds: where it asks for "ascii", the result
/// has entities for all other characters.
QStringList TidyRunArguments(const QString &script,
                             const QString &configuration,
                             const QString &report,
                             const QString &page);

/// The script as Tidy gets it: without the lines that name files to be written, since a script that
/// comes from somebody else could otherwise empty any file of the author's.
QByteArray TidyConfiguration(const QString &script);

/// The page out of the file that Tidy has written, with line ends as they came. Tidy has put its
/// own encoding in the place of the charset that the first META tag with one declares; it gets the
/// name back that it has in `before`, since the page is saved as it was.
QString TidiedPage(const QByteArray &result, const QString &before);

} // namespace brenix
