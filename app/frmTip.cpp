#include "app/frmTip.h"

#include "support/AuthorFile.h"
#include "support/Paths.h"
#include "support/SettingsStore.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {
    constexpr QStringView ShowKey = u"Show Tips at Startup";
}

frmTip::frmTip(QWidget *parent)
    : QDialog(parent)
    , m_tip(new QLabel(this))
    , m_atStartup(new QCheckBox(u"&Show Tips at Startup"_s, this))
{
    setObjectName(u"frmTip"_s);
    setWindowTitle(u"Tip of the Day"_s);
    const QString text = QString::fromUtf8(ReadAuthorFile(AppPath(u"TIPS.TXT")).bytes);
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts))
        m_tips.append(line.trimmed());

    m_tip->setObjectName(u"Label1"_s);
    m_tip->setWordWrap(true);
    m_tip->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_tip->setMinimumSize(380, 110);
    m_tip->setMargin(10);
    m_tip->setFrameShape(QFrame::StyledPanel);
    m_atStartup->setObjectName(u"Check1"_s);
    m_atStartup->setChecked(IsWanted());
    connect(m_atStartup, &QCheckBox::toggled, this, [](bool on) {
        SaveSetting(u"Options", ShowKey, on ? u"1"_s : u"0"_s);
    });

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    QPushButton *next = buttons->addButton(u"&Next Tip"_s, QDialogButtonBox::ActionRole);
    next->setObjectName(u"Command2"_s);
    next->setEnabled(m_tips.size() > 1);
    connect(next, &QPushButton::clicked, this, &frmTip::ShowNextTip);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(u"<b>Did you know...</b>"_s, this));
    layout->addWidget(m_tip, 1);
    layout->addWidget(m_atStartup);
    layout->addWidget(buttons);
    ShowNextTip();
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
