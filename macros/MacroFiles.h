#pragma once

#include "support/TextCodec.h"

#include <QString>
#include <QStringList>

namespace brenix {

/// Why a macro, or something done to its file, failed. The author is told the number as well.
struct MacroError
{
    enum Number {
        None = 0,
        InvalidCall = 5,
        Overflow = 6,
        TypeMismatch = 13,
        FileNotFound = 53,
        PathAccess = 75,
    };
    int number = None;
    QString text;

    explicit operator bool() const { return number != None; }
};

/// The names of the macros, that is of the files ending in ".mac" in the `Macro` folder, without
/// the ending; sorted without regard to case. The place in this list, from 0, is the shortcut.
QStringList MacroNames();

/// "A" to "Z" for the places 0 to 25; empty for any other.
QString MacroLetter(int place);

/// False for a name that would lie in another folder, or that no file can have: an empty one, and
/// one with "/", "\" or NUL.
bool IsMacroName(const QString &name);

/// The file of a macro as it stands; its text has the line ends of the file.
struct MacroFile
{
    DecodedPage page;
    MacroError error;
};
MacroFile ReadMacroFile(const QString &name);

/// The text of a macro as it is run: the fields of its file, each on a line of its own (CR LF), so
/// that a comma becomes a line end and a field in double quotes loses them.
QString MacroText(QStringView file);

/// Writes a text to the file of a macro in the encoding that it had; where that lacks a character,
/// the file becomes UTF-8.
MacroError WriteMacroFile(const QString &name, const QString &text, const PageEncoding &encoding);

/// Makes the file of a new macro, empty but for a line end; a macro that is there stays as it is.
MacroError CreateMacroFile(const QString &name);

/// Removes the file; one that is gone already is no failure.
MacroError DeleteMacroFile(const QString &name);

} // namespace brenix
