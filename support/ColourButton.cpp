#include "support/ColourButton.h"

#include "support/MessageBoxes.h"

#include <QPainter>

namespace brenix {

ColourButton::ColourButton(QWidget *parent)
    : QPushButton(parent)
{
    setMinimumWidth(64);
    connect(this, &QPushButton::clicked, this, [this] {
        if (const std::optional<quint32> chosen = ChooseColour(m_colour)) {
            SetColour(*chosen);
            emit ColourChanged();
        }
    });
}

void ColourButton::SetColour(quint32 colour)
{
    m_colour = colour;
    update();
}

void ColourButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    const QRect swatch = rect().adjusted(6, 5, -7, -6);
    painter.fillRect(
        swatch,
        QColor(int(m_colour & 0xFF), int(m_colour >> 8 & 0xFF), int(m_colour >> 16 & 0xFF)));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(swatch);
}

} // namespace brenix
