#include "bench/Corpus.h"

#include <QDirIterator>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace bench {

namespace {

    constexpr qsizetype CorpusSize = 5 * Megabyte;
    constexpr qsizetype MiddleSize = 10 * Kilobyte;
    constexpr qsizetype MiddlePlace = 3 * Megabyte;

    struct Corpus
    {
        QByteArray bytes;
        QString source;
    };

    QByteArray WithCrLf(QByteArray bytes)
    {
        return bytes.replace("\r\n", "\n").replace("\n", "\r\n");
    }

    QByteArray ContentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? WithCrLf(file.readAll()) : QByteArray();
    }

    QStringList PagesUnder(const QString &folder)
    {
        QStringList pages;
        QDirIterator files(folder, {u"*.html"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            pages.append(files.next());
        pages.sort();
        return pages;
    }

    // The packages that the project names come first, so that machines that have them agree.
    Corpus Gather()
    {
        Corpus corpus;
        int count = 0;
        for (const QString &folder :
             {u"/usr/share/doc/bash-doc"_s, u"/usr/share/doc/sqlite3"_s, u"/usr/share/doc"_s}) {
            for (const QString &page : PagesUnder(folder)) {
                if (corpus.bytes.size() >= CorpusSize)
                    break;
                corpus.bytes += ContentOf(page);
                ++count;
            }
        }
        corpus.source = u"%1 pages of /usr/share/doc"_s.arg(count);
        if (corpus.bytes.size() < CorpusSize) {
            const QByteArray sample = ContentOf(QStringLiteral(BRENIX_SAMPLE));
            corpus.bytes = sample.repeated(CorpusSize / std::max(sample.size(), qsizetype(1)) + 1);
            corpus.source = u"docs/sample.html, repeated (too few pages are under /usr/share/doc: "
                            u"install bash-doc and sqlite3-doc)"_s;
        }
        corpus.bytes.truncate(CorpusSize);
        return corpus;
    }

    const Corpus &TheCorpus()
    {
        static const Corpus corpus = Gather();
        return corpus;
    }

    // The bytes from `from` on, begun at the next line.
    QByteArray Lines(qsizetype from, qsizetype size)
    {
        const QByteArray &bytes = TheCorpus().bytes;
        return bytes.mid(bytes.indexOf('\n', from) + 1, size);
    }

} // namespace

QByteArray Html(qsizetype size)
{
    const QByteArray &bytes = TheCorpus().bytes;
    return size <= bytes.size() ? bytes.left(size)
                                : bytes.repeated(size / bytes.size() + 1).left(size);
}

QString HtmlSource()
{
    return TheCorpus().source;
}

QByteArray PageAroundMiddle(qsizetype size)
{
    const qsizetype side = (size - MiddleSize) / 2;
    const QByteArray lineEnd("\r\n");
    return Html(side) + lineEnd + Lines(MiddlePlace, MiddleSize) + lineEnd + Html(side);
}

} // namespace bench
