#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace brenix {

/// A row of the table of meanings: "IMG|Shows a picture.|image.html".
struct TagMeaning
{
    QString name; ///< in upper case, as in the catalogue of tags
    QString meaning;
    QString related; ///< the written topic that tells more; may be empty
};

/// The rows of a table, one a line; empty lines and those that begin with "#" count for nothing. A
/// field that is missing is empty.
QList<TagMeaning> ParseMeanings(const QString &table);

/// A page of the help and the file that it belongs into, below the folder of the tag topics.
struct HelpPage
{
    QString file;
    QString html;
};

struct TagTopics
{
    QList<HelpPage> pages;
    QStringList errors; ///< tags without a meaning, and meanings that belong to no tag
};

/// A topic for each tag of all dialects and of the list of tags to insert, the reference that lists
/// them by dialect, the list of all with their meanings, and the attributes of every element of
/// HTML 5. Links to written topics lead to the folder above.
TagTopics MakeTagTopics(const QList<TagMeaning> &meanings);

} // namespace brenix
