#include "app/DesignBar.h"

#include "support/DesignView.h"

#include <QComboBox>
#include <QFontDatabase>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // A page may name a font that is not installed here, in any case of its letters.
    void ShowValue(QComboBox &box, const QString &value)
    {
        box.setPlaceholderText(value);
        box.setCurrentIndex(box.findText(value, Qt::MatchFixedString));
    }

} // namespace

DesignBar::DesignBar(QWidget *parent)
    : QToolBar(u"Design"_s, parent)
    , m_font(new QComboBox(this))
    , m_size(new QComboBox(this))
    , m_format(new QComboBox(this))
{
    setObjectName(u"Picture2"_s);
    setMovable(false);
    m_format->setObjectName(u"cobFormat"_s);
    m_format->setAccessibleName(u"Style"_s);
    m_font->setObjectName(u"Font1"_s);
    m_font->setAccessibleName(u"Font"_s);
    m_size->setObjectName(u"cobSize"_s);
    m_size->setAccessibleName(u"Font size"_s);
    for (QComboBox *box : {m_format, m_font, m_size})
        addWidget(box);
    FillSizes();
    FillBlockStyles();
    FillFonts();
    Link(m_font, Decmd::GetFontName, Decmd::SetFontName);
    Link(m_size, Decmd::GetFontSize, Decmd::SetFontSize);
    Link(m_format, Decmd::GetBlockFmt, Decmd::SetBlockFmt);
}

void DesignBar::Link(QComboBox *box, int get, int set)
{
    box->setFocusPolicy(Qt::TabFocus);
    connect(box, &QComboBox::textActivated, this, [this, get, set](const QString &text) {
        if (!m_view)
            return;
        if (m_view->ExecCommand(get) != text)
            m_view->ExecCommand(set, text);
        m_view->SetFocus();
    });
}

void DesignBar::SetView(DesignView *view)
{
    m_view = view;
    setEnabled(view != nullptr);
    Follow();
}

void DesignBar::Follow()
{
    if (!m_view)
        return;
    ShowValue(*m_font, m_view->ExecCommand(Decmd::GetFontName));
    ShowValue(*m_size, m_view->ExecCommand(Decmd::GetFontSize));
    ShowValue(*m_format, m_view->ExecCommand(Decmd::GetBlockFmt));
}

void DesignBar::FillSizes()
{
    for (int size = 1; size <= 7; ++size)
        m_size->addItem(QString::number(size));
}

void DesignBar::FillBlockStyles()
{
    m_format->addItems({u"Normal"_s,
                        u"Formatted"_s,
                        u"Address"_s,
                        u"Heading 1"_s,
                        u"Heading 2"_s,
                        u"Heading 3"_s,
                        u"Heading 4"_s,
                        u"Heading 5"_s,
                        u"Heading 6"_s,
                        u"Numbered List"_s,
                        u"Bulleted List"_s,
                        u"Directory List"_s,
                        u"Menu List"_s,
                        u"Definition Term"_s,
                        u"Definition"_s,
                        u"Paragraph"_s});
}

void DesignBar::FillFonts()
{
    QStringList families = QFontDatabase::families();
    std::sort(families.begin(), families.end());
    m_font->addItems(families);
}

} // namespace brenix
