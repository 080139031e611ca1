#include "editor/CodeEditor.h"

#include "base/EventGuard.h"
#include "editor/CodeCommands.h"
#include "editor/CodeViewParts.h"
#include "editor/StatusTimer.h"
#include "editor/rules/undo/UndoStore.h"
#include "shared/points/HostForms.h"
#include "widgets/look/MessageBoxes.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

namespace ORVTListview {

using namespace Qt::StringLiterals;

CodeEditor::CodeEditor(QWidget *host, ReportList &list)
    : QObject(host)
    , m_thread(EditorThread::current())
    , m_box(new RichTextBox(host))
    , m_status(new StatusTimer(this))
    , m_colouring(*m_box, m_thread)
    , m_undo(*m_box, m_thread)
    , m_words(list, *m_box, m_thread, m_undo, m_colouring)
    , m_text(*m_box, m_thread, m_undo, m_words)
    , m_clipboard(*m_box, m_thread, m_undo, m_colouring)
    , m_editing(*m_box, m_thread, m_undo, m_colouring, m_clipboard)
    , m_places(*m_box, m_thread)
    , m_keys({m_text, m_editing, m_clipboard, m_words, m_undo, m_colouring, *m_status})
    , m_opening(*m_box, m_text)
    , m_commands({*m_box, m_thread, m_undo, m_colouring, m_lineMoves}, m_editing.lines(),
                 m_editing.help(), m_words.popup(), m_opening)
    , m_view(*m_box, m_commands)
    , m_wordListTips(list, m_words.popup(), m_view.d->hover)
{
    MessageBoxes::installAsDefault();
    m_box->setObjectName(u"RichTextBox1"_s);
    m_box->setCommands(std::make_unique<CodeCommands>(
        *m_box, CodeCommands::Acts{m_text, m_editing, m_clipboard, m_keys, m_undo, m_colouring,
                                   m_tabStops, *m_status, m_words}));
    connectBox();
    connectEvents();
}

CodeEditor::~CodeEditor()
{
    if (m_box)
        m_box->setCommands(nullptr); // ours know the editor
}

void CodeEditor::setPictures(const std::function<QIcon(const QString &key)> &pictures)
{
    m_view.d->hover.setPictures(pictures);
}

void CodeEditor::connectBox()
{
    m_box->installEventFilter(this);
    connect(m_box, &RichTextBox::KeyDown, &m_keys, &EditorKeys::keyDown);
    connect(m_box, &RichTextBox::MouseDown, this,
            [this](qint16 button, qint16 shift, float x, float y) {
                m_colouring.finishCaretLine();
                raiseEvent(*this, &CodeEditor::MouseDown, button, shift, x, y);
            });
    connect(m_box, &RichTextBox::edited, this, &CodeEditor::noteTextChange);
    connect(m_box, &RichTextBox::cursorPositionChanged, this, &CodeEditor::noteCaretMove);
    connect(m_box, &RichTextBox::selectionChanged, this, &CodeEditor::noteCaretMove);
}

void CodeEditor::connectEvents()
{
    connect(&m_keys, &EditorKeys::KeyDown, this, &CodeEditor::KeyDown);
    connect(&m_keys, &EditorKeys::QueryAnalyze, this, &CodeEditor::QueryAnalyze);
    connect(&m_keys, &EditorKeys::QueryCompile, this, &CodeEditor::QueryCompile);
    connect(&m_clipboard, &ProgramClipboard::UpdateUndoMenu, this, &CodeEditor::UpdateUndoMenu);
    connect(&m_view, &CodeView::zoomChanged, this,
            [this](int percent) { m_editing.lines().setZoom(percent > 0 ? percent : 100); });
    connect(m_status, &StatusTimer::quiet, this, &CodeEditor::raiseStatus);
}

void CodeEditor::noteTextChange()
{
    m_undo.noteEdit();
    if (m_colouring.isEditing())
        m_words.popup().follow();
    else
        m_words.popup().close(); // it stood at a word that is no more
}

void CodeEditor::noteCaretMove()
{
    if (!m_undo.ring().IsRestoringUndo())
        m_colouring.followCaret();
    m_words.popup().follow();
}

void CodeEditor::raiseStatus()
{
    QString description = m_places.GetPositionDisplay();
    raiseEvent(*this, &CodeEditor::StatusUpdate, description);
}

bool CodeEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (!qobject_cast<RichTextBox *>(watched)) // nor while it is destroyed
        return QObject::eventFilter(watched, event);
    const QEvent::Type type = event->type();
    if (type == QEvent::FocusIn)
        m_tabStops.takeFrom(form());
    else if (type == QEvent::FocusOut)
        leaveFocus();
    else if (type == QEvent::Hide)
        noteHidden();
    else if (type == QEvent::FontChange)
        m_editing.lines().fitTabStops();
    return QObject::eventFilter(watched, event);
}

// The toolkit leaves the focus with a hidden box, which keeps Tab for itself, as long as
// no other control is a tab stop. A window that comes back has its focus where it was.
void CodeEditor::noteHidden()
{
    if (m_box->isVisibleTo(m_box->window()) || m_box->window()->focusWidget() != m_box)
        return;
    m_tabStops.giveBack();
    m_box->moveFocus(true);
    if (m_box->window()->focusWidget() == m_box)
        m_box->clearFocus();
}

QWidget *CodeEditor::form() const
{
    if (auto *codeParent = qobject_cast<QWidget *>(m_thread.forms.codeParent.data()))
        return codeParent;
    return m_form ? m_form.data() : m_box->window();
}

void CodeEditor::leaveFocus()
{
    m_tabStops.giveBack();
    m_words.popup().close();
    m_colouring.finishEdit();
}

} // namespace ORVTListview
