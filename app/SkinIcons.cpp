#include "app/SkinIcons.h"

#include "support/Paths.h"
#include "support/SettingsStore.h"

#include <QIconEngine>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // Reads its file when it is first drawn: looking into a dozen files at once would hold up the
    // window.
    class FileIconEngine : public QIconEngine
    {
    public:
        explicit FileIconEngine(const QString &path)
            : m_path(path)
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
        QIconEngine *clone() const override { return new FileIconEngine(m_path); }

    private:
        const QIcon &Icon()
        {
            if (m_icon.isNull())
                m_icon = QIcon(m_path);
            return m_icon;
        }

        QString m_path;
        QIcon m_icon;
    };

    QIcon FileIcon(const QString &path)
    {
        return QIcon(new FileIconEngine(path));
    }

} // namespace

QIcon SkinIcon(QStringView name)
{
    const QString skin = GetSetting(u"Settings", u"Skin", u"Default"_s);
    return FileIcon(AppPath(u"Skins/%1/%2.ico"_s.arg(skin, name)));
}

QIcon ProgramIcon(QStringView name)
{
    return FileIcon(AppPath(u"Icons/%1.ico"_s.arg(name)));
}

} // namespace brenix
