#include "insert/BodyBackground.h"

#include "support/SourceView.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // A tag up to its ">", which may stand inside quotes; comments are passed over as a whole.
    const QString BodyTag = u"<!--.*?-->|(<body(?:\\s(?:\"[^\"]*\"|'[^']*'|[^>\"'])*)?>)"_s;
    // An attribute name stands behind a blank; its value may be quoted in either way, or not.
    const QString Background = u"\\sbackground\\s*=\\s*(\"[^\"]*\"|'[^']*'|[^\\s>]*)"_s;

    void Replace(SourceView &source, int start, int length, const QString &text)
    {
        source.SetSelStart(start);
        source.SetSelLength(length);
        source.SetSelText(text);
    }

    // The start tag of the body: where it is, and its text.
    QRegularExpressionMatch FindBody(const QString &text)
    {
        const QRegularExpression pattern(BodyTag,
                                         QRegularExpression::CaseInsensitiveOption
                                             | QRegularExpression::DotMatchesEverythingOption);
        QRegularExpressionMatchIterator matches = pattern.globalMatch(text);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            if (match.capturedStart(1) >= 0)
                return match;
        }
        return {};
    }

} // namespace

void SetBodyBackground(SourceView &source, const QString &address)
{
    const QString value = u'"' + address + u'"';
    source.AddUndo();
    const QRegularExpressionMatch body = FindBody(source.Text());
    if (!body.hasMatch()) {
        source.SetSelText(u"background="_s + value);
        return;
    }
    const int start = int(body.capturedStart(1));
    const QRegularExpression attribute(Background, QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch old = attribute.match(body.captured(1));
    if (old.hasMatch())
        Replace(source, start + int(old.capturedStart(1)), int(old.capturedLength(1)), value);
    else
        Replace(source, int(body.capturedEnd(1)) - 1, 0, u" background="_s + value);
    source.AddUndo();
}

} // namespace brenix
