#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace brenix {

/// The end tag of the nearest start tag before `caret` (counted from 0) whose element was not
/// closed: "<ul><li>one</li>" with the caret at its end gives "</ul>". Nothing when there is none,
/// and where the nearest tag has no ">".
///
/// Only the last end tag that was met is remembered, so that "<div><div>x</div>" gives nothing.
/// Names are compared with their case, and comments and scripts are read like anything else. Of the
/// elements without an end tag those in lower case are passed over, and with "<br" and "<col" all
/// that begin so; "<BR>" gives "</BR>". Costs time in proportion to the text.
std::optional<QString> EndTagAt(QStringView text, qsizetype caret);

} // namespace brenix
