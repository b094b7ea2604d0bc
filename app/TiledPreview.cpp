#include "app/TiledPreview.h"

#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int Darkest = 128; // of the grey at which black text is still read

    bool IsDark(const QPixmap &picture)
    {
        QImage page(picture.size(), QImage::Format_RGB32);
        if (page.isNull())
            return false;
        page.fill(Qt::white);
        QPainter(&page).drawPixmap(0, 0, picture);
        const QImage average = page.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return qGray(average.pixel(0, 0)) < Darkest;
    }

} // namespace

TiledPreview::TiledPreview(QWidget *parent)
    : QWidget(parent)
{
    setMinimumSize(sizeHint());
}

void TiledPreview::SetPicture(const QPixmap &picture)
{
    m_picture = picture;
    m_isDark = IsDark(picture);
    update();
}

QSize TiledPreview::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.averageCharWidth() * 44, metrics.lineSpacing() * 16};
}

void TiledPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (!m_picture.isNull())
        painter.drawTiledPixmap(rect(), m_picture);
    painter.setPen(m_isDark ? Qt::white : Qt::black);
    const int margin = fontMetrics().lineSpacing();
    QRect page = rect().adjusted(margin, margin, -margin, -margin);
    QFont heading = font();
    heading.setPointSizeF(heading.pointSizeF() * 1.6);
    heading.setBold(true);
    painter.setFont(heading);
    painter.drawText(page, Qt::AlignTop, u"A heading"_s);
    page.setTop(page.top() + QFontMetrics(heading).lineSpacing() + margin / 2);
    painter.setFont(font());
    painter.drawText(
        page,
        Qt::AlignTop | Qt::TextWordWrap,
        u"A background should stay behind the words: if you have to look twice at this "
        "line, your readers will not look once."_s);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace brenix
