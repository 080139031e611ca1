#pragma once

#include "base/SharedText.h"

namespace ORVTListview {

// Goes through a text, forwards or backwards, in a time that goes by the way from the place
// looked at last. The text lives longer, and stays as it is.
class SharedText::Walk
{
public:
    explicit Walk(const SharedText &text)
        : m_text(text)
    {
    }

    const SharedText &text() const { return m_text; }

    // As those of the text.
    QStringView behind(qsizetype position, qsizetype longest);
    QStringView before(qsizetype position, qsizetype longest);

private:
    const Piece &piece() const { return m_text.m_pieces[m_index]; }
    qsizetype end() const { return m_begin + piece().length; }
    void goTo(qsizetype position);

    const SharedText &m_text;
    qsizetype m_index = 0; // of a piece
    qsizetype m_begin = 0; // of it in the text
};

} // namespace ORVTListview
