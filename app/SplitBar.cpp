#include "app/SplitBar.h"

#include <QMouseEvent>
#include <QPainter>

namespace brenix {

SplitBar::SplitBar(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_orientation(orientation)
{
    setCursor(orientation == Qt::Horizontal ? Qt::SplitVCursor : Qt::SplitHCursor);
}

void SplitBar::mousePressEvent(QMouseEvent *event)
{
    m_grabbedAt
        = int(m_orientation == Qt::Horizontal ? event->position().y() : event->position().x());
    m_moved = false;
}

void SplitBar::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton) || !Dragged)
        return;
    m_moved = true;
    Dragged(PositionOf(*event), false);
}

void SplitBar::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_moved && Dragged)
        Dragged(PositionOf(*event), true);
}

void SplitBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setPen(palette().color(QPalette::Mid));
    if (m_orientation == Qt::Horizontal) {
        painter.drawLine(0, 0, width(), 0);
        painter.drawLine(0, height() - 1, width(), height() - 1);
    } else {
        painter.drawLine(0, 0, 0, height());
        painter.drawLine(width() - 1, 0, width() - 1, height());
    }
}

int SplitBar::PositionOf(const QMouseEvent &event) const
{
    const QPointF place = mapToParent(event.position());
    return int(m_orientation == Qt::Horizontal ? place.y() : place.x()) - m_grabbedAt;
}

} // namespace brenix
