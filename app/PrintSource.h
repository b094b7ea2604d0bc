#pragma once

class QWidget;

namespace brenix {

class CodeHighlight;

/// The system's page setup; what is chosen holds until the program ends.
void PageSetup(QWidget *window);
/// Asks with the system's print dialog, then prints the source, or its selection when there is one
/// and the user leaves it at that. Line numbers are not printed.
void PrintSource(CodeHighlight &source, QWidget *window);

} // namespace brenix
