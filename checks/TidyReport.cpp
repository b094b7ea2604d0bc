#include "checks/TidyReport.h"

#include "support/ListInput.h"
#include "support/TextSearch.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    QStringView TrimBlanks(QStringView text)
    {
        while (text.startsWith(u' '))
            text = text.sliced(1);
        while (text.endsWith(u' '))
            text.chop(1);
        return text;
    }

} // namespace

QStringList TidyReportLines(QStringView report, QStringView page)
{
    const TextSearch pageName(page.toString() + u':');
    const TextSearch lineWord(u"line");
    const TextSearch warningWord(u"warning");
    const TextSearch errorWord(u"error");
    QStringList lines;
    QSet<QString> known;
    int warnings = 0;
    int errors = 0;
    ListInput fields(report);
    while (const auto field = fields.Next()) {
        const QString line = TrimBlanks(ReplaceAll(*field, pageName, u"")).toString();
        if (!lineWord.StandsIn(line) || known.contains(line))
            continue;
        known.insert(line);
        lines.append(line);
        warnings += warningWord.StandsIn(line);
        errors += errorWord.StandsIn(line);
    }
    lines.append({QString(),
                  u"Warnings: "_s + QString::number(warnings),
                  u"Errors: "_s + QString::number(errors)});
    return lines;
}

} // namespace brenix
