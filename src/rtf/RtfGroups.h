#pragma once

#include "rtf/RtfPieces.h"

#include <vector>

namespace ORVTListview {

// What text is part of.
enum class RtfDestination { Document, FontTable, ColourTable };

// What a group keeps to itself.
struct RtfGroup
{
    RtfCharacters characters;
    qint32 fallbackLength = 1; // characters behind \u for readers that do not know it
    RtfDestination destination = RtfDestination::Document;
    qint32 passedOver = 0; // by how many groups around it, and itself
};

// The groups around a place of a document.
class RtfGroups
{
public:
    // So many groups inside each other have settings of their own. Deeper ones are
    // counted, but share those of the last.
    static constexpr qsizetype maximumKept = 1024;

    RtfGroups();

    void start();
    void end();
    bool isOutside() const { return m_depth == 0; }

    RtfGroup &current() { return m_kept.back(); }
    const RtfGroup &current() const { return m_kept.back(); }

    // Skips the rest of the current group with all groups in it.
    void skipCurrent() { m_skippedDepth = m_depth; }
    bool isSkipping() const { return m_skippedDepth > 0; }

private:
    std::vector<RtfGroup> m_kept;
    qsizetype m_depth = 0;
    qsizetype m_skippedDepth = 0;
};

} // namespace ORVTListview
