#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QString>

#include <optional>

class QCoreApplication;

namespace ORVTListview {

struct Options
{
    QString project;
    QString screenshot; // empty for none
    bool isDark = false;
    QString language; // empty for the user's own
    LwType shown = dsCode;
    bool hasProject = false; // named, or the sample
};

// Qt reads its scale once, before there is an application.
void applyScale(int argc, char **argv);

// None when the user was told what is wrong with the options.
std::optional<Options> readOptions(const QCoreApplication &application);

} // namespace ORVTListview
