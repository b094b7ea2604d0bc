#include "checks/ErrorCheck.h"

#include "support/TextSearch.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct Pattern
    {
        QStringView text;
        QStringView message; ///< what stands before the position
    };

    // Found without regard to case. "<htm>" stands twice, and is reported twice.
    constexpr Pattern Patterns[] = {
        // clang-format off
        {u"<htlm>",    u"Spell Error?. (Char: "},
        {u"<htm>",     u"Spell Error?. (Char: "},
        {u"<centre>",  u"Spell Error? Supposed <CENTER>. (Char: "},
        {u"</centre>", u"Spell Error? Supposed </CENTER>. (Char: "},
        {u"bgcolour",  u"Spell Error? Supposed BGCOLOR. (Char: "},
        {u"<htm>",     u"Spell Error?. (Char: "},
        {u"<bdy",      u"Spell Error?. (Char: "},
        {u"<boddy",    u"Spell Error?. (Char: "},
        {u"</meta>",   u"Closing tag forbidden. (Char: "},
        {u"</frame>",  u"Closing tag forbidden. (Char: "},
        {u"</br>",     u"Closing tag forbidden. (Char: "},
        {u"</param>",  u"Closing tag forbidden. (Char: "},
        {u"</wbr>",    u"Closing tag forbidden. (Char: "},
        // clang-format on
    };

    struct Letter
    {
        char16_t letter;
        QStringView message;
    };

    constexpr Letter Letters[] = {
        {u'å', u"Unknown character (å), use &aring; instead. (Char: "},
        {u'Å', u"Unknown character (Å), use &Aring; instead. (Char: "},
        {u'ø', u"Unknown character (ø), use &oslash; instead. (Char: "},
        {u'Ø', u"Unknown character (Ø), use &Oslash; instead. (Char: "},
        {u'æ', u"Unknown character (æ), use &aelig; instead. (Char: "},
        {u'Æ', u"Unknown character (Æ), use &AElig; instead. (Char: "},
    };

    /// The state of one pass. Each function looks at one character that may matter.
    class CharacterPass
    {
    public:
        CharacterPass(QStringView text, CheckReport &report)
            : m_text(text)
            , m_report(report)
        {
        }

        void Look(qsizetype at)
        {
            m_at = at;
            m_second = at + 1 < m_text.size() ? FoldUnit(m_text[at + 1]) : QChar();
            switch (const char16_t unit = m_text[at].unicode()) {
            case u'<':
                OpenTag();
                OpenOrCloseScript();
                Frames();
                break;
            case u'>':
                CloseTag();
                return;
            case u'"':
                m_inQuote = !m_inQuote;
                return;
            case u'b':
            case u'B':
                break;
            default:
                if (unit >= 0x80)
                    LookAtLetter(unit);
                return;
            }
            LookForPatterns();
        }

        bool InScript() const { return m_inScript; }

    private:
        enum class Fault {
            None,
            Start,
            End,
        };

        // The second character rules out most patterns at once.
        bool Begins(QStringView pattern) const
        {
            return m_second == pattern[1] && StartsWithoutCase(m_text.sliced(m_at), pattern);
        }

        void Report(QStringView message)
        {
            m_report.lines.append(message.toString() + QString::number(m_at) + u")..."_s);
        }

        void ReportError(QStringView message)
        {
            Report(message);
            CountFinding(m_report.errors);
        }

        void ReportTagFault(Fault fault, QStringView message)
        {
            if (m_lastTagFault != fault)
                ReportError(message);
            m_lastTagFault = fault;
        }

        void OpenTag()
        {
            if (m_inTag)
                ReportTagFault(Fault::Start, u"Tag starts before previous tag ends (Char ");
            m_inTag = true;
        }

        void CloseTag()
        {
            if (m_inTag) {
                m_inTag = false;
                return;
            }
            ReportTagFault(Fault::End, u"Tag ends before previous tag starts (Char: ");
            if (m_inQuote)
                ReportError(u"Missing quotation (Char: ");
            m_inQuote = false;
        }

        void OpenOrCloseScript()
        {
            if (Begins(u"<script>")) {
                m_inScript = true;
            } else if (Begins(u"</script>")) {
                if (!m_inScript)
                    Report(u"New script starts before previous script is finished . (Char: ");
                m_inScript = false;
            } else if (Begins(u"<hltm>")) {
                ReportError(u"Spell Error?. (Char: ");
            }
        }

        void Frames()
        {
            if (Begins(u"<body"))
                m_bodySeen = true;
            else if (m_bodySeen && Begins(u"<frameset"))
                Report(u"Body tag before frameset tag. No frames are shown. (Char: ");
        }

        void LookForPatterns()
        {
            for (const Pattern &pattern : Patterns) {
                if (Begins(pattern.text))
                    ReportError(pattern.message);
            }
        }

        void LookAtLetter(char16_t unit)
        {
            for (const Letter &letter : Letters) {
                if (letter.letter == unit)
                    ReportError(letter.message);
            }
        }

        QStringView m_text;
        CheckReport &m_report;
        qsizetype m_at = 0;
        QChar m_second; // the character behind, in lower case
        bool m_inTag = false;
        bool m_inQuote = false;
        bool m_inScript = false;
        bool m_bodySeen = false;
        Fault m_lastTagFault = Fault::None;
    };

} // namespace

CheckReport ErrorCheck(QStringView text, const QString &caption, const GoOn &goOn)
{
    CheckReport report;
    report.lines = {u"Checking "_s + caption + u" for errors..."_s, QString()};
    const qsizetype heading = report.lines.size();
    CharacterPass pass(text, report);
    Pulse pulse(goOn);
    // The last character is looked at in any case.
    bool going = text.size() <= 1 || pulse.Ask();
    for (qsizetype at = 0; going && at < text.size(); ++at) {
        pass.Look(at);
        going = at + 2 >= text.size() || pulse.Step();
    }
    if (going && pass.InScript())
        report.lines.append(u"No end of script tag..."_s);
    report.findings = report.lines.size() - heading;
    report.lines.append(
        {QString(), QString(45, u'-'), u"Total Errors: "_s + QString::number(report.errors)});
    return report;
}

} // namespace brenix
