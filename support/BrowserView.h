#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWidget;

namespace brenix {

/// An element of the page that is shown.
struct PageElement
{
    QString tagName; ///< as the page's document has it, "TD"
    int parent = -1; ///< the number of the element that it stands in; -1 for none
    QString text; ///< of an element without a tag name
};

/// The preview of a document (`WebBrowser1`) as the program uses it. Nothing here waits for the
/// page.
class BrowserView
{
public:
    virtual ~BrowserView() = default;

    /// The widget to lay out; it belongs to the parent that it was created with.
    virtual QWidget *Widget() = 0;

    /// Shows an address: "file://" and a path with the platform's separators, taken literally (a
    /// "#", "%" or blank in it is part of the name); "http://" or "https://"; a name without a
    /// scheme, as "http://"; "about:blank"; or "about:" and a text, which is shown as the page. The
    /// same file again keeps the scroll position.
    virtual void Navigate(const QString &address) = 0;
    virtual void Refresh() = 0;
    virtual void GoBack() = 0;
    virtual void GoForward() = 0;
    /// Hands over the elements of the page that is shown, in document order and numbered from 0;
    /// later, and never when the page does not answer.
    virtual void AskElements(std::function<void(const QList<PageElement> &elements)> got) = 0;
    /// While true, nothing is fetched from the network.
    virtual void SetOffline(bool offline) = 0;

    /// Called with the address when a page has been loaded and can be seen.
    std::function<void(const QString &address)> NavigateComplete;
    std::function<void(const QString &title)> TitleChange;
    /// The address of the link under the mouse, empty when there is none.
    std::function<void(const QString &link)> StatusTextChange;
};

} // namespace brenix
