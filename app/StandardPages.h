#pragma once

#include <QDate>
#include <QString>

namespace brenix {

/// The pages that new documents begin with; lines end in CR LF. The carets are text positions (from
/// 0) on the empty line of the body. The date takes ten characters, which the carets count on.
QString HtmlPage(const QDate &date);
QString SimpleHtmlPage(const QDate &date);
QString XhtmlPage();

constexpr int HtmlPageCaret = 192;
constexpr int SimpleHtmlPageCaret = 83;
int XhtmlPageCaret();

} // namespace brenix
