#include "macros/MacroInterpreter.h"

#include "checks/FindReplace.h"
#include "checks/Pulse.h"
#include "macros/MacroValues.h"
#include "support/DocumentModel.h"
#include "support/SourceView.h"
#include "tags/InsertMarkup.h"

#include <QProcess>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int NewHtmlCaret = 192; // on the empty body line of the standard page

    class MacroRun
    {
    public:
        MacroRun(const QString &macro, MacroHost &host)
            : m_macro(macro)
            , m_host(host)
            , m_pulse([&host] { return host.LetEventsRun(); })
        {
        }

        MacroError Run();

    private:
        enum class Match { Whole, Start };
        // `rest` is the word from where its value begins.
        using Action = MacroError (MacroRun::*)(QStringView rest);
        struct Word
        {
            const char16_t *text;
            Match match;
            const char16_t *command; // of the menu; empty when there is an action of our own
            Action action = nullptr;
            qsizetype valueStart = 0;
        };
        static const Word Words[];

        bool GoesOn() { return !m_hasEnded && !m_pulse.Stopped() && m_host.Page(); }
        SourceView &Source() { return m_host.Page()->rtfText(); }
        void Type(const QString &text);
        void Put(const QString &text);
        MacroError Carry(const QString &word);

        MacroError Beep(QStringView);
        MacroError End(QStringView);
        MacroError Cut(QStringView);
        MacroError Copy(QStringView);
        MacroError Paste(QStringView);
        MacroError NewHtml(QStringView);
        MacroError MoveCursor(QStringView rest);
        MacroError SearchFor(QStringView rest);
        MacroError SelectionLength(QStringView rest);
        MacroError SendKey(QStringView rest);
        MacroError InsertValue(QStringView rest);
        MacroError ReplaceAll(QStringView rest);
        MacroError StartProgram(QStringView rest);
        MacroError Wait(QStringView rest);

        const QString &m_macro;
        MacroHost &m_host;
        Pulse m_pulse;
        bool m_hasEnded = false;
    };

    // In the order in which they are tried.
    // clang-format off
    const MacroRun::Word MacroRun::Words[] = {
        {u"find next",          Match::Whole, u"mnuSearchNext"},
        {u"select all",         Match::Whole, u"mnuSelectAll"},
        {u"select tag",         Match::Whole, u"mnuSelectTag"},
        {u"show/hide toolbox",  Match::Whole, u"mnuToolboxs"},
        {u"refresh browser",    Match::Whole, u"mnuViewRefresh"},
        {u"beep",               Match::Whole, u"", &MacroRun::Beep},
        {u"end",                Match::Whole, u"", &MacroRun::End},
        {u"cut",                Match::Whole, u"", &MacroRun::Cut},
        {u"copy",               Match::Whole, u"", &MacroRun::Copy},
        {u"paste",              Match::Whole, u"", &MacroRun::Paste},
        {u"table wizard",       Match::Whole, u"mnuTable"},
        {u"new doc",            Match::Whole, u"mnuFileNew"},
        {u"new html",           Match::Whole, u"", &MacroRun::NewHtml},
        {u"move cursor='",      Match::Start, u"", &MacroRun::MoveCursor,      13},
        {u"search for '",       Match::Start, u"", &MacroRun::SearchFor,       12},
        {u"selection length='", Match::Start, u"", &MacroRun::SelectionLength, 18},
        {u"send key='",         Match::Start, u"", &MacroRun::SendKey,         10},
        {u"insert tag='",       Match::Start, u"", &MacroRun::InsertValue,     12},
        {u"replace all '",      Match::Start, u"", &MacroRun::ReplaceAll,      13},
        {u"run",                Match::Start, u"", &MacroRun::StartProgram,    5},
        {u"wait",               Match::Start, u"", &MacroRun::Wait,            6},
    };
    // clang-format on

    MacroError MacroRun::Run()
    {
        qsizetype place = 0;
        for (;;) {
            const qsizetype open = m_macro.indexOf(u'[', place);
            if (open < 0)
                break;
            if (place > 0)
                Type(m_macro.sliced(place, open - place));
            const qsizetype close = m_macro.indexOf(u']', open);
            if (close < 0)
                return {MacroError::InvalidCall, u"A \"[\" has no \"]\" behind it"_s};
            place = close + 1;
            if (!GoesOn())
                return {};
            if (const MacroError error
                = Carry(m_macro.sliced(open + 1, close - open - 1).toLower()))
                return error;
            m_pulse.LongStep();
        }
        Type(m_macro.sliced(place));
        return {};
    }

    MacroError MacroRun::Carry(const QString &word)
    {
        const auto *row = std::ranges::find_if(Words, [&word](const Word &candidate) {
            return candidate.match == Match::Whole ? word == candidate.text
                                                   : word.startsWith(QStringView(candidate.text));
        });
        if (row == std::end(Words)) {
            Type(u'[' + word + u']');
            return {};
        }
        if (row->action)
            return (this->*row->action)(QStringView(word).mid(row->valueStart));
        m_host.Command(QString::fromUtf16(row->command));
        return {};
    }

    void MacroRun::Type(const QString &text)
    {
        if (!text.isEmpty())
            Put(text);
    }

    void MacroRun::Put(const QString &text)
    {
        if (!GoesOn() || Source().IsReadOnlyPage() || (text.isEmpty() && Source().SelLength() == 0))
            return;
        Source().AddUndo();
        Source().SetSelText(text);
    }

    MacroError MacroRun::Beep(QStringView)
    {
        m_host.Beep();
        return {};
    }

    MacroError MacroRun::End(QStringView)
    {
        m_hasEnded = true;
        m_host.End();
        return {};
    }

    MacroError MacroRun::Cut(QStringView)
    {
        Copy({});
        Put({});
        return {};
    }

    // With nothing selected the clipboard becomes empty, so that a later "paste" gives nothing
    // that the macro has not taken.
    MacroError MacroRun::Copy(QStringView)
    {
        m_host.SetClipboardText(Source().SelText());
        return {};
    }

    MacroError MacroRun::Paste(QStringView)
    {
        Put(m_host.ClipboardText());
        return {};
    }

    MacroError MacroRun::NewHtml(QStringView)
    {
        m_host.NewHtml();
        if (GoesOn())
            Source().SetSelStart(NewHtmlCaret);
        return {};
    }

    MacroError MacroRun::MoveCursor(QStringView rest)
    {
        const MacroMove move = ReadMove(rest);
        if (!move.error)
            Source().SetSelStart(move.isRelative ? Source().SelStart() + move.by : move.by);
        return move.error;
    }

    MacroError MacroRun::SearchFor(QStringView rest)
    {
        const MacroValue value = ReadValue(rest);
        if (!value.error) {
            Source().Search(value.text, Source().SelStart());
            m_host.SetSearchText(value.text);
        }
        return value.error;
    }

    MacroError MacroRun::SelectionLength(QStringView rest)
    {
        const MacroNumber number = ReadNumber(rest, std::numeric_limits<int>::max());
        if (!number.error)
            Source().SetSelLength(int(number.value));
        return number.error;
    }

    MacroError MacroRun::SendKey(QStringView rest)
    {
        const MacroValue value = ReadValue(rest);
        if (value.error)
            return value.error;
        const auto keys = ReadKeys(value.text);
        if (!keys)
            return {MacroError::InvalidCall, u"These are no keys: '"_s + value.text + u'\''};
        m_host.PressKeys(*keys);
        return {};
    }

    MacroError MacroRun::InsertValue(QStringView rest)
    {
        const MacroValue value = ReadValue(rest);
        if (!value.error)
            InsertMarkup(*m_host.Page(), value.text);
        return value.error;
    }

    MacroError MacroRun::ReplaceAll(QStringView rest)
    {
        const MacroReplacement value = ReadReplacement(rest);
        if (value.error)
            return value.error;
        const QString text = Source().Text();
        const QString replaced = WithReplacements(
            text, value.find, value.replacement, [this] { return m_pulse.Ask(); });
        // The author may have typed, or closed the page, in the meantime.
        if (!GoesOn() || Source().IsReadOnlyPage() || replaced == text || Source().Text() != text)
            return {};
        const int caret = Source().SelStart();
        Source().AddUndo();
        Source().SetText(replaced);
        Source().SetSelStart(caret);
        return {};
    }

    MacroError MacroRun::StartProgram(QStringView rest)
    {
        const MacroValue value = ReadValue(rest);
        if (value.error)
            return value.error;
        QStringList parts = QProcess::splitCommand(value.text);
        if (parts.isEmpty())
            return {MacroError::InvalidCall, u"There is no program to run"_s};
        const QString program = parts.takeFirst();
        if (!m_host.StartProgram(program, parts))
            return {MacroError::FileNotFound, u"This program cannot be started: "_s + program};
        return {};
    }

    MacroError MacroRun::Wait(QStringView rest)
    {
        const MacroNumber number = ReadNumber(rest, std::numeric_limits<qint64>::max());
        if (!number.error)
            m_hasEnded = !m_host.Wait(number.value);
        return number.error;
    }

} // namespace

MacroError RunMacro(const QString &macro, MacroHost &host)
{
    return MacroRun(macro, host).Run();
}

} // namespace brenix
