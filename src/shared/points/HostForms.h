#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

namespace ORVTListview {

// The host's forms that a thread's components were told of. Each reads as null
// once the host has destroyed it.
struct HostForms
{
    QPointer<QObject> pointOwner; // owns the point collections
    QPointer<QObject> codeParent; // holds the code editor
};

} // namespace ORVTListview
