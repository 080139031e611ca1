#pragma once

#include "project/analysis/ProgramListing.h"

class QWidget;

namespace ORVTListview {

// Asks for a file, beside the program's, and writes the statements there: values separated
// by commas, or a text with line numbers. Tells the user when it fails.
void exportStatements(QWidget &window, const QList<ListedStatement> &statements,
                      const QString &programFile);

} // namespace ORVTListview
