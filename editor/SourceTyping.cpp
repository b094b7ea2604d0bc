#include "editor/SourceTyping.h"

#include "editor/CodeHighlight.h"
#include "editor/TypingSteps.h"
#include "editor/VirtualKeys.h"
#include "support/DocumentModel.h"
#include "support/SettingsStore.h"

#include <QEvent>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int SnapshotDelay = 5; // ms, as after any other key

    // The interval 0 switches a list off.
    void Arm(QTimer &timer, QStringView section, QStringView key, int defaultInterval)
    {
        const int interval = GetNumberSetting(section, key, defaultInterval).value_or(0);
        if (interval > 0)
            timer.start(interval);
    }

    bool HidesLists(int keyCode)
    {
        return (keyCode >= VirtualKey::PageUp && keyCode <= VirtualKey::Left)
            || keyCode == VirtualKey::Right;
    }

} // namespace

SourceTyping::SourceTyping(CodeHighlight &source, DocumentModel &page, QWidget &window)
    : QObject(&window)
    , m_source(source)
    , m_page(page)
    , m_lists(source, window)
{
    for (QTimer *timer : {&m_timer1, &m_timer4, &m_values, &m_snapshot})
        timer->setSingleShot(true);
    connect(&m_timer1, &QTimer::timeout, this, &SourceTyping::OnTimer1);
    connect(&m_timer4, &QTimer::timeout, this, &SourceTyping::OnTimer4);
    connect(&m_values, &QTimer::timeout, this, &SourceTyping::OnValues);
    connect(&m_snapshot, &QTimer::timeout, this, [this] { m_source.AddUndo(); });
    connect(&m_source, &CodeHighlight::KeyDown, this, &SourceTyping::OnKeyDown);
    connect(&m_source, &CodeHighlight::KeyPress, this, &SourceTyping::OnKeyPress);
    connect(&m_source, &CodeHighlight::Change, this, &SourceTyping::OnChange);
    connect(&m_source, &CodeHighlight::MouseUp, this, &SourceTyping::RemoveLists);
    connect(&m_source, &CodeHighlight::Scrolled, this, &SourceTyping::RemoveLists);
    connect(&m_lists, &CompletionLists::Clicked, this, &SourceTyping::OnListClick);
    m_source.installEventFilter(this);
}

bool SourceTyping::eventFilter(QObject *watched, QEvent *event)
{
    // A list would take no more keys.
    if (event->type() == QEvent::FocusOut) {
        m_values.stop();
        RemoveLists();
    }
    return QObject::eventFilter(watched, event);
}

void SourceTyping::RemoveLists()
{
    m_timer1.stop();
    m_timer4.stop();
    m_lists.HideAll();
}

void SourceTyping::ShowMacros(const QStringList &names)
{
    m_lists.Fill(CompletionLists::Macros, names);
    if (RunMacro && !names.isEmpty())
        m_lists.Show(CompletionLists::Macros);
}

void SourceTyping::OnKeyDown(int &keyCode, int &shift)
{
    const QScopedValueRollback atKey(m_atKey, true);
    m_timer1.stop();
    m_timer4.stop();
    if (HidesLists(keyCode) || keyCode == VirtualKey::Escape)
        m_lists.HideAll();
    m_edited = false;
    m_keyGoesOn = keyCode != 0;
    if (!TakesKey(keyCode, shift))
        return;
    keyCode = 0;
    m_keyGoesOn = false;
    m_source.ensureCursorVisible();
    // The view takes a snapshot of the keys that it enters itself.
    if (m_edited)
        m_snapshot.start(SnapshotDelay);
}

bool SourceTyping::TakesKey(int keyCode, int shift)
{
    const bool extends = shift == ShiftBit::Shift;
    if (!extends && (keyCode == VirtualKey::Delete || keyCode == VirtualKey::Back))
        m_page.KeyDone = true;
    if (HidesLists(keyCode))
        return !extends && keyCode == VirtualKey::Home && HomeStep(m_source);
    if (m_source.isReadOnly())
        return false;
    switch (keyCode) {
    case VirtualKey::Back:
        return m_lists.TakeBack();
    case VirtualKey::Up:
    case VirtualKey::Down:
        return m_lists.Move(keyCode == VirtualKey::Up ? -1 : 1);
    case VirtualKey::Return:
    case VirtualKey::Space:
        return Accept(keyCode) || ApplyShortcut(m_source, keyCode, shift);
    case 'V':
        if (shift != ShiftBit::Control)
            return false;
        m_source.paste();
        return true;
    default:
        return ApplyShortcut(m_source, keyCode, shift);
    }
}

void SourceTyping::OnKeyPress(int &keyAscii)
{
    const QScopedValueRollback atKey(m_atKey, true);
    m_page.KeyDone = true;
    m_page.Modyfied = u"1"_s;
    const QChar character{char16_t(keyAscii)};
    const bool valuesShown = m_lists.IsShown(CompletionLists::Values);
    if (character == u'"' && valuesShown)
        m_lists.Hide(CompletionLists::Values);
    else if (character == u'"')
        ArmValues();
    if (u">\\/"_s.contains(character)) {
        m_lists.Hide(CompletionLists::Attributes);
        m_lists.Hide(CompletionLists::Tags);
    }
    if (character == u'>')
        m_lists.Hide(CompletionLists::EndTag);
    if (character.isSurrogate())
        m_lists.HideAll(); // half of what is entered, which no row begins with
    m_lists.AddTyped(character);
    ArmTimers(character);

    if (keyAscii == VirtualKey::Return && EnterStep(m_source)) {
        keyAscii = 0;
    } else if (character == u'>' && IsSettingOn(u"Auto", u"Closetag", true)) {
        m_source.SetSelText(u">"_s);
        OfferEndTag(false);
        keyAscii = 0;
    }
    m_keyGoesOn = keyAscii != 0;
    if (keyAscii == 0)
        m_source.ensureCursorVisible();
}

void SourceTyping::ArmValues()
{
    if (IsSettingOn(u"Settings", u"DoValue", true))
        Arm(m_values, u"Settings", u"Value", 500);
}

void SourceTyping::ArmTimers(QChar character)
{
    if (character == u' ' && IsSettingOn(u"Auto", u"Attribute", true))
        Arm(m_timer4, u"Auto", u"AttributeDuration", 700);
    if (character == u'<' && IsSettingOn(u"Auto", u"Tag", true)
        && !m_lists.IsShown(CompletionLists::EndTag))
        Arm(m_timer1, u"Auto", u"TagDuration", 1);
}

// What the typing into a list rests on is gone when the text changes by other means.
void SourceTyping::OnChange()
{
    m_edited = true;
    if (!m_atKey && !std::exchange(m_keyGoesOn, false))
        m_lists.HideAll();
    if (m_lists.IsShown(CompletionLists::EndTag))
        m_lists.Hide(CompletionLists::Attributes);
}

void SourceTyping::OnListClick()
{
    m_source.AddUndo();
    int keyCode = VirtualKey::Space;
    int shift = 0;
    OnKeyDown(keyCode, shift);
    m_source.SetFocus();
}

} // namespace brenix
