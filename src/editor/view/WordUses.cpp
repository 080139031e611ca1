#include "editor/view/WordUses.h"

#include "editor/view/LayerOrder.h"
#include "editor/view/LinePlaces.h"
#include "editor/view/ViewColours.h"

#include <QtGui/QPainter>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>
#include <chrono>

namespace ORVTListview {

using namespace std::chrono_literals;

namespace {

bool holdsLetter(QStringView word)
{
    return std::any_of(word.begin(), word.end(), [](QChar c) { return c.isLetter(); });
}

bool isAt(const TextPiece &word, qsizetype caret)
{
    return word.start <= caret && caret <= word.end();
}

} // namespace

WordUses::WordUses(QPlainTextEdit &box, BoxLayers &layers)
    : CaretLayer(box, layers, LayerOrder::wordUses)
    , m_rest(new QTimer(&box))
{
    m_rest->setObjectName(QStringLiteral("WordRest"));
    m_rest->setSingleShot(true);
    m_rest->setInterval(300ms);
    connect(m_rest, &QTimer::timeout, this, [this] { show(wordAtCaret()); });
}

void WordUses::forget()
{
    m_rest->stop();
    m_word.clear();
}

QString WordUses::wordAtCaret() const
{
    const QTextCursor caret = m_box.textCursor();
    const QString line = caret.block().text();
    const int offset = caret.positionInBlock();
    for (const BlockWord &word : blockWordsOf(line)) {
        if (isAt(word.place, offset))
            return {};
    }
    for (const TextPiece &word : wordsOf(line)) {
        QString text = line.sliced(word.start, word.length);
        if (isAt(word, offset) && holdsLetter(text))
            return text;
    }
    return {};
}

void WordUses::follow()
{
    const QString word = wordAtCaret();
    if (!m_word.isEmpty() && word.compare(m_word, Qt::CaseInsensitive) == 0)
        return;
    show({});
    if (word.isEmpty())
        m_rest->stop();
    else
        m_rest->start();
}

void WordUses::show(const QString &word)
{
    if (word == m_word)
        return;
    const QString former = std::exchange(m_word, word);
    if (!layers())
        return;
    layers()->updateLines([&](const QTextBlock &block) {
        const QString text = block.text();
        return (!word.isEmpty() && text.contains(word, Qt::CaseInsensitive)) ||
               (!former.isEmpty() && text.contains(former, Qt::CaseInsensitive));
    });
}

void WordUses::paintBelow(QPainter &painter, const ShownLines &lines)
{
    if (m_word.isEmpty())
        return;
    const QTextCursor caret = m_box.textCursor();
    const QColor colour = ViewColours::tinted(ViewColours::groundOf(m_box),
                                              m_box.palette().color(QPalette::Highlight));
    for (const ShownLine &line : lines) {
        const QString text = line.block.text();
        if (!text.contains(m_word, Qt::CaseInsensitive))
            continue;
        const bool isCaretLine = line.block == caret.block();
        for (const TextPiece &word : wordsOf(text)) {
            const QStringView other = QStringView(text).sliced(word.start, word.length);
            if (other.compare(m_word, Qt::CaseInsensitive) != 0 ||
                (isCaretLine && isAt(word, caret.positionInBlock())))
                continue;
            for (const QRectF &place : placesOf(line, word))
                painter.fillRect(place, colour);
        }
    }
}

} // namespace ORVTListview
