#include "tags/InsertMarkup.h"

#include "support/DesignView.h"
#include "support/DocumentModel.h"
#include "support/SettingsStore.h"
#include "support/SourceView.h"

namespace brenix {

namespace {

    // Every tag in the author's case, the text between them as it is.
    QString TagsInTagCase(const QString &text)
    {
        QString result;
        qsizetype done = 0;
        while (true) {
            const qsizetype open = text.indexOf(u'<', done);
            const qsizetype close = open < 0 ? -1 : text.indexOf(u'>', open);
            if (close < 0)
                return result.append(QStringView(text).sliced(done));
            result += QStringView(text).sliced(done, open - done);
            result += InTagCase(text.sliced(open, close + 1 - open));
            done = close + 1;
        }
    }

} // namespace

QString InTagCase(const QString &text)
{
    return IsSettingOn(u"Editor", u"TagCase", true) ? text.toLower() : text.toUpper();
}

void InsertMarkup(DocumentModel &page, const QString &text)
{
    const bool design = page.Status() == u"Design";
    if (!design && page.rtfText().IsReadOnlyPage())
        return;
    page.Modyfied = QStringLiteral("1");
    if (design) {
        if (DesignView *view = page.Design())
            view->PasteHTML(text);
        return;
    }
    page.KeyDone = true;
    InsertSourceMarkup(page.rtfText(), text);
}

void InsertSourceMarkup(SourceView &source, const QString &text)
{
    if (source.IsReadOnlyPage())
        return;
    source.AddUndo();
    const qsizetype firstEnd = text.indexOf(u'>');
    if (text.startsWith(u'&'))
        return source.SetSelText(text);
    if (firstEnd >= 0 && firstEnd == text.size() - 1)
        return source.SetSelText(InTagCase(text));

    const QString markup = TagsInTagCase(text);
    const QString selected = source.SelText();
    const int start = source.SelStart();
    source.SetSelText(markup);
    source.SetSelStart(start + int(markup.indexOf(u'>')) + 1);
    source.SetSelText(selected);
}

void InsertTag(SourceView &source, const QString &text)
{
    const int start = source.SelStart();
    source.SetSelText(text);
    const int behindTag = int(text.indexOf(u'>')) + 1;
    if (behindTag != text.size())
        source.SetSelStart(start + behindTag);
    source.SetFocus();
}

} // namespace brenix
