#pragma once

#include <QBoxLayout>
#include <QListWidget>

namespace brenix {

/// The list of a toolbox pane. Its rows are of one height, and never scroll sideways.
QListWidget *NewPaneList(const QString &objectName, const QString &accessibleName, QWidget *pane);

/// The column in which a pane of the toolbox lays out its controls.
QVBoxLayout *NewPaneLayout(QWidget *pane);

/// A tip that shows a text as it is: one that looks like markup would be taken for that, and
/// "<A></A>" be an empty tip.
QString PlainTip(const QString &text);

/// What a long loop of a pane does every now and then: everything goes on but keys and clicks, so
/// that the page and the lists stay as they are. Always true.
bool LetEventsRun();

/// Fills a list anew; the row of the same text stays the current one.
void SetRows(QListWidget &list, const QStringList &rows);

} // namespace brenix
