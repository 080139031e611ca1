#pragma once

#include <QtCore/QString>

namespace ORVTListview {

// The sample project: the installed one, else that of the sources it was built from.
QString sampleProject();

} // namespace ORVTListview
