#pragma once

#include "editor/view/BlockSearch.h"
#include "editor/view/CaretLayer.h"

namespace ORVTListview {

// Marks the bracket at the caret and its partner, and the IF, ELSE or ENDIF at the
// caret and what belongs to it, in the margin too. What misses its partner looks wrong.
class PairMarks final : public CaretLayer
{
public:
    PairMarks(QPlainTextEdit &box, BoxLayers &layers);

    void paintBelow(QPainter &painter, const ShownLines &lines) override;
    void paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip) override;

private:
    struct Mark
    {
        BlockSearch::Place place;
        bool isWrong = false;

        friend bool operator==(const Mark &, const Mark &) = default;
    };

    // Lines from the first to the last, drawn together in the margin.
    struct Span
    {
        int first = 0;
        int last = -1;

        friend bool operator==(const Span &, const Span &) = default;
    };

    void follow() override;
    void forget() override;
    void show();
    void findBrackets(const QTextCursor &caret, QList<Mark> &marks) const;

    BlockSearch m_block;
    QList<Mark> m_marks;
    Span m_span;
};

} // namespace ORVTListview
