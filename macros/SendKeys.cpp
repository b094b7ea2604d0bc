#include "macros/SendKeys.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct NamedKey
    {
        const char16_t *name;
        Qt::Key key;
        const char16_t *text = u"";
    };
    // clang-format off
    constexpr NamedKey NamedKeys[] = {
        {u"backspace",  Qt::Key_Backspace, u"\b"},
        {u"bs",         Qt::Key_Backspace, u"\b"},
        {u"bksp",       Qt::Key_Backspace, u"\b"},
        {u"break",      Qt::Key_Pause},
        {u"capslock",   Qt::Key_CapsLock},
        {u"clear",      Qt::Key_Clear},
        {u"delete",     Qt::Key_Delete, u"\x7F"},
        {u"del",        Qt::Key_Delete, u"\x7F"},
        {u"down",       Qt::Key_Down},
        {u"end",        Qt::Key_End},
        {u"enter",      Qt::Key_Return, u"\r"},
        {u"esc",        Qt::Key_Escape, u"\x1B"},
        {u"escape",     Qt::Key_Escape, u"\x1B"},
        {u"help",       Qt::Key_Help},
        {u"home",       Qt::Key_Home},
        {u"insert",     Qt::Key_Insert},
        {u"ins",        Qt::Key_Insert},
        {u"left",       Qt::Key_Left},
        {u"numlock",    Qt::Key_NumLock},
        {u"pgdn",       Qt::Key_PageDown},
        {u"pgup",       Qt::Key_PageUp},
        {u"prtsc",      Qt::Key_Print},
        {u"right",      Qt::Key_Right},
        {u"scrolllock", Qt::Key_ScrollLock},
        {u"space",      Qt::Key_Space, u" "},
        {u"tab",        Qt::Key_Tab, u"\t"},
        {u"up",         Qt::Key_Up},
    };
    // clang-format on
    constexpr int FunctionKeys = 16;

    Qt::KeyboardModifier Held(QChar prefix)
    {
        switch (prefix.unicode()) {
        case u'+':
            return Qt::ShiftModifier;
        case u'^':
            return Qt::ControlModifier;
        case u'%':
            return Qt::AltModifier;
        default:
            return Qt::NoModifier;
        }
    }

    // The first character, both halves of one beyond the basic plane.
    QStringView FirstCharacter(QStringView text)
    {
        const bool isPair
            = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
        return text.first(isPair ? 2 : std::min<qsizetype>(text.size(), 1));
    }

    class Reader
    {
    public:
        explicit Reader(QStringView text)
            : m_rest(text)
        {
        }

        std::optional<QList<KeyStroke>> Read()
        {
            while (!m_rest.isEmpty()) {
                if (!ReadNext())
                    return std::nullopt;
            }
            const bool isComplete = !m_inGroup && m_held == Qt::NoModifier;
            return isComplete ? std::optional(m_strokes) : std::nullopt;
        }

    private:
        QStringView Take(qsizetype length)
        {
            const QStringView taken = m_rest.first(length);
            m_rest = m_rest.sliced(length);
            return taken;
        }

        bool ReadNext()
        {
            const QChar sign = m_rest[0];
            if (Held(sign) != Qt::NoModifier) {
                m_held |= Held(Take(1)[0]);
                return true;
            }
            if (sign == u'(' || sign == u')')
                return ReadParenthesis();
            if (sign == u'{')
                return ReadBraces();
            if (sign == u'}')
                return false;
            if (sign == u'~') {
                Take(1);
                return AddNamed(u"enter", 1);
            }
            AddCharacter(Take(FirstCharacter(m_rest).size()), 1);
            return true;
        }

        bool ReadParenthesis()
        {
            const bool opens = Take(1)[0] == u'(';
            if (opens == m_inGroup || (!opens && m_held != Qt::NoModifier))
                return false;
            m_inGroup = opens;
            m_groupHeld = opens ? std::exchange(m_held, {}) : Qt::KeyboardModifiers();
            return true;
        }

        // A name, or any character, and how often; "{}}" is the brace itself.
        bool ReadBraces()
        {
            const qsizetype end = m_rest.indexOf(u'}', 2);
            if (end < 0)
                return false;
            const QStringView content = Take(end + 1).sliced(1, end - 1);
            const qsizetype blank = content.indexOf(u' ', 1);
            const QStringView name = blank < 0 ? content : content.first(blank);
            bool isNumber = true;
            const int count = blank < 0 ? 1 : content.sliced(blank + 1).toInt(&isNumber);
            if (!isNumber || count < 0)
                return false;
            if (FirstCharacter(name).size() == name.size()) {
                AddCharacter(name, count);
                return true;
            }
            return AddNamed(name, count);
        }

        bool AddNamed(QStringView name, int count)
        {
            const auto *named = std::ranges::find_if(NamedKeys, [name](const NamedKey &row) {
                return name.compare(QStringView(row.name), Qt::CaseInsensitive) == 0;
            });
            if (named != std::end(NamedKeys)) {
                Add(named->key, QString::fromUtf16(named->text), count);
                return true;
            }
            const bool isFunctionKey = name[0].toLower() == u'f' && name[1] != u'+';
            const int number = isFunctionKey ? name.sliced(1).toInt() : 0;
            if (number < 1 || number > FunctionKeys)
                return false;
            Add(Qt::Key_F1 + number - 1, {}, count);
            return true;
        }

        // A letter's key has the code of the capital.
        void AddCharacter(QStringView character, int count)
        {
            const QString capital = character.toString().toUpper();
            const bool isCapital = capital == character && character[0].toLower() != character[0];
            if (isCapital)
                m_held |= Qt::ShiftModifier;
            const QStringView key = capital.size() == character.size() ? capital : character;
            const QList<uint> codes = key.toUcs4();
            const bool isShifted = (m_held | m_groupHeld).testFlag(Qt::ShiftModifier);
            Add(int(codes.value(0)), isShifted ? capital : character.toString(), count);
        }

        void Add(int key, const QString &text, int count)
        {
            const Qt::KeyboardModifiers held = std::exchange(m_held, {}) | m_groupHeld;
            const bool entersNone
                = held.testFlag(Qt::ControlModifier) || held.testFlag(Qt::AltModifier);
            if (count > 0)
                m_strokes.append({key, held, entersNone ? QString() : text, count});
        }

        QStringView m_rest;
        QList<KeyStroke> m_strokes;
        Qt::KeyboardModifiers m_held; // for the next key
        Qt::KeyboardModifiers m_groupHeld; // for all keys in the parentheses
        bool m_inGroup = false;
    };

} // namespace

std::optional<QList<KeyStroke>> ReadKeys(QStringView text)
{
    return Reader(text).Read();
}

} // namespace brenix
