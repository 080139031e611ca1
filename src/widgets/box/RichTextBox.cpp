#include <ORVTListview/RichTextBox.h>

#include "base/EventGuard.h"
#include "base/TextSearch.h"
#include "rtf/RtfReader.h"
#include "rtf/RtfWriter.h"
#include "widgets/box/BoxColours.h"
#include "widgets/box/BoxLayers.h"
#include "widgets/box/BoxLayout.h"
#include "widgets/box/BoxLines.h"
#include "widgets/box/BoxMarks.h"
#include "widgets/box/BoxParts.h"
#include "widgets/box/BoxSink.h"
#include "widgets/box/BoxSource.h"
#include "widgets/box/KeptView.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QMenu>

#include <algorithm>
#include <limits>
#include <utility>

namespace ORVTListview {

namespace {

qint32 advance(qint32 position, qint32 length)
{
    const qint32 first = std::max(position, 0);
    return first + std::clamp(length, 0, std::numeric_limits<qint32>::max() - first);
}

} // namespace

RichTextBox::RichTextBox(QWidget *parent)
    : QPlainTextEdit(parent)
{
    auto *text = new QTextDocument(this);
    text->setDefaultFont(font());
    text->setDocumentLayout(new BoxLayout(*text, *viewport()));
    setDocument(text);
    m_parts = std::make_unique<BoxParts>(*text, *viewport(), plainCommands(*this));
    m_parts->layers = new BoxLayers(
        *this, *viewport(),
        {[this] {
             const QTextBlock first = firstVisibleBlock();
             return ShownLine{first, blockBoundingGeometry(first).translated(contentOffset())};
         },
         [this](const QTextBlock &block) { return blockBoundingRect(block); },
         [this](int beside, int below) { setViewportMargins(beside, 0, 0, below); },
         [this](const QFont &shown) { document()->setDefaultFont(shown); }});
    setUndoRedoEnabled(false);
    setLineWrapMode(NoWrap);
    m_parts->formats.setFont(font());
    connect(this, &QPlainTextEdit::textChanged, this, &RichTextBox::noteTextChange);
}

RichTextBox::~RichTextBox()
{
    // The toolkit goes on with both when a receiver destroys the box.
    m_parts->surface.letGo();
    for (QMenu *menu : findChildren<QMenu *>(Qt::FindDirectChildrenOnly)) {
        menu->setParent(nullptr);
        menu->deleteLater();
    }
}

RichTextBox::Changing::Changing(RichTextBox &box)
    : m_box(&box)
{
    ++box.m_parts->changing;
}

RichTextBox::Changing::~Changing()
{
    if (m_box && --m_box->m_parts->changing == 0 &&
        std::exchange(m_box->m_parts->hasChanged, false))
        raiseEvent(*m_box, &RichTextBox::Change);
}

// What changes the text past the box, such as a screen reader, is at work still.
void RichTextBox::noteChange()
{
    Q_EMIT edited();
    if (m_parts->changing > 0)
        m_parts->hasChanged = true;
    else if (!std::exchange(m_parts->isChangeQueued, true))
        QMetaObject::invokeMethod(this, &RichTextBox::raiseQueuedChange, Qt::QueuedConnection);
}

void RichTextBox::raiseQueuedChange()
{
    m_parts->isChangeQueued = false;
    raiseEvent(*this, &RichTextBox::Change);
}

// The toolkit tells of edits that changed nothing, too.
void RichTextBox::noteTextChange()
{
    const quint64 changes = m_parts->text.changeCount();
    if (changes == m_parts->announcedChanges)
        return;
    m_parts->announcedChanges = changes;
    if (!m_parts->isQuiet && !m_parts->keepsText)
        noteChange();
}

// The new text is read at once: nobody feels that here, but in the key that asks first.
void RichTextBox::replaceAll(const std::function<void()> &insert)
{
    const Changing changing(*this);
    m_parts->announceChange(true);
    {
        const QScopedValueRollback quiet(m_parts->isQuiet, true);
        insert();
        m_parts->text.sharedText();
    }
    noteChange();
}

void RichTextBox::select(int anchor, int position)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

QString RichTextBox::Text() const
{
    return m_parts->text.text();
}

void RichTextBox::setText(const QString &text)
{
    replaceAll([&] {
        document()->clear();
        QTextCursor cursor(document());
        BoxMarks::insert(cursor, text, {});
        setSelStart(0);
    });
}

QString RichTextBox::TextRTF() const
{
    RtfWriter writer(m_parts->formats.base());
    readBox(*document(), m_parts->formats, 0, document()->characterCount() - 1, writer);
    return writer.finish();
}

void RichTextBox::setTextRTF(const QString &rtf)
{
    replaceAll([&] {
        document()->clear();
        setSelRTF(rtf);
    });
}

qint32 RichTextBox::SelStart() const
{
    return m_parts->text.toBox(textCursor().selectionStart());
}

void RichTextBox::setSelStart(qint32 position)
{
    const int place = m_parts->text.toDocument(position);
    select(place, place);
}

qint32 RichTextBox::SelLength() const
{
    const QTextCursor cursor = textCursor();
    return m_parts->text.toBox(cursor.selectionEnd()) -
           m_parts->text.toBox(cursor.selectionStart());
}

void RichTextBox::setSelLength(qint32 length)
{
    const int start = textCursor().selectionStart();
    select(start, m_parts->text.toDocument(advance(m_parts->text.toBox(start), length)));
}

QString RichTextBox::SelText() const
{
    return textOf(textCursor());
}

QString RichTextBox::textOf(const QTextCursor &selection) const
{
    return m_parts->text.read(selection.selectionStart(), selection.selectionEnd());
}

void RichTextBox::setSelText(const QString &text)
{
    const Changing changing(*this);
    m_parts->announceChange(textCursor().hasSelection());
    QTextCursor cursor = textCursor();
    const QTextCharFormat format = BoxFormats::formatAt(cursor);
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    BoxMarks::insert(cursor, text, format);
    cursor.endEditBlock();
    const int place = m_parts->text.whole(cursor.position());
    select(place, place);
}

QString RichTextBox::SelRTF() const
{
    RtfWriter writer(m_parts->formats.base());
    const QTextCursor cursor = textCursor();
    readBox(*document(), m_parts->formats, cursor.selectionStart(), cursor.selectionEnd(), writer);
    return writer.finish();
}

void RichTextBox::setSelRTF(const QString &rtf)
{
    if (!isRtf(rtf)) {
        setSelText(rtf);
        return;
    }
    const Changing changing(*this);
    m_parts->announceChange(textCursor().hasSelection());
    QTextCursor cursor = textCursor();
    {
        BoxSink sink(cursor, m_parts->formats);
        readRtf(rtf, sink);
    }
    const int place = m_parts->text.whole(cursor.position());
    select(place, place);
}

qint32 RichTextBox::SelColor() const
{
    return std::max(0, BoxFormats::colour(BoxFormats::formatAt(textCursor())));
}

void RichTextBox::setSelColor(qint32 colour)
{
    const BoxParts::KeepingText keeping(*m_parts);
    const qint32 shown = colour == ColouredText::automatic
                             ? colour
                             : Colours::fromColor(Colours::toColor(colour, paletteAround()));
    QTextCursor cursor = textCursor();
    if (cursor.hasSelection()) {
        BoxColours::paint(*document(), cursor.selectionStart(), cursor.selectionEnd(), shown);
        return;
    }
    QTextCharFormat format = cursor.charFormat();
    BoxFormats::setColour(format, shown);
    setCurrentCharFormat(format);
}

qint32 RichTextBox::GetLineFromChar(qint32 Position) const
{
    return m_parts->text.lineOf(Position);
}

qint32 RichTextBox::Find(const QString &Text, qint32 Start, qint32 End, qint32 Options)
{
    const TextSearch how{(Options & FindWholeWord) != 0, (Options & FindMatchCase) != 0};
    const QString &text = m_parts->text.text();
    const qsizetype end = End == -1 ? text.size() : End;
    const auto place = static_cast<qint32>(findText(text, Text, Start, end, how));
    if (place >= 0 && (Options & FindNoHighlight) == 0) {
        const KeptView view(*this);
        setSelStart(place);
        setSelLength(static_cast<qint32>(Text.size()));
    }
    return place;
}

qint32 RichTextBox::TextLength() const
{
    return m_parts->text.length();
}

qint32 RichTextBox::lineCount() const
{
    return m_parts->text.lineCount();
}

qint32 RichTextBox::lineStart(qint32 line) const
{
    return m_parts->text.lineStart(line);
}

QString RichTextBox::lineText(qint32 line) const
{
    return m_parts->text.lineText(line);
}

QString RichTextBox::textRange(qint32 start, qint32 length) const
{
    return m_parts->text.range(start, length);
}

void RichTextBox::setColoured(const ColouredText &text)
{
    replaceAll([&] {
        // A cleared document forgets its formats, and is faster than one emptied.
        BoxLines lines(*document(), m_parts->formats, text);
        if (!lines.keepUnchanged())
            document()->clear();
        QTextCursor cursor = lines.toReplace();
        {
            BoxSink sink(cursor, m_parts->formats);
            putColoured(lines.replacement(), m_parts->formats.base(), sink);
        }
        select(0, 0);
    });
}

void RichTextBox::setSelColoured(const ColouredText &text)
{
    const Changing changing(*this);
    m_parts->announceChange(textCursor().hasSelection());
    QTextCursor cursor = textCursor();
    {
        BoxSink sink(cursor, m_parts->formats);
        putColoured(text, m_parts->formats.base(), sink);
    }
    const int place = m_parts->text.whole(cursor.position());
    select(place, place);
}

void RichTextBox::recolour(qint32 start, const ColouredText &text)
{
    const BoxParts::KeepingText keeping(*m_parts);
    BoxColours::apply(*document(), m_parts->text, start, text);
}

bool RichTextBox::keepsText() const
{
    return m_parts->keepsText;
}

ColouredText RichTextBox::coloured(qint32 start, qint32 length) const
{
    return BoxColours::read(*document(), m_parts->text, start, length);
}

} // namespace ORVTListview
