#pragma once

#include "base/TextPiece.h"

#include <ORVTListview/Types.h>

#include <QtCore/QString>

namespace ORVTListview {

// Where a result stands: in the program, whose lines count from 1, or in a row of a
// table, from 0. Nowhere with neither.
struct ResultPlace
{
    qint32 line = 0;
    TextPiece piece = {};
    LwType type = dsCode;
    qsizetype row = -1;

    friend bool operator==(const ResultPlace &, const ResultPlace &) = default;
};

// A use of a point: its place, and what is said of it.
struct ShownUse
{
    ResultPlace place;
    QString text;

    friend bool operator==(const ShownUse &, const ShownUse &) = default;
};

} // namespace ORVTListview
