#pragma once

#include <QtCore/QString>

namespace ORVTListview::bench {

// The controller language with the project's names, as KSyntaxHighlighting reads
// it. The formats of words are named "Comment", "Reserved word", "Constant",
// "Input", "Output", "Variable" and "Nvi".
QString syntaxDefinition();

} // namespace ORVTListview::bench
