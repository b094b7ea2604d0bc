#pragma once

#include "checks/Pulse.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace brenix {

/// The page whose download is estimated.
struct EstimatedPage
{
    QString text;
    QString file; ///< its file on the disk; empty when it has none
    QString folder; ///< where the files that it names start from, without a separator at its end
};

/// What is told while the page is gone through. Any of the functions may be missing.
struct EstimateListener
{
    std::function<void(const QString &line)> report;
    /// The page's own size, where it has a file.
    std::function<void(qint64 size)> document;
    /// How far the work is in the text, from 0, and what was found up to there.
    std::function<void(qsizetype position, int count, qint64 total)> progress;
    GoOn goOn;
};

struct EstimateResult
{
    int dependencies = 0;
    qint64 total = 0; ///< bytes of the dependencies, not of the page itself
};

/// Lists the files that the page names in "src", each as often as it is named, with their sizes. A
/// file that cannot be read is neither listed nor counted. Nothing when it was stopped.
std::optional<EstimateResult> EstimateDownload(const EstimatedPage &page,
                                               const EstimateListener &listener);

/// The file that a "src" means: what stands behind "file://" or "http://"; else a path in `folder`
/// or, for each "../" in front, one folder above. Each "%20" becomes a blank.
QString SourceFile(const QString &source, const QString &folder);

/// A line speed: its name, and by what bytes are divided for seconds.
struct LineSpeed
{
    QString name;
    int divisor;
};
/// The speeds to choose from, the first being the one in front.
const QList<LineSpeed> &LineSpeeds();
/// The two that always stand beside them.
extern const LineSpeed ModemSpeed; ///< "56 k"
extern const LineSpeed IsdnSpeed; ///< "ISDN"

/// 863999 bytes by 14400 are "59 sec." and, unrounded, "59.9999305555556 sec."; from a minute on
/// minutes are told, cut as well.
struct DownloadTime
{
    QString text;
    QString unrounded;
};
DownloadTime TimeFor(qint64 bytes, int divisor);

/// The size in whole kilobytes of 1024 bytes, cut: "2 kb".
QString Kilobytes(qint64 size);

} // namespace brenix
