#include "editor/rules/structure/BlockWords.h"
#include "editor/view/CaretLayer.h"
#include "editor/view/LayerOrder.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/LinePlaces.h"

#include <QtCore/QTimer>
#include <QtGui/QPainter>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>
#include <chrono>
#include <utility>

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

// As it stands at the caret; empty while none is marked.
struct Word
{
    QString text;

    bool touches(const QTextBlock &line) const
    {
        return !text.isEmpty() && line.text().contains(text, Qt::CaseInsensitive);
    }

    friend bool operator==(const Word &, const Word &) = default;
};

class WordUses final : public CaretLayer
{
public:
    WordUses(QPlainTextEdit &box, BoxLayers &layers);

    void paintBelow(QPainter &painter, const ShownLines &lines) override;

private:
    Word wordAtCaret() const;
    void follow() override;
    void forget() override;

    QTimer *const m_rest; // the box's, named WordRest
    Word m_word;
};

WordUses::WordUses(QPlainTextEdit &box, BoxLayers &layers)
    : CaretLayer(box, layers, LayerOrder::wordUses)
    , m_rest(new QTimer(&box))
{
    m_rest->setObjectName(QStringLiteral("WordRest"));
    m_rest->setSingleShot(true);
    m_rest->setInterval(300ms);
    connect(m_rest, &QTimer::timeout, this, [this] { show(m_word, wordAtCaret()); });
}

void WordUses::forget()
{
    m_rest->stop();
    m_word = {};
}

Word WordUses::wordAtCaret() const
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
            return {std::move(text)};
    }
    return {};
}

void WordUses::follow()
{
    const Word word = wordAtCaret();
    if (!m_word.text.isEmpty() && word.text.compare(m_word.text, Qt::CaseInsensitive) == 0)
        return;
    show(m_word, Word());
    if (word.text.isEmpty())
        m_rest->stop();
    else
        m_rest->start();
}

void WordUses::paintBelow(QPainter &painter, const ShownLines &lines)
{
    if (m_word.text.isEmpty())
        return;
    const QTextCursor caret = m_box.textCursor();
    const QColor colour = ViewColours::tinted(ViewColours::groundOf(m_box),
                                              m_box.palette().color(QPalette::Highlight));
    for (const ShownLine &line : lines) {
        if (!m_word.touches(line.block))
            continue;
        const QString text = line.block.text();
        const bool isCaretLine = line.block == caret.block();
        for (const TextPiece &word : wordsOf(text)) {
            const QStringView other = QStringView(text).sliced(word.start, word.length);
            if (other.compare(m_word.text, Qt::CaseInsensitive) != 0 ||
                (isCaretLine && isAt(word, caret.positionInBlock())))
                continue;
            for (const QRectF &place : placesOf(line, word))
                painter.fillRect(place, colour);
        }
    }
}

} // namespace

std::unique_ptr<CaretLayer> wordUseLayer(QPlainTextEdit &box, BoxLayers &layers)
{
    return std::make_unique<WordUses>(box, layers);
}

} // namespace ORVTListview
