#pragma once

#include "support/TextSearch.h"
#include "tests/support/SourceTree.h"

#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>
#include <QString>
#include <QStringList>

/// What the models of the transforms are made of: their steps in the plainest form.

enum class Case { Counts, DoesNotCount };

/// Every place of `find`, from the left, replaced; what was put in is not searched.
inline QString Replaced(const QString &text,
                        const QString &find,
                        const QString &with,
                        Case letterCase = Case::Counts)
{
    const bool folds = letterCase == Case::DoesNotCount;
    const QString searched = folds ? brenix::LowerCased(text) : text;
    const QString sought = folds ? brenix::LowerCased(find) : find;
    QString result;
    qsizetype done = 0;
    for (qsizetype at = searched.indexOf(sought); at >= 0; at = searched.indexOf(sought, done)) {
        result += text.mid(done, at - done) + with;
        done = at + sought.size();
    }
    return result + text.mid(done);
}

/// As long as both are there, the first `open` with all up to the first `close` behind it becomes a
/// blank.
inline QString BlankedOut(QString text, const QString &open, const QString &close)
{
    while (true) {
        const QString searched = brenix::LowerCased(text);
        const qsizetype start = searched.indexOf(open);
        const qsizetype end = start < 0 ? -1 : searched.indexOf(close, start + open.size());
        if (end < 0)
            return text;
        text = text.left(start) + u' ' + text.mid(end + close.size());
    }
}

/// A text put together from up to `most` pieces; the same for the same seed.
inline QString RandomText(const QStringList &pieces, int most, quint32 seed)
{
    QRandomGenerator random(seed);
    QString text;
    for (int left = random.bounded(most + 1); left > 0; --left)
        text += pieces[random.bounded(int(pieces.size()))];
    return text;
}

/// The pages in the folder that BRENIX_PAGES names, and else the project's own.
inline QStringList RealPages()
{
    const QString docs = brenix::SourceFile("docs");
    QDirIterator files(qEnvironmentVariable("BRENIX_PAGES", docs),
                       {QStringLiteral("*.html")},
                       QDir::Files,
                       QDirIterator::Subdirectories);
    QStringList pages;
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly))
            pages += QString::fromUtf8(file.readAll())
                         .replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    }
    return pages;
}
