#include <ORVTListview/RichTextBox.h>

#include "base/EventGuard.h"
#include "base/TextSearch.h"
#include "rtf/RtfReader.h"
#include "rtf/RtfWriter.h"
#include "widgets/box/BoxAccess.h"
#include "widgets/box/BoxColours.h"
#include "widgets/box/BoxLayers.h"
#include "widgets/box/BoxLayout.h"
#include "widgets/box/BoxLines.h"
#include "widgets/box/BoxMarks.h"
#include "widgets/box/BoxParts.h"
#include "widgets/box/BoxSink.h"
#include "widgets/box/BoxSource.h"
#include "widgets/box/KeptView.h"
#include "widgets/input/DragWatch.h"

#include <QtCore/QScopedValueRollback>
#include <QtCore/QSignalBlocker>
#include <QtGui/QTextDocument>
#include <QtWidgets/QMenu>

#include <algorithm>
#include <exception>
#include <limits>
#include <utility>

namespace ORVTListview {

namespace {

qint32 advance(qint32 position, qint32 length)
{
    const qint32 first = std::max(position, 0);
    return first + std::clamp(length, 0, std::numeric_limits<qint32>::max() - first);
}

// While the toolkit clears a document it sets the list of its cursors aside: one that a
// slot destroys meanwhile is written to later, and one that it makes stays behind when
// text changes. So everybody hears of it when it is done.
void clearOnce(QTextDocument &document)
{
    const int length = document.characterCount();
    const bool hadLines = document.blockCount() > 1;
    {
        const QSignalBlocker quiet(&document);
        document.clear();
    }
    Q_EMIT document.contentsChange(0, length, 0);
    if (hadLines)
        Q_EMIT document.blockCountChanged(document.blockCount());
    Q_EMIT document.contentsChanged();
}

// Again where a receiver has put a text of its own in.
void clearAll(QTextDocument &document)
{
    clearOnce(document);
    if (!document.isEmpty())
        clearOnce(document);
}

// Into an empty document, without the colours where they come late.
ColouredLines putParts(const RichTextBox::NextPart &next, bool isLate, QTextDocument &document,
                       BoxFormats &formats)
{
    ColouredLines lines;
    QTextCursor cursor(&document);
    BoxSink sink(cursor, formats);
    for (auto part = next(); part; part = next()) {
        int line = lines.count();
        lines.append(*part);
        if (!isLate) {
            if (line > 0)
                sink.lineEnd();
            writeColoured(*part, formats.base(), sink);
            continue;
        }
        for (; line < lines.count(); ++line) {
            if (line > 0)
                sink.lineEnd();
            sink.text(lines.textOf(line), formats.base());
        }
    }
    return lines;
}

// Without the document's margin, which the toolkit adds to its last line.
QRectF rowOf(const QTextBlock &block, QRectF place)
{
    if (block.isValid() && !block.next().isValid())
        place.setHeight(place.height() - block.document()->documentMargin());
    return place;
}

} // namespace

RichTextBox::RichTextBox(QWidget *parent)
    : QPlainTextEdit(parent)
{
    installBoxAccess();
    auto *text = new QTextDocument(this);
    text->setDefaultFont(font());
    auto *layout = new BoxLayout(*text, *viewport());
    layout->setPlaceOf([this](const QTextBlock &block) { return blockBoundingGeometry(block); });
    text->setDocumentLayout(layout);
    setDocument(text);
    d = std::make_unique<BoxParts>(*text, *viewport(), plainCommands(*this));
    d->layers = new BoxLayers(
        *this, *viewport(),
        {[this] {
             const QTextBlock first = firstVisibleBlock();
             const QRectF place = blockBoundingGeometry(first).translated(contentOffset());
             return ShownLine{first, rowOf(first, place), {}};
         },
         [this](const QTextBlock &block) { return rowOf(block, blockBoundingRect(block)); },
         [this](const QTextBlock &block) {
             const auto *lines = qobject_cast<BoxLayout *>(document()->documentLayout());
             return lines ? lines->reachBeyond(block) : 1;
         },
         [this](const QTextBlock &block) {
             const auto *lines = qobject_cast<BoxLayout *>(document()->documentLayout());
             return lines && lines->mayReachBeyond(block);
         },
         [this](int beside, int below) { setViewportMargins(beside, 0, 0, below); },
         [this](const QFont &shown) { document()->setDefaultFont(shown); }});
    DragWatch::installOn(*viewport());
    d->late.setFirstShown([this] { return firstVisibleBlock().blockNumber(); });
    setUndoRedoEnabled(false);
    setLineWrapMode(NoWrap);
    d->formats.setFont(font());
    connect(this, &QPlainTextEdit::textChanged, this, &RichTextBox::noteTextChange);
}

RichTextBox::~RichTextBox()
{
    // The toolkit goes on with both when a receiver destroys the box.
    d->surface.letGo();
    if (auto *layout = qobject_cast<BoxLayout *>(document()->documentLayout()))
        layout->setPlaceOf({}); // whoever keeps the document may still change it
    for (QMenu *menu : findChildren<QMenu *>(Qt::FindDirectChildrenOnly)) {
        menu->setParent(nullptr);
        menu->deleteLater();
    }
}

RichTextBox::Changing::Changing(RichTextBox &box)
    : m_box(&box)
{
    ++box.d->changing;
}

RichTextBox::Changing::~Changing()
{
    if (!m_box || --m_box->d->changing > 0)
        return;
    if (const auto replaced = std::exchange(m_box->d->replaced, {}))
        replaced->tellFrom(*m_box); // may destroy it
    if (m_box && std::exchange(m_box->d->hasChanged, false))
        raiseEvent(*m_box, &RichTextBox::Change);
}

// What changes the text past the box, such as a screen reader, is at work still.
void RichTextBox::noteChange()
{
    Q_EMIT edited();
    if (d->changing > 0)
        d->hasChanged = true;
    else if (!std::exchange(d->isChangeQueued, true))
        QMetaObject::invokeMethod(this, &RichTextBox::raiseQueuedChange, Qt::QueuedConnection);
}

void RichTextBox::raiseQueuedChange()
{
    d->isChangeQueued = false;
    raiseEvent(*this, &RichTextBox::Change);
}

// The toolkit tells of edits that changed nothing, too.
void RichTextBox::noteTextChange()
{
    const quint64 changes = d->text.changeCount();
    if (changes == d->announcedChanges)
        return;
    d->announcedChanges = changes;
    if (!d->isQuiet && !d->keepsText)
        noteChange();
}

// The new text is read at once: nobody feels that here, but in the key that asks first.
void RichTextBox::replaceAll(const std::function<void()> &insert)
{
    const Changing changing(*this);
    d->announceChange(true);
    if (!d->replaced)
        d->replaced.emplace(*this);
    {
        const QScopedValueRollback quiet(d->isQuiet, true);
        ++d->replacements;
        d->late.stop();
        const QSignalBlocker unheard(this);
        insert();
        d->text.sharedText();
    }
    d->announcedChanges = d->text.changeCount();
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
    return d->text.text();
}

void RichTextBox::setText(const QString &text)
{
    replaceAll([&] {
        clearAll(*document());
        QTextCursor cursor(document());
        BoxMarks::insert(cursor, text, {});
        setSelStart(0);
    });
}

QString RichTextBox::TextRTF() const
{
    d->late.giveAll();
    RtfWriter writer(d->formats.base());
    readBox(*document(), d->formats, 0, document()->characterCount() - 1, writer);
    return writer.finish();
}

void RichTextBox::setTextRTF(const QString &rtf)
{
    replaceAll([&] {
        clearAll(*document());
        setSelRTF(rtf);
    });
}

qint32 RichTextBox::SelStart() const
{
    return d->text.toBox(textCursor().selectionStart());
}

void RichTextBox::setSelStart(qint32 position)
{
    const int place = d->text.toDocument(position);
    select(place, place);
}

qint32 RichTextBox::SelLength() const
{
    const QTextCursor cursor = textCursor();
    return d->text.toBox(cursor.selectionEnd()) - d->text.toBox(cursor.selectionStart());
}

void RichTextBox::setSelLength(qint32 length)
{
    const int start = textCursor().selectionStart();
    select(start, d->text.toDocument(advance(d->text.toBox(start), length)));
}

QString RichTextBox::SelText() const
{
    return textOf(textCursor());
}

QString RichTextBox::textOf(const QTextCursor &selection) const
{
    return d->text.read(selection.selectionStart(), selection.selectionEnd());
}

void RichTextBox::setSelText(const QString &text)
{
    const Changing changing(*this);
    d->announceChange(textCursor());
    QTextCursor cursor = textCursor();
    const QTextCharFormat format = BoxFormats::formatAt(cursor);
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    BoxMarks::insert(cursor, text, format);
    cursor.endEditBlock();
    const int place = d->text.whole(cursor.position());
    select(place, place);
}

QString RichTextBox::SelRTF() const
{
    RtfWriter writer(d->formats.base());
    const QTextCursor cursor = textCursor();
    d->late.give(cursor.selectionStart(), cursor.selectionEnd());
    readBox(*document(), d->formats, cursor.selectionStart(), cursor.selectionEnd(), writer);
    return writer.finish();
}

void RichTextBox::setSelRTF(const QString &rtf)
{
    if (!isRtf(rtf)) {
        setSelText(rtf);
        return;
    }
    const Changing changing(*this);
    d->announceChange(textCursor());
    QTextCursor cursor = textCursor();
    {
        BoxSink sink(cursor, d->formats);
        readRtf(rtf, sink);
    }
    const int place = d->text.whole(cursor.position());
    select(place, place);
}

qint32 RichTextBox::SelColor() const
{
    d->late.giveAround(textCursor());
    return std::max(0, BoxFormats::colour(BoxFormats::formatAt(textCursor())));
}

void RichTextBox::setSelColor(qint32 colour)
{
    const BoxParts::KeepingText keeping(*d);
    const qint32 shown = colour == ColouredText::automatic
                             ? colour
                             : Colours::fromColor(Colours::toColor(colour, paletteAround()));
    QTextCursor cursor = textCursor();
    d->late.give(cursor.selectionStart(), cursor.selectionEnd());
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
    return d->text.lineOf(Position);
}

qint32 RichTextBox::Find(const QString &Text, qint32 Start, qint32 End, qint32 Options)
{
    const TextSearch how{(Options & FindWholeWord) != 0, (Options & FindMatchCase) != 0};
    const QString &text = d->text.text();
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
    return d->text.length();
}

qint32 RichTextBox::lineCount() const
{
    return d->text.lineCount();
}

qint32 RichTextBox::lineStart(qint32 line) const
{
    return d->text.lineStart(line);
}

QString RichTextBox::lineText(qint32 line) const
{
    return d->text.lineText(line);
}

QString RichTextBox::textRange(qint32 start, qint32 length) const
{
    return d->text.range(start, length);
}

void RichTextBox::setColoured(const ColouredText &text)
{
    using Lines = LateColours::Lines;
    LateColours::Allowed *const allowed = d->late.takePermission();
    const bool mayBeLate = allowed && LateColours::suits(text.text);
    const bool mayKeepFormer = mayBeLate && allowed->lines() == Lines::Former;
    const bool isShort = text.text.size() < LateColours::shortest;
    replaceAll([&] {
        // A cleared document forgets its formats, and is faster than one emptied.
        BoxLines lines(*document(), d->formats, text);
        const bool keepsLines =
            mayKeepFormer ? lines.keepSameText(d->text.text()) : lines.keepUnchanged();
        const bool isLate = isShort ? mayKeepFormer && keepsLines : mayBeLate;
        if (!keepsLines)
            clearAll(*document());
        ColouredText now = lines.replacement();
        if (isLate)
            now.runs.clear();
        QTextCursor cursor = lines.toReplace();
        const quint64 replacement = d->replacements;
        {
            BoxSink sink(cursor, d->formats);
            writeColoured(now, d->formats.base(), sink);
        }
        if (d->replacements != replacement)
            return; // a receiver of the document has put in another text
        d->text.know(text.text, mayKeepFormer);
        if (isLate)
            d->late.begin(ColouredLines(text),
                          mayKeepFormer && keepsLines ? Lines::Former : Lines::New, *allowed);
        if (isShort)
            d->late.giveAll();
        select(0, 0);
    });
}

void RichTextBox::setColoured(const NextPart &next)
{
    LateColours::Allowed *const allowed = d->late.takePermission();
    std::exception_ptr failure;
    replaceAll([&] {
        clearAll(*document());
        const quint64 replacement = d->replacements;
        ColouredLines lines;
        try {
            lines = putParts(next, allowed, *document(), d->formats);
            if (d->replacements != replacement)
                return; // a receiver of the document has put in another text
            d->text.know(lines.text(), false);
        } catch (...) { // half a text would pass for a whole one
            failure = std::current_exception();
            clearAll(*document());
        }
        if (allowed && !failure)
            d->late.begin(std::move(lines), LateColours::Lines::New, *allowed);
        select(0, 0);
    });
    if (failure)
        std::rethrow_exception(failure);
}

void RichTextBox::setSelColoured(const ColouredText &text)
{
    const Changing changing(*this);
    d->announceChange(textCursor());
    QTextCursor cursor = textCursor();
    {
        BoxSink sink(cursor, d->formats);
        writeColoured(text, d->formats.base(), sink);
    }
    const int place = d->text.whole(cursor.position());
    select(place, place);
}

void RichTextBox::recolour(qint32 start, const ColouredText &text)
{
    const BoxParts::KeepingText keeping(*d);
    const auto end = start + static_cast<qint32>(text.text.size());
    if (d->late.areWaiting())
        d->late.give(d->text.toDocument(start), d->text.toDocument(end));
    BoxColours::apply(*document(), d->text, start, text);
}

bool RichTextBox::keepsText() const
{
    return d->keepsText;
}

ColouredText RichTextBox::coloured(qint32 start, qint32 length) const
{
    if (d->late.areWaiting())
        d->late.give(d->text.toDocument(start), d->text.toDocument(advance(start, length)));
    return BoxColours::read(*document(), d->text, start, length);
}

} // namespace ORVTListview
