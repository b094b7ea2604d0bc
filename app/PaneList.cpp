#include "app/PaneList.h"

#include <QCoreApplication>
#include <QStyle>
#include <QTextDocument>

namespace brenix {

QListWidget *NewPaneList(const QString &objectName, const QString &accessibleName, QWidget *pane)
{
    auto *list = new QListWidget(pane);
    list->setObjectName(objectName);
    list->setAccessibleName(accessibleName);
    list->setUniformItemSizes(true);
    const int side = list->style()->pixelMetric(QStyle::PM_SmallIconSize);
    list->setIconSize({side, side});
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return list;
}

QVBoxLayout *NewPaneLayout(QWidget *pane)
{
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(6, 2, 6, 6);
    return layout;
}

QString PlainTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

bool LetEventsRun()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return true;
}

void SetRows(QListWidget &list, const QStringList &rows)
{
    const QString current = list.currentItem() ? list.currentItem()->text() : QString();
    list.clear();
    list.addItems(rows);
    const qsizetype row = rows.indexOf(current);
    if (row >= 0)
        list.setCurrentRow(int(row));
}

} // namespace brenix
