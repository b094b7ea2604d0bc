#pragma once

#include <QString>
#include <QWebEngineScript>

class QWebEnginePage;

namespace brenix {

/// What no page of the program may do: open windows, call other programs.
void RestrictPage(QWebEnginePage &page);

/// A script of the program's, in a world that the page's own scripts do not see.
QWebEngineScript OwnScript(const QString &name,
                           const QString &code,
                           QWebEngineScript::InjectionPoint point);

} // namespace brenix
