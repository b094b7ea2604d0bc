#include "editor/Gutter.h"

#include "editor/CodeHighlight.h"

#include <QPaintEvent>
#include <QPainter>
#include <QTextBlock>

namespace brenix {

namespace {
    constexpr int Numbers = 50;
    constexpr int LineX = 28; // 420 twips
    constexpr int Gap = 4;
} // namespace

Gutter::Gutter(CodeHighlight &editor)
    : QWidget(&editor)
    , m_editor(editor)
{
    setObjectName(QStringLiteral("Label1"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QStringLiteral("Line numbers"));
}

int Gutter::WidthFor(int lineCount) const
{
    const QString widest = QString::number(lineCount + Numbers);
    return std::max(LineX, fontMetrics().horizontalAdvance(widest) + 2 * Gap) + Gap;
}

QString Gutter::Label() const
{
    QString numbers;
    for (int i = 1; i <= Numbers; ++i)
        numbers += QString::number(i + m_editor.TopLineIndex()) + u'\n';
    return numbers;
}

void Gutter::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().window());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(width() - Gap, 0, width() - Gap, height());
    QColor ink = palette().color(QPalette::WindowText);
    ink.setAlphaF(0.6F);
    painter.setPen(ink);
    painter.setFont(m_editor.font());

    // Numbers stand beside the first piece of their line; behind the last line they go on at the
    // font's height.
    QTextBlock block = m_editor.firstVisibleBlock();
    qreal top = m_editor.contentOffset().y();
    const int lineHeight = QFontMetrics(m_editor.font()).lineSpacing();
    const auto drawNumber = [&](int number, qreal y) {
        const QRectF place(0, y, width() - 2 * Gap, lineHeight);
        if (place.intersects(event->rect()))
            painter.drawText(place, Qt::AlignRight | Qt::AlignTop, QString::number(number));
    };
    int number = m_editor.TopLineIndex() + 1;
    const int last = number + Numbers;
    for (bool lineStart = true; number < last && top <= event->rect().bottom();) {
        if (lineStart)
            drawNumber(number++, top);
        lineStart = !block.isValid() || !m_editor.m_mirror->EndsInSoftBreak(block);
        top += block.isValid() ? m_editor.blockBoundingRect(block).height() : lineHeight;
        // The last block's height holds the margin below the text.
        if (block.isValid() && !block.next().isValid())
            top -= m_editor.document()->documentMargin();
        block = block.next();
    }
}

} // namespace brenix
