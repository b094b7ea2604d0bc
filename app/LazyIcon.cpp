#include "app/LazyIcon.h"

#include <QIconEngine>
#include <QPainter>

namespace brenix {

namespace {

    class LazyIconEngine : public QIconEngine
    {
    public:
        explicit LazyIconEngine(std::function<QIcon()> load)
            : m_load(std::move(load))
        {
        }
        void paint(QPainter *painter,
                   const QRect &rect,
                   QIcon::Mode mode,
                   QIcon::State state) override
        {
            Icon().paint(painter, rect, Qt::AlignCenter, mode, state);
        }
        QPixmap scaledPixmap(const QSize &size,
                             QIcon::Mode mode,
                             QIcon::State state,
                             qreal scale) override
        {
            return Icon().pixmap(size / scale, scale, mode, state);
        }
        QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
        {
            return scaledPixmap(size, mode, state, 1);
        }
        QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override { return size; }
        QIconEngine *clone() const override { return new LazyIconEngine(m_load); }

    private:
        const QIcon &Icon()
        {
            if (m_icon.isNull())
                m_icon = m_load();
            return m_icon;
        }

        std::function<QIcon()> m_load;
        QIcon m_icon;
    };

} // namespace

QIcon LazyIcon(std::function<QIcon()> load)
{
    return QIcon(new LazyIconEngine(std::move(load)));
}

} // namespace brenix
