#pragma once

#include "checks/Pulse.h"

#include <QString>
#include <QStringView>

namespace brenix {

/// The text without its tags: each "<...>" gives a blank, wherever it stands, so that words on
/// either side stay apart. "&nbsp;" becomes a blank and "&aring;" an "å", in any case; no other
/// entity changes. A "<" without a ">" behind it, and a ">" without a "<" before it, are text. When
/// it is stopped, the text as it was.
QString StripTags(const QString &text, const GoOn &goOn = {});

/// `text` with a blank for each piece from `open` to the first `close` behind it, both without
/// regard to case; an `open` without a `close` stays. False, and the text in no particular state,
/// when it is stopped.
bool BlankOut(QString &text, QStringView open, QStringView close, Pulse &pulse);

} // namespace brenix
