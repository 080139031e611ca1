#pragma once

#include "rtf/RtfFormat.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <random>

namespace ORVTListview::Testing {

// A piece of a text: characters of one format, or a line end.
struct RtfPiece
{
    bool isLineEnd = false;
    QString text = {};
    RtfFormat format = {};
};

// Formats and texts that are likely to go wrong, from a seed.
class RtfRandom
{
public:
    explicit RtfRandom(quint32 seed);

    int below(int limit);
    template <typename List>
    const auto &oneOf(const List &list)
    {
        return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
    }

    RtfFormat format();
    QString text();
    QList<RtfPiece> pieces();

private:
    std::mt19937 m_numbers;
};

} // namespace ORVTListview::Testing
