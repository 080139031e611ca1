#pragma once

#include "editor/EditorKeys.h"
#include "editor/EditorThread.h"
#include "editor/EditorUndo.h"
#include "editor/ProgramClipboard.h"
#include "editor/ProgramCommands.h"
#include "editor/ProgramEditing.h"
#include "editor/ProgramOpening.h"
#include "editor/ProgramPlaces.h"
#include "editor/ProgramText.h"
#include "editor/TypedColouring.h"
#include "editor/WordChoice.h"
#include "editor/WordListTips.h"
#include "widgets/input/TabStops.h"
#include <ORVTListview/CodeView.h>

#include <QtCore/QPointer>
#include <QtGui/QIcon>

#include <functional>

class QWidget;

namespace ORVTListview {

class StatusTimer;

// The code face: a rich-text box that holds a controller program and shows every
// word in the colour of its class. Each subject of it has a class of its own; this
// one joins them to the box, which the host widget owns.
class CodeEditor : public QObject
{
    Q_OBJECT

public:
    // Makes the box, named RichTextBox1, as a child of the host widget. The list
    // serves as pop-up word list while it is taken.
    CodeEditor(QWidget *host, ReportList &list);
    ~CodeEditor() override;

    RichTextBox &box() const { return *m_box; }
    const EditorThread &thread() const { return m_thread; }
    ProgramText &text() { return m_text; }
    ProgramEditing &editing() { return m_editing; }
    ProgramClipboard &clipboard() { return m_clipboard; }
    ProgramPlaces &places() { return m_places; }
    WordChoice &words() { return m_words; }
    EditorUndo &undo() { return m_undo; }
    CodeView &view() { return m_view; }

    // The pictures of the point types, by their display names.
    void setPictures(const std::function<QIcon(const QString &key)> &pictures);

    // While the editor has the focus, Tab is typed: the controls of the form are
    // no tab stops. Null stands for the editor's window.
    void setForm(QWidget *form) { m_form = form; }

Q_SIGNALS:
    void KeyDown(qint16 &KeyCode, qint16 &Shift);
    void MouseDown(qint16 Button, qint16 Shift, float X, float Y);
    void UpdateUndoMenu();
    void QueryAnalyze();
    void QueryCompile();
    void StatusUpdate(QString &Description);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectBox();
    void connectEvents();
    void noteTextChange();
    void noteCaretMove();
    void raiseStatus();
    QWidget *form() const;
    void leaveFocus();
    void noteHidden();

    const EditorThread m_thread;
    QPointer<RichTextBox> m_box;
    StatusTimer *m_status;
    TypedColouring m_colouring;
    EditorUndo m_undo;
    WordChoice m_words;
    ProgramText m_text;
    ProgramClipboard m_clipboard;
    ProgramEditing m_editing;
    ProgramPlaces m_places;
    EditorKeys m_keys;
    LineMoves m_lineMoves;
    ProgramOpening m_opening;
    const ProgramCommands m_commands;
    CodeView m_view;
    WordListTips m_wordListTips;
    TabStops m_tabStops;
    QPointer<QWidget> m_form;
};

} // namespace ORVTListview
