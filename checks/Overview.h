#pragma once

#include "support/BrowserView.h"

#include <QList>
#include <QString>

namespace brenix {

/// A node of the tree that "Page Overview" shows.
struct OverviewNode
{
    QString key; ///< "E" and the number of the element, by which a click finds it again
    QString caption; ///< the tag's name
    int parent = -1; ///< the node above it, from 0; -1 for the root
};

/// The tree of a page out of its elements in document order, a node's parent always before it. The
/// root is the first element "HTML"; what does not stand under it is left out, so that there is
/// nothing without one.
QList<OverviewNode> OverviewTree(const QList<PageElement> &elements);

/// What the status bar says of the element that a key means: its tag in lower case, "<td>"; of one
/// that has no tag name its text in lower case without the line ends. Empty for a key that means
/// nothing.
QString ElementStatus(const QList<PageElement> &elements, const QString &key);

} // namespace brenix
