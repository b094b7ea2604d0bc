#include "app/ReferenceTable.h"

#include "support/AuthorFile.h"

#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace brenix {

ReferenceTable ParseReference(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    if (decoder.hasError())
        return {{}, u"it is not UTF-8"_s};
    ReferenceTable table;
    int number = 0;
    for (const QString &line : text.split(u'\n')) {
        ++number;
        const QString row = line.trimmed();
        if (row.isEmpty())
            continue;
        const QStringList fields = row.split(u'|');
        if (fields.size() != 4 || fields[0].isEmpty() || fields[2].isEmpty() || fields[3].isEmpty())
            return {{}, u"line %1 is not \"Group|Member|Kind|Meaning\""_s.arg(number)};
        table.entries.append({fields[0], fields[1], fields[2], fields[3]});
    }
    if (table.entries.isEmpty())
        table.error = u"it is empty"_s;
    return table;
}

ReferenceTable ReadReference(const QString &path)
{
    const FileContent file = ReadAuthorFile(path);
    if (!file.error.isEmpty())
        return {{}, file.error};
    return ParseReference(file.bytes);
}

} // namespace brenix
