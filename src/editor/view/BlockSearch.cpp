#include "editor/view/BlockSearch.h"

#include <QtGui/QTextBlock>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr int linesAtOnce = 1000;
constexpr int linesInPortion = 5000;

} // namespace

BlockSearch::BlockSearch(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, [this] {
        const qsizetype found = m_places.size();
        const bool wasBroken = m_isBroken;
        goOnBothWays(linesInPortion);
        if (m_places.size() != found || m_isBroken != wasBroken)
            Q_EMIT changed();
    });
}

void BlockSearch::clear()
{
    m_timer.stop();
    m_places.clear();
    m_up.reset();
    m_down.reset();
    m_isBroken = false;
}

void BlockSearch::start(const QTextBlock &line, int offset)
{
    clear();
    for (const BlockWord &word : blockWordsOf(line.text())) {
        if (offset < word.place.start || offset > word.place.end())
            continue;
        m_firstLine = m_lastLine = line.blockNumber();
        m_places.append({m_firstLine, word.place});
        if (word.kind != BlockWord::If)
            begin(m_up, BlockWalk::Direction::Backwards, line, word);
        if (word.kind != BlockWord::EndIf)
            begin(m_down, BlockWalk::Direction::Forwards, line, word);
        goOnBothWays(linesAtOnce);
        break;
    }
}

void BlockSearch::begin(std::optional<Way> &way, BlockWalk::Direction direction,
                        const QTextBlock &line, const BlockWord &word)
{
    const bool isForwards = direction == BlockWalk::Direction::Forwards;
    QList<BlockWord> words = blockWordsOf(line.text());
    words.removeIf([&](const BlockWord &other) {
        return isForwards ? other.place.start <= word.place.start
                          : other.place.start >= word.place.start;
    });
    way.emplace(Way{BlockWalk(direction), QTextCursor(line)});
    read(*way, line, words);
    const QTextBlock next = isForwards ? line.next() : line.previous();
    way->next = next.isValid() ? QTextCursor(next) : QTextCursor();
}

void BlockSearch::read(Way &way, const QTextBlock &line, const QList<BlockWord> &words)
{
    const int number = words.isEmpty() ? 0 : line.blockNumber();
    for (const BlockWord &word : way.walk.read(words)) {
        m_places.append({number, word.place});
        m_firstLine = std::min(m_firstLine, number);
        m_lastLine = std::max(m_lastLine, number);
    }
}

void BlockSearch::goOn(std::optional<Way> &way, BlockWalk::Direction direction, int lines)
{
    if (!way)
        return;
    const bool isForwards = direction == BlockWalk::Direction::Forwards;
    QTextBlock line = way->next.isNull() ? QTextBlock() : way->next.block();
    for (; lines > 0 && line.isValid() && !way->walk.isDone(); --lines) {
        read(*way, line, blockWordsOf(line.text()));
        line = isForwards ? line.next() : line.previous();
    }
    way->next = line.isValid() ? QTextCursor(line) : QTextCursor();
    if (!way->walk.isDone() && line.isValid())
        return;
    m_isBroken = m_isBroken || !way->walk.isDone();
    way.reset();
}

void BlockSearch::goOnBothWays(int lines)
{
    goOn(m_up, BlockWalk::Direction::Backwards, lines);
    goOn(m_down, BlockWalk::Direction::Forwards, lines);
    if (m_up || m_down)
        m_timer.start(0);
    else
        m_timer.stop();
}

} // namespace ORVTListview
