#include "app/AddressBar.h"

#include "app/InnerToolBar.h"
#include "app/SkinIcons.h"

#include <QActionGroup>
#include <QComboBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {
    const QStringList Screens{u"Fit Screen"_s,
                              u"544x378"_s,
                              u"640x480"_s,
                              u"800x600"_s,
                              u"1024x768"_s,
                              u"1152x864"_s,
                              u"1280x768"_s,
                              u"1280x960"_s,
                              u"1280x1024"_s};
    constexpr int LongestHistory = 20;
} // namespace

AddressBar::AddressBar(QWidget *parent)
    : QToolBar(u"Address Bar"_s, parent)
    , m_address(new QComboBox(this))
    , m_screen(new QComboBox(this))
{
    setObjectName(u"Picture1"_s);
    setMovable(false);
    // Icons of a desktop theme would take longer to find than the rest of the window.
    const auto add = [this](const QString &tip, auto signal) {
        QAction *action = addAction(ProgramIcon(tip), tip);
        connect(action, &QAction::triggered, this, signal);
    };
    add(u"Back"_s, &AddressBar::Back);
    add(u"Forward"_s, &AddressBar::Forward);
    add(u"Refresh"_s, &AddressBar::RefreshClicked);
    addSeparator();

    auto *modes = new QActionGroup(this);
    QToolBar *modeBar = NewInnerToolBar(u"Toolbar3"_s, *this);
    m_local = modeBar->addAction(SkinIcon(u"local"), u"Local"_s);
    QAction *server = modeBar->addAction(SkinIcon(u"server"), u"Server"_s);
    m_local->setToolTip(u"Local: preview the page itself"_s);
    server->setToolTip(u"Server: preview what a server makes of the address"_s);
    for (QAction *mode : {m_local, server}) {
        mode->setCheckable(true);
        modes->addAction(mode);
        connect(mode, &QAction::triggered, this, [this] {
            m_address->setEnabled(!IsLocalMode());
            emit ModeChanged();
        });
    }
    m_local->setChecked(true);

    m_address->setObjectName(u"Combo2"_s);
    m_address->setAccessibleName(u"Address"_s);
    m_address->setEditable(true);
    m_address->setInsertPolicy(QComboBox::NoInsert);
    m_address->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_address->setEnabled(false);
    m_address->lineEdit()->setPlaceholderText(u"Address"_s);
    addWidget(m_address);
    connect(m_address->lineEdit(), &QLineEdit::textEdited, this, &AddressBar::AddressEdited);
    connect(m_address, &QComboBox::textActivated, this, &AddressBar::AddressEdited);
    connect(m_address->lineEdit(), &QLineEdit::returnPressed, this, [this] {
        const QString address = Address();
        if (m_address->findText(address) < 0 && m_address->count() < LongestHistory)
            m_address->addItem(address);
        emit AddressEntered(address);
    });

    m_screen->setObjectName(u"Combo1"_s);
    m_screen->setAccessibleName(u"Screen size"_s);
    m_screen->setToolTip(u"Shows the page as on a screen of this size"_s);
    m_screen->addItems(Screens);
    addWidget(m_screen);
    connect(m_screen, &QComboBox::textActivated, this, &AddressBar::ScreenChosen);
}

QString AddressBar::Address() const
{
    return m_address->currentText();
}

void AddressBar::SetAddress(const QString &address)
{
    m_address->setEditText(address);
}

bool AddressBar::IsLocalMode() const
{
    return m_local->isChecked();
}

} // namespace brenix
