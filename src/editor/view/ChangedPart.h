#pragma once

#include <algorithm>
#include <utility>

namespace ORVTListview {

// The part of a document that has changed, from QTextDocument::contentsChange until
// contentsChanged, when its lines are laid out again.
class ChangedPart
{
public:
    // In the document of after all changes.
    struct Span
    {
        int from = -1;
        int to = -1;

        bool isEmpty() const { return from < 0; }
    };

    void note(int from, int added)
    {
        m_span.from = m_span.isEmpty() ? from : std::min(m_span.from, from);
        m_span.to = std::max(m_span.to, from + added);
    }
    Span take() { return std::exchange(m_span, {}); }

private:
    Span m_span;
};

} // namespace ORVTListview
