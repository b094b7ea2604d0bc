#include "help/TagTopics.h"

#include "tags/AttributeCatalogue.h"
#include "tags/TagCatalogue.h"
#include "tags/TagNameList.h"
#include "tags/ValueCatalogue.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr qsizetype MostValues = 30; // of a longer list the first ones are named

    const QString EveryElementFile = u"attributes.html"_s;
    QString Page(const QString &title, const QStringList &keywords, const QString &body)
    {
        return u"<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n"
               "<meta name=\"keywords\" content=\"%2\">\n</head>\n<body>\n<h1>%1</h1>\n"
               "%3</body>\n</html>\n"_s.arg(title, keywords.join(u','), body);
    }

    // "table.html" for TABLE. Of what is no letter or digit a file name should have nothing.
    QString FileOf(const QString &tag)
    {
        QString name;
        for (const QChar letter : tag.toLower()) {
            if (letter.isLetterOrNumber())
                name += letter;
        }
        return (name.isEmpty() ? u"remark"_s : name) + u".html"_s;
    }

    QString Written(const QString &tag)
    {
        if (tag == u"!--")
            return u"&lt;!-- --&gt;"_s;
        return u"&lt;"_s + (tag.startsWith(u'!') ? tag : tag.toLower()) + u"&gt;"_s;
    }

    QString LinkTo(const QString &tag)
    {
        return u"<a href=\"%1\">%2</a>"_s.arg(FileOf(tag), Written(tag));
    }

    QString AnchorOf(const QString &dialect)
    {
        return QString(dialect).remove(u' ').remove(u'.').toLower();
    }

    QStringList AllTags()
    {
        QStringList tags = InsertTagNames();
        for (const QString &dialect : DialectNames())
            tags += TagNames(dialect);
        tags.sort();
        tags.removeDuplicates();
        return tags;
    }

    bool IsPairIn(const QString &dialect, const QString &tag)
    {
        const QStringList &rows = TagsOfDialect(dialect);
        return std::any_of(rows.begin(), rows.end(), [&tag](const QString &row) {
            return row.startsWith(u'<' + tag + u'>') && row.contains(u"</");
        });
    }

    // HTML 5 decides where it knows the tag; the lists of old browsers contradict one another.
    bool HasEndTag(const QString &tag)
    {
        if (TagNames(Html5Title).contains(tag))
            return IsPairIn(Html5Title.toString(), tag);
        const QStringList dialects = DialectNames();
        return std::any_of(dialects.begin(), dialects.end(), [&tag](const QString &dialect) {
            return IsPairIn(dialect, tag);
        });
    }

    QString Values(const QString &attribute, QStringView dialect)
    {
        if (!attribute.endsWith(u'='))
            return u"<i>no value</i>"_s;
        const QString name = attribute.chopped(1);
        if (name == u"face")
            return u"<i>a font</i>"_s;
        QStringList values = ValuesOfAttribute(name, {}, dialect);
        values.removeDuplicates();
        const qsizetype more = values.size() - MostValues;
        if (more > 0)
            values.resize(MostValues);
        for (QString &value : values) {
            if (value == ColourChoice)
                value = u"<i>a color</i>"_s;
            else if (value == FileChoice)
                value = u"<i>a file</i>"_s;
            else
                value = value.toHtmlEscaped();
        }
        return values.join(u", "_s) + (more > 0 ? u" <i>and %1 more</i>"_s.arg(more) : QString());
    }

    QString AttributeTable(QStringList attributes, QStringView dialect)
    {
        attributes.removeDuplicates();
        QString rows;
        for (const QString &attribute : attributes) {
            const QString name = attribute.endsWith(u'=') ? attribute.chopped(1) : attribute;
            rows += u"<tr><td><code>%1</code></td><td>%2</td></tr>\n"_s.arg(
                name, Values(attribute, dialect));
        }
        return u"<table>\n<tr><th>Attribute</th><th>Values offered</th></tr>\n"_s + rows
            + u"</table>\n"_s;
    }

    // What all elements have ends the list of each; WBR has nothing else.
    const QStringList &EveryElementsAttributes()
    {
        static const QStringList attributes = AttributesOfTag(u"WBR", Html5Title);
        return attributes;
    }

    QString AttributesOf(const QString &tag)
    {
        QString text;
        QStringList own = AttributesOfTag(tag, Html5Title);
        if (!own.isEmpty()) {
            own.resize(own.size() - EveryElementsAttributes().size());
            text += u"<h2>Attributes in HTML 5</h2>\n"_s
                + (own.isEmpty() ? QString() : AttributeTable(own, Html5Title))
                + u"<p>%1 <a href=\"%2\">attributes of every element</a>.</p>\n"_s.arg(
                    own.isEmpty() ? u"The"_s : u"And the"_s, EveryElementFile);
        }
        const QStringList old = AttributesOfTag(tag);
        if (!old.isEmpty())
            text += u"<h2>Attributes in the other versions</h2>\n"_s + AttributeTable(old, {});
        if (!text.isEmpty())
            text += u"<p>The values are those that Brenix offers for an attribute of that name, "
                    "whatever the tag.</p>\n"_s;
        return text;
    }

    QString KnownIn(const QString &tag)
    {
        QStringList links;
        for (const QString &dialect : DialectNames()) {
            if (TagNames(dialect).contains(tag))
                links += u"<a href=\"index.html#%1\">%2</a>"_s.arg(AnchorOf(dialect), dialect);
        }
        return links.isEmpty() ? QString()
                               : u"<h2>Known in</h2>\n<p>%1</p>\n"_s.arg(links.join(u", "_s));
    }

    QString Pairing(const QString &tag)
    {
        if (tag.startsWith(u'!'))
            return {};
        const QString name = tag.toLower();
        if (!HasEndTag(tag))
            return u"<p>Stands alone: <code>&lt;%1&gt;</code>, without an end tag.</p>\n"_s.arg(
                name);
        return u"<p>A pair: <code>&lt;%1&gt;</code> ... <code>&lt;/%1&gt;</code></p>\n"_s.arg(name);
    }

    HelpPage TopicOf(const QString &tag, const TagMeaning &meaning)
    {
        QString body = u"<p>%1</p>\n"_s.arg(meaning.meaning.toHtmlEscaped()) + Pairing(tag);
        if (!TagNames(Html5Title).contains(tag))
            body += u"<p>Not part of HTML 5.</p>\n"_s;
        body += AttributesOf(tag) + KnownIn(tag) + u"<h2>See also</h2>\n<p>"_s;
        if (!meaning.related.isEmpty())
            body += u"<a href=\"../%1\">In Brenix</a>, "_s.arg(meaning.related);
        body += u"<a href=\"index.html\">HTML reference</a>, "
                "<a href=\"all.html\">all tags with their meanings</a></p>\n"_s;
        QStringList keywords{tag.toLower()};
        if (tag == u"!DOCTYPE")
            keywords += u"doctype"_s;
        return {FileOf(tag), Page(Written(tag), keywords, body)};
    }

    HelpPage Reference()
    {
        QString body = u"<p>All tags that Brenix knows, by the version of HTML or the browser that "
                       "they belong to. There is also a list of <a href=\"all.html\">all tags with "
                       "their meanings</a>. With the caret in a tag of your page, F1 shows the "
                       "topic of that tag.</p>\n<p>"_s;
        QStringList jumps;
        for (const QString &dialect : DialectNames())
            jumps += u"<a href=\"#%1\">%2</a>"_s.arg(AnchorOf(dialect), dialect);
        body += jumps.join(u" \u00B7 "_s) + u"</p>\n"_s;
        for (const QString &dialect : DialectNames()) {
            QStringList links;
            for (const QString &tag : TagNames(dialect))
                links += LinkTo(tag);
            body += u"<h2><a name=\"%1\"></a>%2</h2>\n<p>%3</p>\n"_s.arg(
                AnchorOf(dialect), dialect, links.join(u" &nbsp;"_s));
        }
        return {u"index.html"_s,
                Page(u"HTML reference"_s, {u"html reference"_s, u"tags"_s, u"dialects"_s}, body)};
    }

    HelpPage AllMeanings(const QHash<QString, TagMeaning> &meanings)
    {
        QString body = u"<p>See also the <a href=\"index.html\">reference by version</a>.</p>\n"
                       "<table>\n"_s;
        for (const QString &tag : AllTags())
            body += u"<tr><td>%1</td><td>%2</td></tr>\n"_s.arg(
                LinkTo(tag), meanings.value(tag).meaning.toHtmlEscaped());
        return {u"all.html"_s,
                Page(u"All tags with their meanings"_s, {u"all tags"_s}, body + u"</table>\n"_s)};
    }

    HelpPage CommonAttributes()
    {
        return {EveryElementFile,
                Page(u"Attributes of every element"_s,
                     {u"attributes"_s, u"global attributes"_s},
                     u"<p>In HTML 5 every element may have these. Those that begin with "
                     "<code>on</code> hold a script that runs at an event; those that begin with "
                     "<code>aria-</code> tell programs that read the page aloud what an element "
                     "is. <code>data-</code> begins the name of an attribute of your own.</p>\n"_s
                         + AttributeTable(EveryElementsAttributes(), Html5Title))};
    }

} // namespace

QList<TagMeaning> ParseMeanings(const QString &table)
{
    QList<TagMeaning> meanings;
    for (const QString &line : table.split(u'\n')) {
        const QString row = line.trimmed();
        if (row.isEmpty() || row.startsWith(u'#'))
            continue;
        meanings.append({row.section(u'|', 0, 0), row.section(u'|', 1, 1), row.section(u'|', 2)});
    }
    return meanings;
}

TagTopics MakeTagTopics(const QList<TagMeaning> &meanings)
{
    TagTopics topics;
    QHash<QString, TagMeaning> byName;
    for (const TagMeaning &meaning : meanings)
        byName.insert(meaning.name, meaning);
    const QStringList tags = AllTags();
    for (const QString &tag : tags) {
        const TagMeaning meaning = byName.value(tag);
        if (meaning.meaning.isEmpty())
            topics.errors += tag + u": no meaning"_s;
        topics.pages += TopicOf(tag, meaning);
    }
    for (const TagMeaning &meaning : meanings) {
        if (!tags.contains(meaning.name))
            topics.errors += meaning.name + u": no such tag"_s;
    }
    topics.pages += {Reference(), AllMeanings(byName), CommonAttributes()};
    return topics;
}

} // namespace brenix
