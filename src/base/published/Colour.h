#pragma once

#include <QtCore/qglobal.h>

namespace ORVTListview {

// A colour: 0x00BBGGRR, red in the low byte. A negative value is a system colour,
// 0x80000000 plus its number, which whoever shows it looks up in the palette. Where
// a place allows it, -1 is automatic instead: the text colour that goes with the
// background.
using Colour = qint32;

} // namespace ORVTListview
