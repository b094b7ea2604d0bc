#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace brenix {

/// Reads the fields of a text file of the program's own, one after the other. A field ends at a
/// comma or a line end (CR LF, CR or LF). A field that begins with a double quote runs to the next
/// one, commas and line ends included; what follows up to the separator is dropped. Blanks round a
/// field belong to it.
class ListInput
{
public:
    /// `text` must live as long as the reader.
    explicit ListInput(QStringView text)
        : m_text(text)
    {
    }

    /// The next field; nothing behind the last one. A separator at the very end of the text begins
    /// no further field.
    std::optional<QString> Next();

private:
    QStringView m_text;
    qsizetype m_position = 0;
};

} // namespace brenix
