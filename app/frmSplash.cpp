#include "app/frmSplash.h"

#include "support/Paths.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QVersionNumber>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int WorthAPicture = 150; // ms
    constexpr int CharactersWide = 44;

    /// Paths may be longer than the picture is wide: then their middle is left out.
    class StatusLine : public QLabel
    {
    public:
        using QLabel::QLabel;

    private:
        void paintEvent(QPaintEvent *) override
        {
            const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
            QPainter(this).drawText(rect(), int(alignment()), shown);
        }
    };

    int VersionPart(int index)
    {
        return QVersionNumber::fromString(QCoreApplication::applicationVersion()).segmentAt(index);
    }

} // namespace

int VersionMajor()
{
    return VersionPart(0);
}

int VersionMinor()
{
    return VersionPart(1);
}

int VersionBuild()
{
    return VersionPart(2);
}

frmSplash::frmSplash()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(u"frmSplash"_s);
    m_sinceStart.start();
}

void frmSplash::Build()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 24, 32, 20);
    auto *picture = new QLabel(this);
    picture->setPixmap(QPixmap(AppPath(u"brenix.png")));
    auto *name = new QLabel(u"Brenix"_s, this);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 2);
    large.setBold(true);
    name->setFont(large);
    auto *version = new QLabel(
        u"Version %1.%2  built %3"_s.arg(VersionMajor()).arg(VersionMinor()).arg(VersionBuild()),
        this);
    m_status = new StatusLine(this);
    for (QLabel *label : {picture, name, version, m_status}) {
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    m_status->setObjectName(u"Label1"_s);
    m_status->setFixedWidth(fontMetrics().averageCharWidth() * CharactersWide);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmSplash::showEvent(QShowEvent *event)
{
    if (!m_status)
        Build();
    QWidget::showEvent(event);
}

void frmSplash::Say(const QString &text)
{
    if (!isVisible() && m_sinceStart.hasExpired(WorthAPicture))
        show();
    setAccessibleDescription(text);
    if (!m_status)
        return;
    m_status->setText(text);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace brenix
