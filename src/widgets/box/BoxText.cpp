#include "widgets/box/BoxText.h"

#include "widgets/box/BoxMarks.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>

namespace ORVTListview {
namespace {

// A block begins behind one separator for each line before it, which the box
// counts as two characters.
qint32 startOf(const QTextBlock &block)
{
    return block.position() + block.blockNumber();
}

} // namespace

BoxText::BoxText(QTextDocument &document)
    : QObject(&document)
    , m_document(document)
    , m_length(documentLength())
    , m_keptText{ChangedRanges(document)}
    , m_keptSharedText{ChangedRanges(document)}
{
    document.documentLayout(); // a document without one announces no changes
    connect(&document, &QTextDocument::contentsChange, this, &BoxText::noteChange);
}

const BoxText &BoxText::of(const QTextDocument &document)
{
    return *document.findChild<BoxText *>({}, Qt::FindDirectChildrenOnly);
}

int BoxText::documentLength() const
{
    return m_document.characterCount() - 1;
}

qint32 BoxText::length() const
{
    return documentLength() + m_document.blockCount() - 1;
}

qint32 BoxText::lineCount() const
{
    return m_document.blockCount();
}

// Most questions are about places near each other: with as many lines before it as before
// the last answer, a place is mostly in the line found there. Else from that answer, in
// steps that grow.
QTextBlock BoxText::blockAt(qint32 position) const
{
    const QTextBlock guess =
        m_document.findBlock(std::clamp(position - m_nearLine, 0, documentLength()));
    const qint32 start = startOf(guess);
    if (start <= position && position <= start + guess.length()) {
        m_nearLine = guess.blockNumber();
        return guess;
    }
    const auto begins = [&](int line) {
        return startOf(m_document.findBlockByNumber(line)) <= position;
    };
    int low = std::min(m_nearLine, m_document.blockCount() - 1);
    int high = low + 1;
    for (int step = 1; low > 0 && !begins(low); step *= 2) {
        high = low;
        low = std::max(0, low - step);
    }
    for (int step = 1; high < m_document.blockCount() && begins(high); step *= 2) {
        low = high;
        high += step;
    }
    high = std::min(high, m_document.blockCount());
    while (high - low > 1) {
        const int middle = low + (high - low) / 2;
        (begins(middle) ? low : high) = middle;
    }
    m_nearLine = low;
    return m_document.findBlockByNumber(low);
}

qint32 BoxText::lineOf(qint32 position) const
{
    return blockAt(position).blockNumber();
}

qint32 BoxText::lineStart(qint32 line) const
{
    return startOf(m_document.findBlockByNumber(std::clamp(line, 0, lineCount() - 1)));
}

QString BoxText::lineText(qint32 line) const
{
    const QTextBlock block = m_document.findBlockByNumber(std::clamp(line, 0, lineCount() - 1));
    QString text = block.text();
    BoxMarks::restore(block, text);
    return text;
}

qint32 BoxText::toBox(int documentPosition) const
{
    return documentPosition + m_document.findBlock(documentPosition).blockNumber();
}

int BoxText::toDocument(qint32 position) const
{
    const QTextBlock block = blockAt(position);
    const int column = std::clamp(position - startOf(block), 0, block.length() - 1);
    return whole(block.position() + column);
}

int BoxText::whole(int documentPosition) const
{
    const bool inPair = documentPosition > 0 &&
                        m_document.characterAt(documentPosition).isLowSurrogate() &&
                        m_document.characterAt(documentPosition - 1).isHighSurrogate();
    return inPair ? documentPosition - 1 : documentPosition;
}

QString BoxText::read(int from, int to) const
{
    if (to - from > m_length / 2)
        return readAtOnce(from, to);
    return readLines(from, to);
}

// A third of the time that one line after the other takes, for the whole text.
QString BoxText::readAtOnce(int from, int to) const
{
    const QString all = m_document.toRawText();
    if (BoxMarks::mayBeIn(all))
        return readLines(from, to);
    const QStringView raw = QStringView(all).sliced(from, to - from);
    QString result;
    result.reserve(raw.size() + m_document.blockCount());
    qsizetype start = 0;
    for (qsizetype end = 0; (end = raw.indexOf(QChar::ParagraphSeparator, start)) >= 0;
         start = end + 1)
        result.append(raw.sliced(start, end - start)).append(u"\r\n");
    return result.append(raw.sliced(start));
}

QString BoxText::readLines(int from, int to) const
{
    QString result;
    result.reserve(to - from);
    for (QTextBlock block = m_document.findBlock(from); block.isValid(); block = block.next()) {
        QString line = block.text();
        BoxMarks::restore(block, line);
        const int start = std::max(0, from - block.position());
        const int end = to - block.position();
        result += QStringView(line).first(std::min<qsizetype>(end, line.size())).sliced(start);
        if (end <= line.size())
            break;
        result += u"\r\n";
    }
    return result;
}

QString BoxText::range(qint32 start, qint32 length) const
{
    const qint32 first = std::clamp(start, 0, this->length());
    const qint32 last = first + std::clamp(length, 0, this->length() - first);
    return read(toDocument(first), toDocument(last));
}

const QString &BoxText::text() const
{
    if (!m_keptText.isRight()) {
        if (hasChangedMostly(m_keptText))
            m_text = read(0, m_length);
        else
            carryOut(changesSince(m_keptText));
        m_keptText.becomeRight();
    }
    return m_text;
}

// The text is long, so it is not moved about for each of several changes.
void BoxText::carryOut(const QList<Change> &changes) const
{
    if (changes.size() == 1) {
        const Change &only = changes.constFirst();
        m_text.replace(only.start, only.length, only.text);
        return;
    }
    QString result;
    result.reserve(length());
    QStringView rest = m_text;
    for (const Change &change : changes) {
        const qsizetype before = change.start - result.size();
        result.append(rest.first(before)).append(change.text);
        rest = rest.sliced(before + change.length);
    }
    m_text = result.append(rest);
}

const SharedText &BoxText::sharedText() const
{
    if (m_keptSharedText.isRight())
        return m_sharedText;
    if (hasChangedMostly(m_keptSharedText)) {
        m_sharedText = SharedText(text());
    } else {
        SharedText result = m_sharedText;
        for (const Change &change : changesSince(m_keptSharedText))
            result = result.replaced(change.start, change.length, change.text);
        m_sharedText = result;
    }
    m_keptSharedText.becomeRight();
    return m_sharedText;
}

// A text that did not go in as it is stays unknown.
void BoxText::know(const QString &text, bool isOtherState)
{
    if (text.size() != length() || text.contains(QChar(u'\0')))
        return;
    const SharedText shared(text); // there may be no memory for it
    m_sharedText = isOtherState ? shared.sharedWith(m_sharedText) : shared;
    m_text = text;
    m_keptText.becomeRight();
    m_keptSharedText.becomeRight();
}

void BoxText::noteChange(int from, int removed, int added)
{
    ++m_changeCount;
    m_length = documentLength();
    for (Kept *kept : {&m_keptText, &m_keptSharedText})
        kept->changed.note(from, removed, added);
}

bool BoxText::hasChangedMostly(const Kept &kept) const
{
    int unchanged = m_length;
    for (const ChangedRanges::Range &range : kept.changed.ranges())
        unchanged -= range.to - range.from;
    return !kept.isKnown || unchanged < m_length / 2;
}

// With which, one after the other from the front, the text that was read is right again.
QList<BoxText::Change> BoxText::changesSince(const Kept &kept) const
{
    QList<Change> changes;
    for (const ChangedRanges::Range &range : kept.changed.ranges()) {
        const qint32 start = toBox(range.from);
        const qint32 length = toBox(range.to) - start - range.grown - range.lines;
        changes.append({start, length, read(range.from, range.to)});
    }
    return changes;
}

} // namespace ORVTListview
