#pragma once

#include "project/analysis/ProgramListing.h"

class QWidget;

namespace ORVTListview {

// Asks for a file and writes the statements there: values separated by commas for a name
// that ends with ".csv", else a text with line numbers. Tells the user when it fails.
void exportStatements(QWidget &window, const QList<ListedStatement> &statements,
                      const QString &proposedFile);

} // namespace ORVTListview
