#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace brenix {

/// The ways in which the Tag Designer asks for a value.
enum class DesignerPanel {
    FontDrop, ///< `Drop` with the system's fonts
    Drop, ///< `Drop` with DropValues
    Color,
    Hyper,
    NoOption,
    Default,
};

/// The panel for an attribute; its name in lower case, in any other it gets `Default`.
DesignerPanel PanelOfAttribute(QStringView attribute);
/// The values to choose from; empty for an attribute that has none, or has the fonts.
QStringList DropValues(QStringView attribute);

/// What a button "Insert" appends: "src" and "a.gif" give `src="a.gif" `, a blank at the end.
QString DesignedAttribute(const QString &attribute, const QString &value);
/// The same for an attribute without a value.
QString DesignedAttribute(const QString &attribute);

/// The tag with the attribute text `code` as it stands, blanks included, and its end tag where it
/// has one: "IMG" and `src="a.gif" ` give `<IMG src="a.gif" >`, "B" alone gives "<B></B>".
QString DesignedTag(const QString &name, const QString &code);

} // namespace brenix
