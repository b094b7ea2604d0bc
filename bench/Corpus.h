#pragma once

#include <QByteArray>
#include <QString>

namespace bench {

constexpr qsizetype Kilobyte = 1000;
constexpr qsizetype Megabyte = 1000 * Kilobyte;

/// `size` bytes of real HTML with CR LF line ends: pages of the installed documentation, one after
/// the other, always in the same order. Above 5 MB they begin anew. Where too little documentation
/// is installed, a sample page over and over.
QByteArray Html(qsizetype size);
/// Where the pages come from, for the head of the table.
QString HtmlSource();

/// A page of `size` bytes around the same 10 kB, so that pages of all sizes look alike in the
/// window when their middle is shown.
QByteArray PageAroundMiddle(qsizetype size);

} // namespace bench
