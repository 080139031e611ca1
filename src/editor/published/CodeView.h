#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/Problem.h>

#include <QtCore/QList>
#include <QtCore/QObject>

#include <memory>
#include <optional>

namespace ORVTListview {

class RichTextBox;
struct CodeViewParts;

// What a code editor shows beside the colours of its words. All of it is off at first,
// and none of it is part of the text: it changes no text, no RTF, no snapshot, no event
// and no key. ORVListView::codeView() is the way to it; it lives as long as the control.
// What is set stays while the control shows a table.
class ORVT_EXPORT CodeView : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool lineNumbersVisible READ lineNumbersVisible WRITE setLineNumbersVisible NOTIFY
                   lineNumbersVisibleChanged)
    Q_PROPERTY(bool currentLineShown READ currentLineShown WRITE setCurrentLineShown NOTIFY
                   currentLineShownChanged)
    Q_PROPERTY(bool pairsShown READ pairsShown WRITE setPairsShown NOTIFY pairsShownChanged)
    Q_PROPERTY(bool foldingEnabled READ foldingEnabled WRITE setFoldingEnabled NOTIFY
                   foldingEnabledChanged)
    Q_PROPERTY(bool indentGuidesShown READ indentGuidesShown WRITE setIndentGuidesShown NOTIFY
                   indentGuidesShownChanged)
    Q_PROPERTY(bool blanksShown READ blanksShown WRITE setBlanksShown NOTIFY blanksShownChanged)
    Q_PROPERTY(qint32 zoom READ zoom WRITE setZoom NOTIFY zoomChanged)

public:
    ~CodeView() override;

    // The lines' numbers, from 1, in a margin where lines begin. A click in the margin
    // selects the line with its end, a drag several lines.
    bool lineNumbersVisible() const;
    void setLineNumbersVisible(bool visible);

    // A faint ground under the line of the caret, over the whole width. None while the
    // selection reaches into another line.
    bool currentLineShown() const;
    void setCurrentLineShown(bool shown);

    // What belongs together at the caret: a bracket and its partner on the line, or the
    // one that misses it; an IF, ELSE or ENDIF and the rest of its block, in the margin
    // too; and, once the caret has rested, the other uses of its word among the lines
    // shown. Comments excepted.
    bool pairsShown() const;
    void setPairsShown(bool shown);

    // Thin lines down the indents, one at each tab stop.
    bool indentGuidesShown() const;
    void setIndentGuidesShown(bool shown);

    // Dots for blanks and arrows for tabs.
    bool blanksShown() const;
    void setBlanksShown(bool shown);

    // How large the text is shown, in percent of the box's font, which stays as it is,
    // for RTF, too. From 20 to 500; what lies outside counts as the nearest one. While it
    // is on, the wheel with Ctrl changes it by 10. 0, as at first, switches it off: the
    // font's own size, and a wheel that scrolls.
    qint32 zoom() const;
    void setZoom(qint32 percent);

    // What a check found: underlined, with its sign in the margin and its place on the
    // scroll bar, with its text as tool tip and told to screen readers on the caret's
    // line. What lies outside the program counts as the nearest place inside. While the
    // text is edited a problem moves with it, and goes when its text goes. With the whole
    // text, which undo and redo set, too, all go. The list comes back from the top, with the places
    // of now.
    Q_INVOKABLE void setProblems(const QList<ORVTListview::Problem> &problems);
    Q_INVOKABLE QList<ORVTListview::Problem> problems() const;

    // Put the caret to the next problem behind it, or before it, going round at the end,
    // and raise problemChosen. False without a problem.
    Q_INVOKABLE bool nextProblem();
    Q_INVOKABLE bool previousProblem();

    // Marks the line of the caret, or takes its mark away. A mark is shown in the margin
    // and on the scroll bar, and goes with its line; with the whole
    // text all go, as problems do.
    Q_INVOKABLE void toggleBookmark();

    // Puts the caret to the next marked line, going round at the end. False without one.
    Q_INVOKABLE bool nextBookmark();

    // Whether the lines between an IF and its ENDIF can be hidden, by a click on the sign
    // in the margin. They stay in the text, for finding, undo and RTF. The caret passes
    // over them; a fold opens when the caret is put into it, when its text changes, and
    // when a line at its edge is joined or broken. Switching it off opens all.
    bool foldingEnabled() const;
    void setFoldingEnabled(bool enabled);

    // Hide the lines of the outermost blocks, and show all lines. Do nothing unless
    // folding is enabled. A caret in a block that is hidden goes to the end of its IF's line.
    Q_INVOKABLE void foldAll();
    Q_INVOKABLE void unfoldAll();

Q_SIGNALS:
    void lineNumbersVisibleChanged(bool visible);
    void currentLineShownChanged(bool shown);
    void pairsShownChanged(bool shown);
    void foldingEnabledChanged(bool enabled);
    void indentGuidesShownChanged(bool shown);
    void blanksShownChanged(bool shown);
    void zoomChanged(qint32 percent);

    // The caret was put to a problem: by a click on its sign, of which the worst of the
    // line counts, by nextProblem or by previousProblem.
    void problemChosen(const ORVTListview::Problem &problem);

private:
    friend class CodeEditor;

    explicit CodeView(RichTextBox &box);

    bool tellChosen(const std::optional<Problem> &problem);

    std::unique_ptr<CodeViewParts> d;
};

} // namespace ORVTListview
