#pragma once

#include "support/TextSearch.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace brenix {

/// Reads what stands in double quotes behind a word, one place after the other: for "href" in
/// `<a HREF="a.htm"><a href=b.htm title="c">` first "a.htm", then "c", since a value without double
/// quotes is passed over for the next one that has them. The word counts anywhere, without regard
/// to case.
class QuotedValues
{
public:
    /// `text` must live as long as the reader.
    QuotedValues(QStringView text, QStringView word)
        : m_text(text)
        , m_word(word)
    {
    }

    /// The next value; nothing when the word or one of the two quotes is missing.
    std::optional<QString> Next();
    /// Where the next search begins, from 0: behind the closing quote.
    qsizetype Position() const { return m_position; }

private:
    QStringView m_text;
    TextSearch m_word;
    qsizetype m_position = 0;
};

} // namespace brenix
