#include "app/frmTip.h"

#include "support/AuthorFile.h"
#include "support/Paths.h"
#include "support/SettingsStore.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {
    constexpr QStringView ShowKey = u"Show Tips at Startup";
    constexpr int PictureSize = 64;
    constexpr int CharactersWide = 52;
    constexpr int LinesHigh = 5;
} // namespace

frmTip::frmTip(QWidget *parent)
    : QDialog(parent)
    , m_tip(new QLabel(this))
    , m_atStartup(new QCheckBox(u"&Show Tips at Startup"_s, this))
{
    setObjectName(u"frmTip"_s);
    setWindowTitle(u"Tip of the Day"_s);
    const QString text = QString::fromUtf8(ReadAuthorFile(AppPath(u"TIPS.TXT")).bytes);
    for (const QString &line : text.split(u'\n'))
        m_tips.append(line.trimmed());
    m_tips.removeAll(QString());

    m_atStartup->setObjectName(u"Check1"_s);
    m_atStartup->setChecked(IsWanted());
    connect(m_atStartup, &QCheckBox::toggled, this, [](bool on) {
        SaveSetting(u"Options", ShowKey, on ? u"1"_s : u"0"_s);
    });

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(QDialogButtonBox::Ok);
    ok->setText(u"&OK"_s);
    ok->setObjectName(u"Command1"_s);
    QPushButton *next = buttons->addButton(u"&Next Tip"_s, QDialogButtonBox::ActionRole);
    next->setObjectName(u"Command2"_s);
    next->setEnabled(m_tips.size() > 1);
    connect(next, &QPushButton::clicked, this, &frmTip::ShowNextTip);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(Page(), 1);
    layout->addWidget(m_atStartup);
    layout->addWidget(buttons);
    // Enter and the space bar close it; neither switches the tips off by accident.
    ok->setDefault(true);
    ok->setFocus();
    ShowNextTip();
}

QWidget *frmTip::Page()
{
    auto *page = new QFrame(this);
    page->setFrameShape(QFrame::StyledPanel);
    page->setBackgroundRole(QPalette::Base);
    page->setAutoFillBackground(true);
    auto *picture = new QLabel(page);
    picture->setPixmap(
        QIcon(AppPath(u"tip.png")).pixmap(QSize(PictureSize, PictureSize), devicePixelRatioF()));
    auto *title = new QLabel(u"Did you know..."_s, page);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    large.setBold(true);
    title->setFont(large);
    m_tip->setObjectName(u"Label1"_s);
    // Tips name tags and entities.
    m_tip->setTextFormat(Qt::PlainText);
    m_tip->setWordWrap(true);
    m_tip->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    const QFontMetrics metrics = fontMetrics();
    m_tip->setMinimumSize(metrics.averageCharWidth() * CharactersWide,
                          metrics.lineSpacing() * LinesHigh);

    auto *layout = new QGridLayout(page);
    const int margin = metrics.lineSpacing();
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setHorizontalSpacing(margin);
    layout->addWidget(picture, 0, 0, 2, 1, Qt::AlignTop);
    layout->addWidget(title, 0, 1);
    layout->addWidget(m_tip, 1, 1);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(1, 1);
    return page;
}

bool frmTip::IsWanted()
{
    return GetNumberSetting(u"Options", ShowKey, 1) != 0;
}

// The stored index, from 1, is that of the tip to come.
void frmTip::ShowNextTip()
{
    if (m_tips.isEmpty()) {
        m_tip->setText(u"The tip file is missing."_s);
        return;
    }
    const int stored = GetNumberSetting(u"Options", u"Tip", 1).value_or(1);
    const int tip = stored >= 1 && stored <= m_tips.size() ? stored : 1;
    m_tip->setText(m_tips[tip - 1]);
    SaveSetting(u"Options", u"Tip", QString::number(tip + 1));
}

} // namespace brenix
