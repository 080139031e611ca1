#pragma once

#include "editor/view/EditorMargin.h"
#include <ORVTListview/Problem.h>

namespace ORVTListview {

class Bookmarks;
class HostMarks;
class NumberColumn;
class Problems;

// The signs of problems and bookmarks, and what a host shows. There while there are any,
// and beside numbers, so that the text does not jump when the first one comes.
class MarkColumn final : public QObject, public MarginColumn
{
    Q_OBJECT

public:
    struct Sources
    {
        const NumberColumn &numbers;
        Problems &problems;
        const Bookmarks &bookmarks;
        const HostMarks &hostMarks;
    };

    MarkColumn(QPlainTextEdit &box, EditorMargin &margin, const Sources &sources);

    int width() const override;
    void paint(QPainter &painter, const ShownLine &line, const QRect &cell) override;
    int look(const QTextBlock &line) const override;
    bool press(const QTextBlock &line) override;
    QString toolTip(const QTextBlock &line) const override;

Q_SIGNALS:
    // Its sign was clicked; the caret is there.
    void chosen(const ORVTListview::Problem &problem);

private:
    void paintBookmark(QPainter &painter, const QRect &cell) const;
    void paintSign(QPainter &painter, const QTextBlock &line, const QRectF &place) const;

    QPlainTextEdit &m_box;
    const Sources m_sources;
};

} // namespace ORVTListview
