#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace brenix {

/// The 111 tag names that `frmTag` and the Tag Designer offer, in upper case and in their order.
const QStringList &InsertTagNames();

/// The place from 0 of the first of these names that begins with `start`, in any case; -1 when none
/// does. An empty start finds the first.
int FindTagName(QStringView start);

/// What `frmTag` inserts: "B" gives "<B>", or "<B></B>" with the end tag.
QString InsertTagMarkup(const QString &name, bool withEndTag);

} // namespace brenix
