#include "editor/CodeEditor.h"

#include "editor/ColourText.h"
#include "editor/EditorState.h"
#include "editor/RtfHead.h"
#include "editor/ThreadColouring.h"
#include "platform/MessageBoxes.h"
#include "platform/RichTextBox.h"
#include "platform/TextRules.h"
#include "shared/ThreadState.h"

#include <QtCore/QScopeGuard>
#include <QtGui/QFontMetrics>
#include <QtWidgets/QWidget>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

bool hasMark(const QString &fontStyle, QStringView mark)
{
    return fontStyle.contains(mark, Qt::CaseInsensitive);
}

} // namespace

CodeEditor::CodeEditor(QWidget *host)
    : QObject(host)
    , m_box(new RichTextBox(host))
{
    m_box->setObjectName(u"RichTextBox1"_s);
    MessageBoxes::installAsDefault();
}

CodeEditor::~CodeEditor() = default;

void CodeEditor::Init_RichTextBox(const RichTextSettings &Setting)
{
    auto &state = threadPart<EditorState>();
    const qint32 formerNvoColour = state.EditorSettings.nvoFPAColor;
    state.EditorSettings = Setting;
    state.EditorSettings.nvoFPAColor = formerNvoColour; // accepted, never used
    applyAppearance(Setting);
    state.LineHeight = m_box->fontMetrics().height();
    refillThreadWordList();

    m_isReady = false;
    const QString kept = m_box->Text();
    m_box->setUpdatesEnabled(false);
    const auto finish = qScopeGuard([this] {
        m_box->setSelStart(0);
        m_box->setUpdatesEnabled(true);
        m_isReady = true;
    });
    try {
        Messages &messages = threadPart<Messages>();
        state.RtfHeader =
            BuildRtfHeader(sampleRtf(), state.EditorSettings, messages.service()).Header;
        m_box->setSelColoured(coloured(kept));
    } catch (const std::exception &) {
        m_box->setText(kept); // uncoloured is better than lost
    }
}

void CodeEditor::applyAppearance(const RichTextSettings &setting)
{
    m_box->setBackColor(setting.BackColor);
    if (!setting.FontName.isEmpty())
        m_box->setFontName(setting.FontName);
    if (setting.FontSize > 0)
        m_box->setFontSize(setting.FontSize);
    m_box->setFontBold(hasMark(setting.FontStyle, u"b1"));
    m_box->setFontItalic(hasMark(setting.FontStyle, u"i1"));
    m_box->setFontUnderline(hasMark(setting.FontStyle, u"u1"));
}

// What the box writes for two lines in its font; leaves the box empty.
QString CodeEditor::sampleRtf()
{
    m_box->setText(QString());
    m_box->setSelText(u"#GetInfo#\r\n#Another word"_s);
    m_box->setSelStart(0);
    m_box->setSelLength(m_box->TextLength());
    const QString sample = m_box->SelRTF();
    m_box->setText(QString());
    return sample;
}

QString CodeEditor::CodeText() const
{
    return m_box->Text();
}

void CodeEditor::setCodeText(const QString &text)
{
    m_box->setText(text);
}

QString CodeEditor::CodeTextRTF()
{
    m_box->setSelStart(0);
    m_box->setSelLength(m_box->TextLength());
    return m_box->SelRTF();
}

void CodeEditor::setCodeTextRTF(const QString &rtf)
{
    m_box->setSelStart(0);
    m_box->setSelLength(m_box->TextLength());
    m_box->setSelRTF(rtf);
}

QString CodeEditor::GetColorText(const QString &Text) const
{
    return ColourText(threadColouring(), withCrLf(Text), threadPart<EditorState>().RtfHeader,
                      false);
}

void CodeEditor::Clear()
{
    m_box->setText(QString());
}

ColouredText CodeEditor::coloured(const QString &text, bool firstLineIsComment) const
{
    return colouredText(threadColouring(), text, firstLineIsComment,
                        threadPart<EditorState>().EditorSettings);
}

} // namespace ORVTListview
