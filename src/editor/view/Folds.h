#pragma once

#include "editor/view/ChangedPart.h"
#include "editor/view/EditorMargin.h"
#include "editor/view/OpenBlocks.h"

#include <QtCore/QList>

#include <utility>

namespace ORVTListview {

class BoxLayout;
class RichTextBox;
struct MovedLines;

// Folds the blocks of a program: the lines between an IF and its ENDIF are hidden, with
// a sign in the margin and one behind the IF's line. The document's lines know
// themselves whether they are hidden. A fold opens when the caret comes into it, when its text
// changes, and when a line at its edge is joined or broken.
class Folds final : public QObject, public MarginColumn, public BoxLayer
{
    Q_OBJECT

public:
    Folds(RichTextBox &box, EditorMargin &margin, BoxLayers &layers);

    bool isOn() const { return isShown(); }
    void setOn(bool on);

    // The outermost blocks; what lies in them opens with them.
    void foldAll();
    void unfoldAll();

    // How many lines are hidden between a line and the next one shown.
    int hiddenBehind(const QTextBlock &line) const;

    // When lines change places: before, and when all is in its place.
    void holdLines(const MovedLines &lines);
    void putBack(const MovedLines &lines);

    int width() const override;
    void paint(QPainter &painter, const ShownLine &line, const QRect &cell) override;
    int look(const QTextBlock &line) const override;
    bool press(const QTextBlock &line) override;
    QString toolTip(const QTextBlock &line) const override;

    void paintAbove(QPainter &painter, const ShownLines &lines) override;

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Lines
    {
        QTextBlock first;
        QTextBlock last;
    };

    bool hasFold(const QTextBlock &line) const;
    void fold(const QTextBlock &head);
    void unfold(const QTextBlock &hidden);
    void show(const Lines &lines, bool on);
    void stepOutOf(const Lines &lines);
    void followCaret();
    void noteChange(int from, int removed, int added);
    void followChange();

    RichTextBox &m_box;
    EditorMargin &m_margin;
    OpenBlocks m_openBlocks;
    QList<std::pair<int, int>> m_held; // folded lines, the one shown and the last
    ChangedPart m_changed;             // since it was last looked at
    int m_lineCount = 0;
    int m_caret = 0;           // before it moved
    bool m_isStepping = false; // by a key, to the left or to the right
    bool m_hasHidden = false;  // maybe
};

} // namespace ORVTListview
