#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QObject>

#include <memory>

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

Q_SIGNALS:
    void lineNumbersVisibleChanged(bool visible);
    void currentLineShownChanged(bool shown);
    void pairsShownChanged(bool shown);

private:
    friend class CodeEditor;

    explicit CodeView(RichTextBox &box);

    std::unique_ptr<CodeViewParts> d;
};

} // namespace ORVTListview
