#include "bench/Table.h"

#include "bench/Corpus.h"

#include <QStringList>

#include <cstdio>
#include <string>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    QString TimeText(double seconds)
    {
        if (seconds >= 1)
            return u"%1 s"_s.arg(seconds, 0, 'f', 2);
        if (seconds >= 1e-3)
            return u"%1 ms"_s.arg(seconds * 1e3, 0, 'f', 2);
        return u"%1 us"_s.arg(seconds * 1e6, 0, 'f', 2);
    }

    QString RatioText(double ratio)
    {
        return ratio < 0.01 ? u"<0.01"_s : QString::number(ratio, 'f', ratio < 10 ? 2 : 0);
    }

    void PrintLine(const QString &name, const QStringList &cells, const QString &remark)
    {
        std::printf("%-34s", qPrintable(name));
        for (const QString &cell : cells)
            std::printf(" %10s", qPrintable(cell));
        std::printf("  %s\n", qPrintable(remark));
        std::fflush(stdout);
    }

} // namespace

bool Table::ReportContext(const Context &)
{
    std::printf("HTML: %s\n\n", qPrintable(HtmlSource()));
    PrintLine({}, {u""_s, u""_s, u"floor:"_s, u"floor:"_s, u"times"_s, u"times"_s}, {});
    PrintLine(u"median of each"_s,
              {u"time"_s, u"95 %"_s, u"memcpy"_s, u"scan <"_s, u"memcpy"_s, u"scan <"_s},
              u"found (target)"_s);
    return true;
}

void Table::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        const QString name = QString::fromStdString(run.run_name.function_name);
        if (run.error_occurred) {
            PrintLine(name, {}, QString::fromStdString(run.error_message));
            continue;
        }
        const auto counter = [&run](const char *key) {
            const auto found = run.counters.find(key);
            return found == run.counters.end() ? 0.0 : double(found->second);
        };
        PrintLine(name,
                  {TimeText(counter("median")),
                   TimeText(counter("p95")),
                   TimeText(counter("memcpy")),
                   TimeText(counter("scan")),
                   RatioText(counter("of_memcpy")),
                   RatioText(counter("of_scan"))},
                  QString::fromStdString(run.report_label));
    }
}

} // namespace bench
