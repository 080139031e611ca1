#include "editor/ProgramText.h"

#include "base/ColouredText.h"
#include "base/MessageService.h"
#include "base/TextRules.h"
#include "editor/EditorThread.h"
#include "editor/EditorUndo.h"
#include "editor/WordChoice.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/colouring/PartsInTurn.h"
#include "editor/rules/colouring/RtfHead.h"
#include "rtf/RtfWriter.h"
#include "widgets/box/BoxFormats.h"
#include "widgets/box/BoxMimeData.h"
#include "widgets/box/LateColours.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QScopeGuard>
#include <QtGui/QFontMetrics>

namespace ORVTListview {

namespace {

bool hasMark(const QString &fontStyle, QStringView mark)
{
    return fontStyle.contains(mark, Qt::CaseInsensitive);
}

} // namespace

ProgramText::ProgramText(RichTextBox &box, const EditorThread &thread, EditorUndo &undo,
                         WordChoice &words)
    : m_box(box)
    , m_thread(thread)
    , m_undo(undo)
    , m_words(words)
{
}

void ProgramText::Init_RichTextBox(const RichTextSettings &Setting)
{
    const MessagesLater later(m_thread.messages); // the text is not in the box meanwhile
    const RichTextBox::Changing changing(m_box);  // whoever hears of it may destroy all this
    const UndoStore::Restoring sameText(m_undo.ring());
    auto &state = m_thread.state;
    const qint32 formerNvoColour = state.EditorSettings.nvoFPAColor;
    state.EditorSettings = Setting;
    state.EditorSettings.nvoFPAColor = formerNvoColour; // accepted, never used
    applyAppearance(Setting);
    state.LineHeight = m_box.fontMetrics().height();
    m_words.RefillListviewWithWordList();

    m_undo.setReady(false);
    const auto ready = qScopeGuard([this] { m_undo.setReady(true); });
    if (m_undo.keepsText())
        colourInPlace();
    else
        setAnew();
}

// What belongs to the text, its caret and its view stays.
void ProgramText::colourInPlace()
{
    try {
        takeHead();
        m_box.recolour(0, m_undo.coloured(m_box.Text()));
    } catch (const std::exception &) {
        return; // in its former colours
    }
}

void ProgramText::setAnew()
{
    const QString kept = m_box.Text();
    m_box.setUpdatesEnabled(false);
    const auto finish = qScopeGuard([this] { m_box.setUpdatesEnabled(true); });
    try {
        takeHead();
        m_box.setText(QString()); // no line of it is typed on any more
        const ColouredText coloured = m_undo.coloured(kept);
        m_box.setColoured(coloured);
        if (m_box.Text() == coloured.text) // nobody has put in another one meanwhile
            m_undo.noteColoured(kept);
    } catch (const std::exception &) {
        m_box.setText(kept); // uncoloured is better than lost
    }
    m_box.setSelStart(0);
}

void ProgramText::applyAppearance(const RichTextSettings &setting)
{
    m_box.setBackColor(setting.BackColor);
    setFontName(setting.FontName);
    m_box.setFontSize(setting.FontSize);
    m_box.setFontBold(hasMark(setting.FontStyle, u"b1"));
    m_box.setFontItalic(hasMark(setting.FontStyle, u"i1"));
    m_box.setFontUnderline(hasMark(setting.FontStyle, u"u1"));
}

// Where there is no such font, letters of one width take its place.
void ProgramText::setFontName(const QString &name)
{
    m_box.setFontName(name);
    QFont font = m_box.font();
    font.setStyleHint(QFont::Monospace);
    m_box.setFont(font);
}

// From what a box in this font writes for two lines.
void ProgramText::takeHead()
{
    BoxFormats formats;
    formats.setFont(m_box.font());
    RtfWriter sample(formats.base());
    sample.text(u"#GetInfo#", formats.base());
    sample.lineEnd();
    sample.text(u"#Another word", formats.base());
    EditorState &state = m_thread.state;
    state.RtfHeader =
        BuildRtfHeader(sample.finish(), state.EditorSettings, m_thread.messages.service()).Header;
}

QString ProgramText::CodeText() const
{
    return m_box.Text();
}

void ProgramText::setCodeText(const QString &text)
{
    const RichTextBox::Changing changing(m_box);
    m_box.setText(text);
    m_undo.resetBase();
}

void ProgramText::openProgram(const QString &text)
{
    const RichTextBox::Changing changing(m_box);
    const QString program = asInBox(text);
    const bool isLong = program.size() >= LateColours::shortest;
    const bool isNew = m_box.TextLength() == 0;
    if (isLong && isNew && !m_thread.knownWords().index().isEmpty() && LateColours::suits(program))
        openInParts(program);
    else
        m_box.setColoured(m_thread.finished(program, Spelling::Listed));
    m_undo.noteFinished(program);
    m_box.ensureCursorVisible();
    m_undo.beginWithShown();
}

// The box takes one part while others are still finished.
void ProgramText::openInParts(const QString &program)
{
    const ColourEngine engine = m_thread.colouring();
    PartsInTurn parts(engine, program,
                      PartsInTurn::finished(m_thread.settings(), Spelling::Listed));
    m_box.setColoured([&] { return parts.next(); });
}

QString ProgramText::CodeTextRTF()
{
    m_box.selectAll();
    return m_box.SelRTF();
}

void ProgramText::setCodeTextRTF(const QString &rtf)
{
    const RichTextBox::Changing changing(m_box);
    m_box.setTextRTF(rtf);
    m_undo.forgetKeptTexts();
}

QString ProgramText::GetColorText(const QString &Text) const
{
    return ColourText(m_thread.colouring(), withCrLf(Text), m_thread.state.RtfHeader, false);
}

void ProgramText::Clear()
{
    m_box.setText(QString());
}

void ProgramText::RTextSelectAll()
{
    m_box.selectAll();
    offerSelection(m_box);
}

} // namespace ORVTListview
