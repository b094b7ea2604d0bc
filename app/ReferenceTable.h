#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace brenix {

/// One row of a reference: "Recordset|MoveNext|Method|Goes to the next record." A row without a
/// member tells about its group.
struct ReferenceEntry
{
    QString group;
    QString member; ///< what is inserted into the page
    QString kind;
    QString meaning;
};

struct ReferenceTable
{
    QList<ReferenceEntry> entries;
    QString error; ///< empty, or why there are no entries
};

/// The table of a file in UTF-8, a row of "Group|Member|Kind|Meaning" in each line; empty lines
/// count for nothing. A file that cannot be read, that is empty or that has a line of another form
/// gives no entry at all and the reason.
ReferenceTable ReadReference(const QString &path);
ReferenceTable ParseReference(const QByteArray &bytes);

} // namespace brenix
