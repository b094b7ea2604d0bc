#include "app/TypingPreview.h"

#include <QFontDatabase>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {
    constexpr int KeyTime = 400; // ms
    constexpr QStringView Typed = u"<HTML>";
} // namespace

TypingPreview::TypingPreview(QWidget *parent)
    : QLabel(parent)
{
    MakeSample(this);
    m_timer.setObjectName(u"Timer3"_s);
    m_timer.setParent(this);
    m_timer.setInterval(KeyTime);
    connect(&m_timer, &QTimer::timeout, this, &TypingPreview::Tick);
}

void TypingPreview::SetInsertsEndTag(bool inserts)
{
    m_insertsEndTag = inserts;
}

void TypingPreview::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    m_state = 0;
    Tick();
    m_timer.start();
}

void TypingPreview::hideEvent(QHideEvent *event)
{
    QLabel::hideEvent(event);
    m_timer.stop();
}

void TypingPreview::Tick()
{
    const int last = int(Typed.size()) + (m_insertsEndTag ? 1 : 0);
    if (m_state > last)
        m_state = 0;
    setText(Typed.left(m_state).toString() + u'_'
            + (m_state > Typed.size() ? u"</HTML>"_s : QString()));
    ++m_state;
}

void MakeSample(QLabel *label)
{
    label->setTextFormat(Qt::PlainText);
    label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    label->setFrameShape(QFrame::StyledPanel);
    label->setMargin(8);
    label->setBackgroundRole(QPalette::Base);
    label->setForegroundRole(QPalette::Text);
    label->setAutoFillBackground(true);
}

} // namespace brenix
