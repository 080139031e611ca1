#include "base/SharedTextWalk.h"

namespace ORVTListview {

// To the piece that holds it; a place between two is in the one behind.
void SharedText::Walk::goTo(qsizetype position)
{
    while (m_index > 0 && position < m_begin)
        m_begin -= m_text.m_pieces[--m_index].length;
    while (position >= end() && m_index + 1 < m_text.m_pieces.size()) {
        m_begin = end();
        ++m_index;
    }
}

QStringView SharedText::Walk::behind(qsizetype position, qsizetype longest)
{
    if (position < 0 || position >= m_text.size())
        return {};
    goTo(position);
    return piece().view().sliced(position - m_begin).left(longest);
}

QStringView SharedText::Walk::before(qsizetype position, qsizetype longest)
{
    if (position <= 0 || position > m_text.size())
        return {};
    goTo(position - 1);
    return piece().view().first(position - m_begin).right(longest);
}

} // namespace ORVTListview
