#include "checks/Estimate.h"

#include "checks/Links.h"
#include "checks/QuotedValues.h"
#include "support/Paths.h"

#include <QFileInfo>
#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int SecondsAMinute = 60;
    constexpr int KilobyteSize = 1024;
    constexpr int NumberDigits = 15;

    std::optional<qint64> SizeOf(const QString &path, const QString &currentFolder)
    {
        const QFileInfo file(FileOnDisk(path, currentFolder));
        if (!file.isReadable())
            return std::nullopt;
        return file.size();
    }

    DownloadTime Cut(double time, const QString &unit)
    {
        return {QString::number(qint64(time)) + unit,
                QString::number(time, 'g', NumberDigits) + unit};
    }

} // namespace

const LineSpeed ModemSpeed{u"56 k"_s, 56000};
const LineSpeed IsdnSpeed{u"ISDN"_s, 64000};

const QList<LineSpeed> &LineSpeeds()
{
    static const QList<LineSpeed> speeds{
        {u"14.4 k"_s, 14400},
        {u"28.8 k"_s, 28800},
        {u"36.6 k"_s, 36600},
        {u"128 k"_s, 128000},
        {u"256 k"_s, 256000},
        {u"512 k"_s, 512000},
        {u"44.7 m"_s, 4470000},
    };
    return speeds;
}

QString SourceFile(const QString &source, const QString &folder)
{
    for (const QStringView scheme : {QStringView(u"file://"), QStringView(u"http://")}) {
        if (source.startsWith(scheme, Qt::CaseInsensitive))
            return WithBlanks(source.mid(scheme.size()));
    }
    return WithBlanks(ResolveUpward(source, folder));
}

std::optional<EstimateResult> EstimateDownload(const EstimatedPage &page,
                                               const EstimateListener &listener)
{
    const auto report = [&listener](const QString &line) {
        if (listener.report)
            listener.report(line);
    };
    report(u"Finding files..."_s);
    report({});
    if (const std::optional<qint64> size = SizeOf(page.file, page.folder)) {
        report(u"%1 (%2)"_s.arg(FileNameOf(page.file), QString::number(*size)));
        if (listener.document)
            listener.document(*size);
    }
    EstimateResult result;
    Pulse pulse(listener.goOn);
    QuotedValues sources(page.text, u"src");
    while (const std::optional<QString> source = sources.Next()) {
        const QString file = SourceFile(*source, page.folder);
        if (const std::optional<qint64> size = SizeOf(file, page.folder)) {
            report(u" %1 (%2) "_s.arg(file, QString::number(*size)));
            ++result.dependencies;
            result.total += *size;
        }
        if (listener.progress)
            listener.progress(sources.Position(), result.dependencies, result.total);
        if (!pulse.LongStep())
            return std::nullopt;
    }
    report({});
    report(u"Dependencies: %1"_s.arg(result.dependencies));
    return result;
}

DownloadTime TimeFor(qint64 bytes, int divisor)
{
    const double seconds = double(bytes) / divisor;
    return qint64(seconds) < SecondsAMinute ? Cut(seconds, u" sec."_s)
                                            : Cut(seconds / SecondsAMinute, u" min."_s);
}

QString Kilobytes(qint64 size)
{
    return u"%1 kb"_s.arg(size / KilobyteSize);
}

} // namespace brenix
