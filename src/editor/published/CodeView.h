#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/HoverAnswer.h>
#include <ORVTListview/MarginMark.h>
#include <ORVTListview/Problem.h>
#include <ORVTListview/UndoHistory.h>

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace ORVTListview {

class RichTextBox;
struct CodeViewParts;
struct ProgramCommands;

// What a code editor shows beside the colours of its words. All of it is off at first,
// and none of it is part of the text: but for the commands and the helps for one who
// types it changes no text, no RTF, no snapshot, no event and no key.
// ORVListView::codeView() is the way to it; it lives as long as the control. What is set
// stays while the control shows a table.
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
    Q_PROPERTY(bool liveValuesShown READ liveValuesShown WRITE setLiveValuesShown NOTIFY
                   liveValuesShownChanged)
    Q_PROPERTY(
        bool adaptsColours READ adaptsColours WRITE setAdaptsColours NOTIFY adaptsColoursChanged)
    Q_PROPERTY(bool commandsEnabled READ commandsEnabled NOTIFY commandsEnabledChanged)
    Q_PROPERTY(bool autoIndent READ autoIndent WRITE setAutoIndent NOTIFY autoIndentChanged)
    Q_PROPERTY(bool smartHome READ smartHome WRITE setSmartHome NOTIFY smartHomeChanged)
    Q_PROPERTY(bool trimsBlanks READ trimsBlanks WRITE setTrimsBlanks NOTIFY trimsBlanksChanged)
    Q_PROPERTY(bool wordListOpensItself READ wordListOpensItself WRITE setWordListOpensItself NOTIFY
                   wordListOpensItselfChanged)
    Q_PROPERTY(bool keepsText READ keepsText WRITE setKeepsText NOTIFY keepsTextChanged)
    Q_PROPERTY(bool hasOwnUndo READ hasOwnUndo WRITE setHasOwnUndo NOTIFY hasOwnUndoChanged)

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

    // Whether text in a colour that is hard to read on the ground under it, less than 4.5 to
    // 1 in contrast, is shown lighter or darker, as far as it takes. The text keeps its
    // colours, for RTF and the clipboard, too.
    bool adaptsColours() const;
    void setAdaptsColours(bool on);

    // How large the text is shown, in percent of the box's font, which stays as it is,
    // for RTF, too. From 20 to 500; what lies outside counts as the nearest one. While it
    // is on, the wheel with Ctrl changes it by 10. 0, as at first, switches it off: the
    // font's own size, and a wheel that scrolls.
    qint32 zoom() const;
    void setZoom(qint32 percent);

    // What setLiveValues told of the names that a line uses, faintly behind its end:
    // "SupplyTemp 19.4 °C". A comment uses none. What does not fit is cut.
    bool liveValuesShown() const;
    void setLiveValuesShown(bool shown);

    // Values by name, in any letter case, each as it is to be shown, with its unit. They
    // take the place of all former ones, and are kept while they are not shown. Call it as
    // often as values come; what is shown changes ten times a second at most.
    Q_INVOKABLE void setLiveValues(const QHash<QString, QString> &values);

    // What a check found: underlined, with its sign in the margin and its place on the
    // scroll bar, with its text as tool tip and told to screen readers on the caret's
    // line. What lies outside the program counts as the nearest place inside. While the
    // text is edited a problem moves with it, and goes when its text goes; with the whole
    // text all go. Undo and redo leave those on lines that they do not change, or take all
    // when they change most of the text. The list comes back from the top, with the places
    // of now.
    Q_INVOKABLE void setProblems(const QList<ORVTListview::Problem> &problems);
    Q_INVOKABLE QList<ORVTListview::Problem> problems() const;

    // Put the caret to the next problem behind it, or before it, going round at the end,
    // and raise problemChosen. False without a problem.
    Q_INVOKABLE bool nextProblem();
    Q_INVOKABLE bool previousProblem();

    // What the host shows in the margin: pictures, with a text as tool tip, told to screen
    // readers on the caret's line. A line outside the program counts as the nearest one. A
    // mark moves with its line and is gone when that is; with the whole text all go. On a
    // line with a problem the problem's sign is seen. The list comes back from the top,
    // with the lines of now.
    Q_INVOKABLE void setMarks(const QList<ORVTListview::MarginMark> &marks);
    Q_INVOKABLE QList<ORVTListview::MarginMark> marks() const;

    // Marks the line of the caret, or takes its mark away. A mark is shown in the margin
    // and on the scroll bar, moves with its line and is gone when that is; with the whole
    // text all go, as problems do.
    Q_INVOKABLE void toggleBookmark();

    // Puts the caret to the next marked line, going round at the end. False without one.
    Q_INVOKABLE bool nextBookmark();

    // The marked lines, counted from 1, from the top; for a host that keeps them with the
    // program. Setting takes the place of all former marks; lines outside the program are
    // passed over.
    Q_INVOKABLE QList<qint32> bookmarks() const;
    Q_INVOKABLE void setBookmarks(const QList<qint32> &lines);

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

    // What a host binds to its menu; none has a key of its own. The commands that change
    // the program do nothing while the control shows a table, or the editor is hidden,
    // disabled or read-only. Each is one change and one step of undo, and none when
    // there is nothing to do; the selection and the lines in view stay. Those that only
    // move the caret act in a read-only editor, too.

    // Whether the commands that change the program are possible.
    bool commandsEnabled() const;

    // Puts the caret to the begin of a line, counted from 1; the nearest line counts. It
    // comes to the middle when it was out of view.
    Q_INVOKABLE void goToLine(qint32 line);

    // Asks the user for the line, in a field at the bottom of the editor. Enter goes there,
    // Esc closes it; then the editor has the focus. Nothing while the editor is not on the
    // screen.
    Q_INVOKABLE void showGoToLine();

    // Puts the caret from a bracket to its partner, from an IF, ELSE or ENDIF to the next
    // of its block and from the last to the first. False when there is none.
    Q_INVOKABLE bool goToPartner();

    // On the lines that the selection touches, or that of the caret; one at whose very
    // beginning the selection ends is not touched. moveLines takes them so many lines down,
    // or up for a negative number, as far as there are lines. duplicateLines puts a copy
    // behind them. joinLines makes them one line, words one blank apart, a single line with
    // the next one. sortLines puts them in order whatever their letter case, 2 before 10.
    Q_INVOKABLE void moveLines(int by);
    Q_INVOKABLE void duplicateLines();
    Q_INVOKABLE void deleteLines();
    Q_INVOKABLE void joinLines();
    Q_INVOKABLE void sortLines();

    // Puts "REM " before the first word of each line of the selection, or takes it away
    // when all of them are comments. Empty lines stay empty.
    Q_INVOKABLE void toggleComment();

    // The selected text in capital or small letters. Known words are written as listed
    // again once their line is finished.
    Q_INVOKABLE void upperCase();
    Q_INVOKABLE void lowerCase();

    // Indents the lines of the selection, or all without one, by IF, ELSE and ENDIF with
    // the control's indentUnit, sets brackets off by one blank as GetColorText does, makes
    // a tab between words a blank, and takes blanks at the end of a line away. Of a comment
    // only the indent changes.
    Q_INVOKABLE void tidy();

    // Shows a bar at the bottom of the editor that finds as the user types, marks all
    // matches, there and on the scroll bar, and tells how many there are. Enter selects the
    // next match, Shift+Enter the previous one, Esc closes it; then the editor has the
    // focus. It begins with the selected text. Nothing while the editor is not on the
    // screen or disabled.
    Q_INVOKABLE void showFindBar();

    // Select the next or previous match of what the user searched for last on this
    // thread, in the find dialog or in a find bar, with the options that it had, going round
    // at the end. False, and nothing changed, when there is none or nothing has been searched
    // for.
    Q_INVOKABLE bool findNext();
    Q_INVOKABLE bool findPrevious();

    // The same for the word at the caret, as a whole word in any letter case. False when
    // there is no other one.
    Q_INVOKABLE bool findNextAtCaret();
    Q_INVOKABLE bool findPreviousAtCaret();

    // What the editor does for one who types, all of it off at first. Indents, Home and
    // blanks change only a line that the user has typed on, and take no snapshot.

    // Enter behind an IF or ELSE begins the next line one indentUnit deeper, and a finished
    // ELSE or ENDIF that begins its line comes below its IF.
    bool autoIndent() const;
    void setAutoIndent(bool on);

    // Home goes to the line's first word, and from there to the line's begin.
    bool smartHome() const;
    void setSmartHome(bool on);

    // A line that was typed on loses the blanks at its end, on Enter at once, otherwise
    // soon after the caret has left it.
    bool trimsBlanks() const;
    void setTrimsBlanks(bool on);

    // The list of known words opens by itself behind three letters that begin one. Enter
    // and Tab take the chosen word, Esc shuts the list for this word, typing goes on. The
    // list, opened by TryToPopupList, too, then shows the words that hold what is typed,
    // those that begin so first, with the kind of each.
    bool wordListOpensItself() const;
    void setWordListOpensItself(bool on);

    // Whether undo, redo, a paste and a changed appearance leave blanks, tabs and brackets
    // as they are. Off, as at first, they set brackets off by one blank and drop a tab
    // between two words, on every line; tidy spaces when asked. A host that saves programs
    // as they came switches it on.
    bool keepsText() const;
    void setKeepsText(bool on);

    // Whether undo and redo keep to this editor. Off, as at first, all editors of the thread
    // step through one ring, each into the others' programs, which suits a host that shows
    // one program at a time. On, a step back takes back what was done last and no more: what
    // is shown gets a slot before it, and before a change in another line. Switching it begins
    // a history with what is shown; it has no effect in the midst of an undo or redo.
    bool hasOwnUndo() const;
    void setHasOwnUndo(bool on);

    // What users undo and redo by the editor's keys and context menu: the editor's own steps,
    // as at first and with none, or the history of a host that has one for several things and
    // calls Undo and Redo of ORVListView, which stay the editor's own, where these come next.
    // The menu offers what either has.
    void setUndoHistory(const std::optional<ORVTListview::UndoHistory> &history);

    // What that list shows beside words, by their names in any letter case; none at first.
    Q_INVOKABLE void setWordDescriptions(const QHash<QString, QString> &descriptions);

    // Opens a program as ORVListView::openProgram does, but for the time: the text is
    // there, to be scrolled, edited and saved, when this returns, in colours as far as it
    // is in view; the rest of a long one gets them while the program is idle. Whoever asks
    // for colours or RTF has them, at once. What the words are, and their colours, is
    // decided here. Nothing can tell afterwards which of the two has opened it.
    Q_INVOKABLE void openProgram(const QString &text);

    // Gives up colouring what openProgram opened: the text stays, lines without colours
    // stay so until they are worked on, or the appearance is applied.
    Q_INVOKABLE void cancelOpening();

    // Whether lines of what openProgram opened still wait for their colours.
    Q_INVOKABLE bool isOpening() const;

Q_SIGNALS:
    // By number, for late-bound hosts: 1 openingProgress, 2 hoverAsked, 3 problemChosen.

    // How much of the program that openProgram opens has its colours, from the event
    // loop, each percentage once. 100 is the last one, and comes whatever the end is:
    // all is done, cancelOpening, another text in its place.
    void openingProgress(qint32 percent);

    void lineNumbersVisibleChanged(bool visible);
    void currentLineShownChanged(bool shown);
    void pairsShownChanged(bool shown);
    void foldingEnabledChanged(bool enabled);
    void indentGuidesShownChanged(bool shown);
    void blanksShownChanged(bool shown);
    void adaptsColoursChanged(bool on);
    void zoomChanged(qint32 percent);
    void liveValuesShownChanged(bool shown);

    // Soon after the editor was shown, hidden, enabled, disabled or made read-only.
    void commandsEnabledChanged(bool enabled);
    void autoIndentChanged(bool on);
    void smartHomeChanged(bool on);
    void trimsBlanksChanged(bool on);
    void wordListOpensItselfChanged(bool on);
    void keepsTextChanged(bool on);
    void hasOwnUndoChanged(bool on);

    // The mouse has rested on a word, or the choice on an entry of the word list: what there
    // is to be told of it goes into the answer, which lives until the signal has been
    // delivered; it is shown beside the word. A word is what stands between blanks, brackets
    // and commas; a comment has none. `line` is that of the word, from 1, and that of the
    // caret for the word list. Where a problem is, its text is shown, and nobody is asked.
    // While nothing is connected the mouse is not followed.
    void hoverAsked(const QString &word, qint32 line, ORVTListview::HoverAnswer *answer);

    // The caret was put to a problem: by a click on its sign, of which the worst of the
    // line counts, by nextProblem or by previousProblem.
    void problemChosen(const ORVTListview::Problem &problem);

private:
    friend class CodeEditor;

    CodeView(RichTextBox &box, const ProgramCommands &commands);

    void setHelp(bool &help, bool on, void (CodeView::*changed)(bool));
    bool tellChosen(const std::optional<Problem> &problem);

    std::unique_ptr<CodeViewParts> d;
};

} // namespace ORVTListview
