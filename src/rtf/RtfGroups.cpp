#include "rtf/RtfGroups.h"

namespace ORVTListview {

RtfGroups::RtfGroups()
    : m_kept(1)
{
}

void RtfGroups::start()
{
    ++m_depth;
    if (m_depth <= maximumKept)
        m_kept.push_back(m_kept.back());
}

void RtfGroups::end()
{
    if (isOutside())
        return;
    if (m_skippedDepth == m_depth)
        m_skippedDepth = 0;
    if (m_depth <= maximumKept)
        m_kept.pop_back();
    --m_depth;
}

} // namespace ORVTListview
