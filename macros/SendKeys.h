#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <optional>

namespace brenix {

/// A key to be pressed: its code, the keys that are held with it, and the text that it enters
/// (empty for one that enters none).
struct KeyStroke
{
    int key = 0; ///< of Qt::Key
    Qt::KeyboardModifiers modifiers;
    QString text;
    int count = 1; ///< how many times

    bool operator==(const KeyStroke &) const = default;
};

/// The keys that a text in the usual notation stands for. A character is its own key, "~" is Enter;
/// "{DEL}", "{F1}" and their like are keys by name, in any case; "{x 5}" is five times that key,
/// and "{+}" the character itself. "+", "^" and "%" hold Shift, Ctrl and Alt for the next key or
/// for all in the parentheses behind them: "^a{DEL}" is Ctrl+A and Delete, "+(ab)" enters "AB".
/// Nothing for a text that is not well formed, or that names an unknown key.
std::optional<QList<KeyStroke>> ReadKeys(QStringView text);

} // namespace brenix
