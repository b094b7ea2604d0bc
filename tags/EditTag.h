#pragma once

#include <QList>
#include <QString>
#include <QStringView>

namespace brenix {

class SourceView;

/// What the Edit Tag command does with a tag.
enum class EditTagTarget {
    Nothing,
    CommentMessage, ///< "Cannot edit comment tag"
    EndTagMessage, ///< "Cannot edit end tag"
    Meta,
    Script,
    Hyperlink,
    Image,
    Title,
    Html,
    Body,
    General, ///< `frmEditTag`
};

/// Goes by the first letters of the selected text, in any case: "<address>" is a hyperlink, since
/// it begins with "<a". An anchor, that is an "<a" that has " name=" or " name =" somewhere, is
/// general. A text that is no tag is nothing.
EditTagTarget EditTagTargetOf(QStringView selectedText);

/// With a title's start tag selected: selects what stands between it and the next "</title>", in
/// any case. Without one, the caret goes behind the tag.
void SelectTitleText(SourceView &source);

/// A tag as `frmEditTag` shows it.
struct EditedTag
{
    struct Attribute
    {
        QString name;
        QString value; ///< empty: an attribute without a value
    };

    QString name; ///< in upper case
    QList<Attribute> attributes; ///< the rows, in order
};

/// The tag's double-quoted attributes; all others are lost (see TovikHTMLParser). A text without a
/// tag gives an empty name.
EditedTag ReadTag(QString tag);

/// True for a name, in upper case, that `frmEditTag` refuses with "Cannot edit comment tags".
bool IsCommentTag(QStringView upperName);

/// False for a selected text that `frmEditTag` must not stay open over: none, or an end tag.
bool IsEditable(QStringView selectedText);

/// The tag with its name in lower case, whatever the user's tag case is; the attributes' names stay
/// as they are. "TD" with "width" "5" and "nowrap" "" gives `<td width="5" nowrap>`.
QString TagText(const EditedTag &tag);

/// What OK does in a dialog that edits a tag: the text goes over the selected one as it is, after a
/// snapshot.
void ReplaceTag(SourceView &source, const QString &text);

} // namespace brenix
