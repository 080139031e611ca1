#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringView>
#include <QtGui/QTextCursor>

#include <functional>

namespace ORVTListview {

class RichTextBox;
struct EditorThread;

// Colours what is typed: a word once it is finished, a line once it is left. Only
// colours and listed letter case change, never a blank, a tab or a bracket, and
// nothing while an input method composes. A line that anyone else changes is not
// the user's any more: what the host sets stays as it is.
// Why it is so: docs/decisions/editor-typing.md.
class TypedColouring : public QObject
{
    Q_OBJECT

public:
    TypedColouring(RichTextBox &box, const EditorThread &thread);

    void finishLine(qint32 line);
    void finishCaretLine();

    // Carries out a change by the user, one at most; the line of the caret is
    // finished once it is left, another one at once. Returns whether the line is still the user's:
    // a handler of the change may set the text anew or destroy this.
    bool edit(const std::function<void()> &change);

    // The same for what changed colours only: the caret's line is to be finished.
    void leaveUnfinished();

    bool isEditing() const { return m_edit != Edit::None; }
    bool isUnfinished() const { return m_isUnfinished; }
    void finishEdit();

    // Finishes the edited line when the caret has left it.
    void followCaret();

    // Puts typed text in the place of the selection: in the colour that an unfinished
    // word has at the caret, and over a selection without one.
    void type(const QString &text);

    // Whether typing the text finishes the word before it.
    static bool finishesWord(QStringView text);

private:
    enum class Edit { None, Begun, Made };

    void noteChange(int from, int added);
    void prepareTyping(QStringView text);
    bool isInComment() const;

    RichTextBox &m_box;
    const EditorThread &m_thread;
    Edit m_edit = Edit::None;
    bool m_isUnfinished = false;
    QTextCursor m_edited;    // on the line that is not finished
    QTextCursor m_elsewhere; // on one that changed away from the caret
    bool m_hasElsewhere = false;
};

} // namespace ORVTListview
