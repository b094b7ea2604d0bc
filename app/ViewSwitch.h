#pragma once

#include "support/DocumentModel.h"

namespace brenix {

/// What runs on every assignment of `Status`: lays the views out, shows the bars of the view, and
/// moves the text to where it is needed. `Refreshing` is armed through the document's refresher.
void RunViewSwitch(DocumentModel &document, MainWindowBars &bars);

/// The address that a local server has the page under: `Settings`/`LocalHost` and the page's file
/// name.
QString ServerAddress(const QString &caption);

} // namespace brenix
