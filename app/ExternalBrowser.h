#pragma once

#include <QString>

namespace brenix {

constexpr int BrowserCount = 4;

/// Name and program of an external browser, from 1 to 4, as the options hold them.
struct ExternalBrowser
{
    QString name;
    QString path; ///< empty when there is none
};
ExternalBrowser BrowserAt(int number);

/// What the browser is given for a local page: "file://" and the path, in which only Opera wants
/// blanks as "%20".
QString BrowserArgument(const ExternalBrowser &browser, const QString &page);

/// Starts the browser on a page, by an argument list and without a shell; false when it cannot be
/// started.
bool StartBrowser(const ExternalBrowser &browser, const QString &page);

} // namespace brenix
