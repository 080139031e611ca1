#pragma once

#include "base/HouseExport.h"

#include <QtCore/QStringView>

namespace ORVTListview {

// How many steps the lines of a program are indented, told line after line from the first.
class ORVT_HOUSE_EXPORT BlockIndent
{
public:
    int read(QStringView line);

private:
    int m_depth = 0;
};

// Whether a line begins a block, or the other part of one, that goes on behind it.
ORVT_HOUSE_EXPORT bool opensBlock(QStringView line);

// Whether the first word of a line is ELSE or ENDIF, which stand below their IF.
ORVT_HOUSE_EXPORT bool closesBlock(QStringView line);

} // namespace ORVTListview
