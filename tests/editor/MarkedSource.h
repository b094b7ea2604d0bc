#pragma once

#include "tests/support/MemoryDocument.h"

/// Text with LF at line ends, the caret as "|" or the selection in "[" and "]".
inline MemorySource MarkedSource(QString marked)
{
    marked.replace(u'\n', QStringLiteral("\r\n"));
    const qsizetype caret = marked.indexOf(u'|');
    const qsizetype start = caret >= 0 ? caret : marked.indexOf(u'[');
    const qsizetype end = marked.indexOf(u']');
    for (const QChar sign : {u'|', u'[', u']'})
        marked.remove(sign);
    MemorySource source;
    source.SetText(marked);
    source.SetSelStart(int(start));
    source.SetSelLength(end > start ? int(end - start - 1) : 0);
    return source;
}

inline QString Marked(const MemorySource &source)
{
    QString text = source.Text();
    text.insert(source.SelStart(), u'|');
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}
