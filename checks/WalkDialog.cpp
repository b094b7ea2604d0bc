#include "checks/WalkDialog.h"

#include <QCoreApplication>
#include <QListWidget>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace brenix {

void WalkDialog::done(int result)
{
    m_isClosed = true;
    FormDialog::done(result);
}

GoOn WalkDialog::LetEventsRun()
{
    return [self = QPointer(this)] {
        QCoreApplication::processEvents();
        return self && !self->m_isClosed;
    };
}

void WalkDialog::StartWhenShown(std::function<void()> work)
{
    m_work = std::move(work);
}

// The list takes the size of the last row for all. To measure each line would take longer than to
// find it; the one of the most characters is about the widest.
void WalkDialog::AddLines(QListWidget &list, const QStringList &lines)
{
    constexpr int slack = 16;
    const auto longest = std::ranges::max_element(lines, {}, &QString::size);
    if (longest == lines.end())
        return;
    const int needed = list.fontMetrics().horizontalAdvance(*longest);
    const QListWidgetItem *last = list.item(list.count() - 1);
    const int width = std::max(last ? last->sizeHint().width() : 0, needed + needed / slack);
    list.addItems(lines);
    const int row = list.count() - 1;
    list.item(row)->setSizeHint({width, list.sizeHintForRow(row)});
}

void WalkDialog::showEvent(QShowEvent *event)
{
    FormDialog::showEvent(event);
    m_isClosed = false;
    if (m_work)
        QTimer::singleShot(0, this, std::exchange(m_work, {}));
}

} // namespace brenix
