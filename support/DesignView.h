#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace brenix {

/// The commands of the design view, with the numbers that they have always had.
namespace Decmd {
    enum : int {
        Bold = 5000,
        Copy = 5002,
        Cut = 5003,
        Delete = 5004,
        GetBlockFmt = 5011,
        GetFontName = 5013,
        GetFontSize = 5014,
        GetForeColor = 5015,
        Indent = 5018,
        InsertCol = 5020,
        InsertRow = 5021,
        Italic = 5023,
        JustifyCenter = 5024,
        JustifyLeft = 5025,
        JustifyRight = 5026,
        OrderList = 5030,
        Outdent = 5031,
        Paste = 5032,
        Redo = 5033,
        RemoveFormat = 5034,
        SelectAll = 5035,
        SetBlockFmt = 5043,
        SetFontName = 5044,
        SetFontSize = 5045,
        SetForeColor = 5046,
        Underline = 5048,
        Undo = 5049,
        UnorderList = 5051,
    };
}
namespace Decmdf {
    enum : int { NotSupported = 0, Disabled = 1, Enabled = 3, Latched = 7 };
}

/// The design view of a document (`Design`): the page as it looks, to be edited. What needs an
/// answer of the page waits for it with a time limit, so that no page can stop the program.
class DesignView
{
public:
    virtual ~DesignView() = default;

    /// The widget to lay out; it belongs to the parent that it was created with.
    virtual QWidget *Widget() = 0;

    /// The encoding of a page that neither has a byte order mark nor is UTF-8. To be set before the
    /// page is loaded.
    QByteArray CharCode = "windows-1250";

    /// Shows a file for editing, read as HTML whatever its name, with the pictures and style sheets
    /// of its folder. Waits ten seconds at most; false when it could not be shown, and the view is
    /// then blank.
    virtual bool LoadDocument(const QString &path) = 0;
    /// Writes `DocumentHTML` in the encoding of the loaded page to a claimed preview copy; false
    /// when that failed.
    virtual bool SaveDocument(const QString &path) = 0;
    /// The page, line ends as CR LF; nothing when none is shown or the page does not answer in
    /// time, unless it has been edited: then as it was when last heard of. As long as it has not
    /// been changed, or all changes are undone, this is the text that was loaded; after a change
    /// the root element is as the web engine writes it, and what stands outside of it is still the
    /// author's.
    virtual std::optional<QString> DocumentHTML() = 0;
    /// Whether the author has changed the page since it was loaded.
    virtual bool IsDirty() = 0;
    /// Draws the page again. Reads nothing from the disk.
    virtual void Refresh() = 0;
    virtual QString DocumentTitle() const = 0;
    /// The tag name of the element that holds the caret, "TD".
    virtual QString ActiveElement() const = 0;
    /// Replaces the selection by markup, unchanged.
    virtual void PasteHTML(const QString &markup) = 0;

    /// Carries out a command of Decmd with its value: a block style by its name in the style list
    /// ("Heading 1"), a font name, a size from "1" to "7", a colour as "#RRGGBB". A Get command
    /// gives its value back; other commands, and one that is not supported, give an empty text.
    virtual QString ExecCommand(int command, const QString &value = {}) = 0;
    /// A value of Decmdf, as of the last change of the selection.
    virtual int QueryStatus(int command) = 0;

    /// Whether outlines of tables without borders, and marks of what cannot be seen (comments,
    /// scripts, anchors, line breaks), are shown. They are never part of the page.
    virtual bool ShowBorders() const = 0;
    virtual void SetShowBorders(bool shown) = 0;
    virtual bool ShowDetails() const = 0;
    virtual void SetShowDetails(bool shown) = 0;

    virtual void SetFocus() = 0;

    /// The selection or what it shows has changed.
    std::function<void()> DisplayChanged;
    /// The address of the link under the mouse, empty when there is none.
    std::function<void(const QString &address)> LinkHovered;
    /// A text key was pressed or the page was changed in another way.
    std::function<void()> Edited;
};

} // namespace brenix
