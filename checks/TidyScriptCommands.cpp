#include "checks/TidyScript.h"
#include "editor/CodeHighlight.h"
#include "support/MessageBoxes.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString PresetFiles = u"Tidy Presets|*.tps"_s;

    void TellError(const QString &error)
    {
        const bool isHint = error == TidyPresets::NameError({}); // the words of the name check
        MsgBox(error, Buttons::Ok, isHint ? Icon::Information : Icon::Critical);
    }

} // namespace

void TidyScript::New()
{
    if (!AgreeToLeave(u"make a new script?"_s))
        return;
    const QString name = AskName();
    if (name.isEmpty())
        return;
    ShowName(name);
    SetScript({});
}

bool TidyScript::Save()
{
    if (!SaveUnder(m_name))
        return false;
    Refill();
    ShowName(m_name);
    return true;
}

void TidyScript::SaveAs()
{
    const QString name = AskName();
    if (name.isEmpty() || !SaveUnder(name))
        return;
    Refill();
    ShowName(name);
}

void TidyScript::Delete()
{
    const QString question = u"Are you sure you want to delete "_s + m_name + u'?';
    if (MsgBox(question, Buttons::YesNo, Icon::Question) != Answer::Yes)
        return;
    const QString error = m_presets.Remove(m_name);
    if (!error.isEmpty()) {
        TellError(error);
        return;
    }
    Refill();
    LoadFirst();
}

void TidyScript::Import()
{
    if (!AgreeToLeave(u"open a new scriptfile?"_s))
        return;
    const QString path = OpenFileName({.title = u"Import Presetfile"_s, .filter = PresetFiles});
    if (path.isEmpty())
        return;
    const QString error = m_presets.Import(path);
    if (!error.isEmpty()) {
        TellError(error);
        return;
    }
    Refill();
    LoadFirst();
}

void TidyScript::Export()
{
    const QString path = SaveFileName(
        {.title = u"Export Presetfile"_s, .filter = PresetFiles, .defaultSuffix = u"tps"_s});
    if (path.isEmpty())
        return;
    const QString error = m_presets.Export(path);
    if (!error.isEmpty())
        TellError(error);
}

void TidyScript::Run()
{
    m_run(m_code->Text());
}

void TidyScript::Cut()
{
    if (m_code->SelLength() == 0)
        return;
    m_code->copy();
    m_code->AddUndo();
    m_code->SetSelText({});
}

QString TidyScript::AskName() const
{
    return InputBox(u"Enter file discription"_s, u"My Scriptfile"_s).trimmed();
}

void TidyScript::ShowName(const QString &name)
{
    m_name = name;
    m_shownName = name;
    const QSignalBlocker quiet(m_preset);
    m_preset->setCurrentIndex(m_preset->findText(name));
    m_preset->setEditText(name);
}

bool TidyScript::SaveUnder(const QString &name)
{
    const QString error = m_presets.Save(name, m_code->Text());
    if (!error.isEmpty()) {
        TellError(error);
        return false;
    }
    setWindowModified(false);
    return true;
}

// A script that could not be saved keeps the author here.
bool TidyScript::AgreeToLeave(const QString &whatFor)
{
    if (!isWindowModified())
        return true;
    const Answer answer
        = MsgBox(u"The script has been changed. Do you want to save before you "_s + whatFor,
                 Buttons::YesNoCancel,
                 Icon::Question);
    return answer == Answer::No || (answer == Answer::Yes && Save());
}

void TidyScript::ChoosePreset(const QString &name)
{
    // To type the name of another preset is to choose it, and not to put this script in its place.
    if (m_name == name)
        m_name = m_shownName;
    if (AgreeToLeave(u"open a new scriptfile?"_s))
        Load(name);
    else
        ShowName(m_name);
}

// Leaves the script and its name alone.
void TidyScript::Refill()
{
    const QSignalBlocker quiet(m_preset);
    m_preset->clear();
    m_preset->addItems(m_presets.Names());
}

void TidyScript::LoadFirst()
{
    const QString first = m_preset->itemText(0);
    if (first.isEmpty()) {
        ShowName({});
        SetScript({});
    } else {
        Load(first);
    }
}

void TidyScript::Load(const QString &name)
{
    const TidyPresets::Script script = m_presets.Load(name);
    ShowName(name);
    SetScript(script.text);
    if (!script.error.isEmpty())
        TellError(script.error);
}

void TidyScript::SetScript(const QString &script)
{
    m_code->SetText(script);
    m_code->SetSelStart(0);
    m_code->AddUndo();
    setWindowModified(false);
}

void TidyScript::closeEvent(QCloseEvent *event)
{
    event->setAccepted(AgreeToLeave(u"quit?"_s));
}

} // namespace brenix
