#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace brenix {

/// A topic of the help: one HTML file.
struct HelpTopic
{
    QString file; ///< below the folder of the help, with "/"
    QString title;
    QStringList keywords; ///< as they stand in the topic
    QString text; ///< what is read in it, blanks simplified and in lower case
};

/// What the page of contents lists under one heading.
struct HelpChapter
{
    QString title;
    QStringList files;
};

/// The topic that a page in HTML is: its title, the keywords of its meta tag, separated by commas,
/// and its text without tags and with its entities resolved. What is missing is empty.
HelpTopic ParseTopic(const QString &file, const QString &html);

/// The headings of second degree of a page of contents, and the links below each.
QList<HelpChapter> ParseChapters(const QString &html);

/// All topics of a folder, to be found by file, by keyword and by the words of their text.
class HelpIndex
{
public:
    /// The page that lists the others.
    static constexpr QStringView ContentsFile = u"contents.html";

    /// Reads the topics of the folder and of those below it, in the order of their names; a file
    /// that cannot be read or has no title is left out. No topics without such a folder.
    explicit HelpIndex(const QString &folder);

    const QString &Folder() const { return m_folder; }
    const QList<HelpTopic> &Topics() const { return m_topics; }
    /// What the page of contents lists, and then the topics that it does not.
    const QList<HelpChapter> &Chapters() const { return m_chapters; }

    /// Null when there is no such topic. Of keywords that differ in case the one that is written as
    /// asked for goes first: "BODY" is a dialog, "body" a tag, and "Body" finds one of them.
    const HelpTopic *TopicOfFile(const QString &file) const;
    const HelpTopic *TopicOfKeyword(const QString &keyword) const;
    /// The topics in which every word stands, in any case and also as a part of a longer word: the
    /// one whose title or keyword is just that first, then those that have the words in title and
    /// keywords, then those that have them in the text most often. None for no words.
    QList<const HelpTopic *> Search(const QString &words) const;

private:
    QString m_folder;
    QList<HelpTopic> m_topics;
    QList<HelpChapter> m_chapters;
};

} // namespace brenix
