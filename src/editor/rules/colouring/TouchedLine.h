#pragma once

#include "base/ColouredText.h"

#include "base/HouseExport.h"

#include <QtCore/QList>

#include <utility>

namespace ORVTListview {

// The places of a line that were changed.
class ORVT_HOUSE_EXPORT TouchedLine
{
public:
    // Places outside the line stand for its ends. From front to back.
    void touch(qsizetype from, qsizetype to) { m_places.append({from, to}); }

    // Gives the words that were not touched the letters and colours that they have.
    // Words stand between blanks and tabs; those behind a word have its colour.
    void keepTheRest(ColouredText &line, const ColouredText &former) const;

private:
    QList<std::pair<qsizetype, qsizetype>> m_places;
};

} // namespace ORVTListview
