#include "editor/CaretCommands.h"

#include "editor/rules/structure/BlockWalk.h"
#include "editor/rules/structure/Brackets.h"
#include "widgets/box/KeptView.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextBlock>

#include <algorithm>
#include <optional>

namespace ORVTListview {
namespace {

struct Place
{
    qint32 line = 0;
    qint32 offset = 0;
};

std::optional<BlockWord> blockWordAt(const QString &line, qsizetype offset)
{
    for (const BlockWord &word : blockWordsOf(line)) {
        if (offset >= word.place.start && offset <= word.place.end())
            return word;
    }
    return {};
}

// Forwards the next word of the block, backwards its first.
std::optional<Place> partnerOf(const BlockWord &from, QTextBlock line)
{
    const bool isForwards = from.kind != BlockWord::EndIf;
    BlockWalk walk(isForwards ? BlockWalk::Direction::Forwards : BlockWalk::Direction::Backwards);
    QList<BlockWord> words = blockWordsOf(line.text());
    words.removeIf([&](const BlockWord &other) {
        return isForwards ? other.place.start <= from.place.start
                          : other.place.start >= from.place.start;
    });
    for (;;) {
        const QList<BlockWord> found = walk.read(words);
        if (!found.isEmpty() && (isForwards || walk.isDone())) {
            const BlockWord &word = isForwards ? found.first() : found.last();
            return Place{line.blockNumber(), word.place.start};
        }
        line = isForwards ? line.next() : line.previous();
        if (!line.isValid())
            return {};
        words = blockWordsOf(line.text());
    }
}

std::optional<Place> partnerAt(const QTextBlock &line, int offset)
{
    if (const auto word = blockWordAt(line.text(), offset))
        return partnerOf(*word, line);
    const auto bracket = bracketAt(line.text(), offset);
    if (!bracket || !bracket->partner)
        return {};
    return Place{line.blockNumber(), static_cast<qint32>(*bracket->partner)};
}

} // namespace

void CaretCommands::goTo(qint32 line, qint32 offset) const
{
    const RichTextBox::Changing changing(m_tools.box);
    const KeptView view(m_tools.box);
    m_tools.box.setSelStart(m_tools.box.lineStart(line) + offset);
}

void CaretCommands::goToLine(qint32 line) const
{
    if (mayGoIn(m_tools.box))
        goTo(std::clamp(line, 1, m_tools.box.lineCount()) - 1, 0);
}

bool CaretCommands::goToPartner() const
{
    if (!mayGoIn(m_tools.box))
        return false;
    const QTextCursor caret = m_tools.box.textCursor();
    const std::optional<Place> partner = partnerAt(caret.block(), caret.positionInBlock());
    if (partner)
        goTo(partner->line, partner->offset);
    return partner.has_value();
}

} // namespace ORVTListview
