#include "help/HelpIndex.h"

#include "tags/Entities.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <optional>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    QString ReadUtf8(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    QString Between(const QString &html, const QString &start, const QString &end)
    {
        const qsizetype from = html.indexOf(start);
        const qsizetype to = from < 0 ? -1 : html.indexOf(end, from + start.size());
        return to < 0 ? QString() : html.sliced(from + start.size(), to - from - start.size());
    }

    QString PlainText(const QString &html)
    {
        static const QRegularExpression mark(u"<[^>]*>|&\\w+;"_s);
        QString text;
        qsizetype last = 0;
        for (const QRegularExpressionMatch &match : mark.globalMatch(html)) {
            text += QStringView(html).sliced(last, match.capturedStart() - last);
            // Tags part words, but for those within a line: "&lt;<b>table</b>&gt;".
            static const QRegularExpression inLine(u"^</?(a|b|i|code|kbd)\\b"_s);
            const QString found = match.captured();
            if (found.startsWith(u'&'))
                text += CharacterOfEntity(found);
            else if (!inLine.match(found).hasMatch())
                text += u' ';
            last = match.capturedEnd();
        }
        text += QStringView(html).sliced(last);
        return text.simplified();
    }

    HelpChapter Unlisted(const QList<HelpTopic> &topics, const QList<HelpChapter> &chapters)
    {
        QSet<QString> listed{HelpIndex::ContentsFile.toString()};
        for (const HelpChapter &chapter : chapters)
            listed.unite({chapter.files.begin(), chapter.files.end()});
        HelpChapter rest{u"Tags from A to Z"_s, {}};
        for (const HelpTopic &topic : topics) {
            if (!listed.contains(topic.file))
                rest.files.append(topic.file);
        }
        return rest;
    }

    struct Rank
    {
        int weight;
        qsizetype count;
    };

    bool HasKeyword(const HelpTopic &topic, const QString &word)
    {
        return topic.keywords.contains(word, Qt::CaseInsensitive);
    }

    // The words are in lower case.
    std::optional<Rank> RankOf(const HelpTopic &topic, const QStringList &words)
    {
        const QString title = topic.title.toLower();
        const QString whole = words.join(u' ');
        Rank rank{title == whole || HasKeyword(topic, whole) ? 10 : 0, 0};
        for (const QString &word : words) {
            const qsizetype count = topic.text.count(word);
            if (HasKeyword(topic, word))
                rank.weight += 4;
            else if (title.contains(word))
                rank.weight += 3;
            else if (count == 0)
                return std::nullopt;
            rank.count += count;
        }
        return rank;
    }

} // namespace

HelpTopic ParseTopic(const QString &file, const QString &html)
{
    HelpTopic topic{file, PlainText(Between(html, u"<title>"_s, u"</title>"_s)), {}, {}};
    const QString keywords = Between(html, u"<meta name=\"keywords\" content=\""_s, u"\">"_s);
    for (const QString &keyword : keywords.split(u',')) {
        if (!keyword.isEmpty())
            topic.keywords.append(PlainText(keyword));
    }
    topic.text = PlainText(Between(html, u"<body>"_s, u"</body>"_s)).toLower();
    return topic;
}

QList<HelpChapter> ParseChapters(const QString &html)
{
    static const QRegularExpression entry(u"<h2>(.*?)</h2>|<a href=\"([^\"#]+)\""_s);
    QList<HelpChapter> chapters;
    for (const QRegularExpressionMatch &match : entry.globalMatch(html)) {
        if (match.hasCaptured(1))
            chapters.append({PlainText(match.captured(1)), {}});
        else if (!chapters.isEmpty())
            chapters.last().files.append(match.captured(2));
    }
    return chapters;
}

HelpIndex::HelpIndex(const QString &folder)
    : m_folder(folder)
{
    const QDir root(folder);
    QDirIterator files(folder, {u"*.html"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        HelpTopic topic = ParseTopic(root.relativeFilePath(path), ReadUtf8(path));
        if (!topic.title.isEmpty())
            m_topics.append(std::move(topic));
    }
    // Topics of the folder itself before those below it.
    std::sort(m_topics.begin(), m_topics.end(), [](const HelpTopic &a, const HelpTopic &b) {
        return std::pair(a.file.contains(u'/'), a.file) < std::pair(b.file.contains(u'/'), b.file);
    });
    m_chapters = ParseChapters(ReadUtf8(root.filePath(ContentsFile.toString())));
    const HelpChapter rest = Unlisted(m_topics, m_chapters);
    if (!rest.files.isEmpty())
        m_chapters.append(rest);
}

const HelpTopic *HelpIndex::TopicOfFile(const QString &file) const
{
    for (const HelpTopic &topic : m_topics) {
        if (topic.file == file)
            return &topic;
    }
    return nullptr;
}

const HelpTopic *HelpIndex::TopicOfKeyword(const QString &keyword) const
{
    const QString wanted = keyword.trimmed();
    for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        for (const HelpTopic &topic : m_topics) {
            if (topic.keywords.contains(wanted, sensitivity))
                return &topic;
        }
    }
    return nullptr;
}

QList<const HelpTopic *> HelpIndex::Search(const QString &words) const
{
    const QStringList wanted = words.toLower().simplified().split(u' ', Qt::SkipEmptyParts);
    if (wanted.isEmpty())
        return {};
    struct Hit
    {
        const HelpTopic *topic;
        Rank rank;
    };
    QList<Hit> hits;
    for (const HelpTopic &topic : m_topics) {
        if (const std::optional<Rank> rank = RankOf(topic, wanted))
            hits.append({&topic, *rank});
    }
    std::stable_sort(hits.begin(), hits.end(), [](const Hit &a, const Hit &b) {
        return std::pair(a.rank.weight, a.rank.count) > std::pair(b.rank.weight, b.rank.count);
    });
    QList<const HelpTopic *> topics;
    for (const Hit &hit : hits)
        topics.append(hit.topic);
    return topics;
}

} // namespace brenix
