#include "editor/rules/TextEdits.h"

#include <algorithm>

namespace ORVTListview {

std::optional<TextEdit> difference(QStringView before, QStringView after, qint32 start)
{
    if (before == after)
        return {};
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype same = 0;
    while (same < shorter && before[same] == after[same])
        ++same;
    if (same > 0 && before[same - 1].isHighSurrogate())
        --same; // pairs stay whole
    qsizetype sameBehind = 0;
    while (sameBehind < shorter - same &&
           before[before.size() - sameBehind - 1] == after[after.size() - sameBehind - 1])
        ++sameBehind;
    if (sameBehind > 0 && before[before.size() - sameBehind].isLowSurrogate())
        --sameBehind;
    return TextEdit{
        {start + static_cast<qint32>(same), static_cast<qint32>(before.size() - same - sameBehind)},
        after.sliced(same, after.size() - same - sameBehind).toString()};
}

qint32 placeAfter(const QList<TextEdit> &edits, qint32 place, bool isLineBegin)
{
    qint32 shift = 0;
    for (const auto &[piece, text] : edits) {
        const auto length = static_cast<qint32>(text.size());
        if (piece.end() > place || (piece.end() == place && isLineBegin)) {
            const qint32 inside = std::max(place - piece.start, 0);
            return place - inside + std::min(inside, length) + shift;
        }
        shift += length - piece.length;
    }
    return place + shift;
}

} // namespace ORVTListview
