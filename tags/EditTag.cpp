#include "tags/EditTag.h"

#include "support/SourceView.h"
#include "tags/Quoted.h"
#include "tags/TovikHTMLParser.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct Route
    {
        QStringView start;
        EditTagTarget target;
    };
    // The first that fits counts.
    constexpr Route Routes[] = {
        {u"<!", EditTagTarget::CommentMessage},
        {u"<comment", EditTagTarget::CommentMessage},
        {u"</", EditTagTarget::EndTagMessage},
        {u"<meta", EditTagTarget::Meta},
        {u"<script", EditTagTarget::Script},
        {u"<a", EditTagTarget::Hyperlink},
        {u"<img", EditTagTarget::Image},
        {u"<title", EditTagTarget::Title},
        {u"<html", EditTagTarget::Html},
        {u"<body", EditTagTarget::Body},
        {u"<", EditTagTarget::General},
    };

    bool HasName(QStringView tag)
    {
        return tag.contains(u" name=", Qt::CaseInsensitive)
            || tag.contains(u" name =", Qt::CaseInsensitive);
    }

} // namespace

EditTagTarget EditTagTargetOf(QStringView selectedText)
{
    for (const Route &route : Routes) {
        if (!selectedText.startsWith(route.start, Qt::CaseInsensitive))
            continue;
        const bool isAnchor = route.target == EditTagTarget::Hyperlink && HasName(selectedText);
        return isAnchor ? EditTagTarget::General : route.target;
    }
    return EditTagTarget::Nothing;
}

void SelectTitleText(SourceView &source)
{
    const int start = source.SelStart() + source.SelLength();
    const int end = source.Search(u"</title>"_s, start) ? source.SelStart() : start;
    source.SetSelStart(start);
    source.SetSelLength(end - start);
}

EditedTag ReadTag(QString tag)
{
    EditedTag read;
    TovikHTMLParser parser;
    parser.HTMLTagBegin = [&read](const QString &name) { read.name = name.toUpper(); };
    parser.HTMLProperty = [&read](const QString &name, const QString &value) {
        read.attributes.append({name, value});
    };
    parser.ParseHTML(tag);
    return read;
}

bool IsCommentTag(QStringView upperName)
{
    return upperName == u"!" || upperName == u"COMMENT";
}

bool IsEditable(QStringView selectedText)
{
    return !selectedText.isEmpty() && !selectedText.sliced(1).startsWith(u'/');
}

QString TagText(const EditedTag &tag)
{
    QString text = u'<' + tag.name.toLower();
    for (const EditedTag::Attribute &attribute : tag.attributes) {
        text += u' ' + attribute.name;
        if (!attribute.value.isEmpty())
            text += u'=' + Quoted(attribute.value);
    }
    return text + u'>';
}

void ReplaceTag(SourceView &source, const QString &text)
{
    source.AddUndo();
    source.SetSelText(text);
}

} // namespace brenix
