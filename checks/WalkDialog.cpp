#include "checks/WalkDialog.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>

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

void WalkDialog::showEvent(QShowEvent *event)
{
    FormDialog::showEvent(event);
    m_isClosed = false;
    if (m_work)
        QTimer::singleShot(0, this, std::exchange(m_work, {}));
}

} // namespace brenix
