#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace ORVTListview {

// Why no project can be made in this file, as a sentence; empty when one can. It and its
// program, beside it, are to be new.
QString newProjectFault(const QString &fileName);

// Makes a project of a text that has its form, and an empty program; the folder, too. Raises
// Error, and leaves no half of the two.
void makeProject(const QString &fileName, const QString &name, const QByteArray &form);

} // namespace ORVTListview
