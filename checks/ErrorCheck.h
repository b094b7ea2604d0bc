#pragma once

#include "checks/CheckReport.h"
#include "checks/Pulse.h"

#include <QString>
#include <QStringView>

namespace brenix {

/// The character pass over a page: brackets and quotation marks out of turn, misspelt tags, letters
/// that want an entity, end tags that must not be. The report begins with the page's caption and
/// ends with the total; in between each line ends in "(Char: 7)...", a position from 0. An empty
/// text gives a report without a finding. A page may have a report of more lines than it has
/// characters. When `goOn` says no, the report ends with what was found so far.
CheckReport ErrorCheck(QStringView text, const QString &caption, const GoOn &goOn = {});

} // namespace brenix
