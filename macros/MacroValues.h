#pragma once

#include "macros/MacroFiles.h"

#include <QStringView>

namespace brenix {

/// The values of macro words. `rest` is a word from where its value begins, behind the opening
/// quote. Where there is an error, the other fields are empty.

/// What stands before the next single quote; without one it is an error.
struct MacroValue
{
    QString text;
    MacroError error;
};
MacroValue ReadValue(QStringView rest);

/// A value that is a number from 0 to `most`.
struct MacroNumber
{
    qint64 value = 0;
    MacroError error;
};
MacroNumber ReadNumber(QStringView rest, qint64 most);

/// Where the caret goes: one digit, whatever follows it. With "+" or "-" before it the caret moves
/// by it, so "+12" moves by 1; without it is the position.
struct MacroMove
{
    int by = 0;
    bool isRelative = false;
    MacroError error;
};
MacroMove ReadMove(QStringView rest);

/// The texts of "replace all 'x' with 'y'". The new one gets the length of the old one: it is cut,
/// or takes along what follows it, the quote first.
struct MacroReplacement
{
    QString find;
    QString replacement;
    MacroError error;
};
MacroReplacement ReadReplacement(QStringView rest);

} // namespace brenix
