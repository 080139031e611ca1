#include "editor/rules/colouring/PartsInTurn.h"

#include "base/SharedText.h"
#include "editor/rules/colouring/TextParts.h"

#include <QtCore/QThread>

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>

namespace ORVTListview {
namespace {

// A few milliseconds for one processor.
constexpr qsizetype partLength = qsizetype{128} * 1024;

QList<QStringView> shortParts(QStringView text)
{
    return partsAt(text, [text](qsizetype start) -> std::optional<qsizetype> {
        if (text.size() - start <= partLength)
            return std::nullopt;
        return start + partLength;
    });
}

} // namespace

PartsInTurn::PartsInTurn(const ColourEngine &engine, QStringView text, Colouring colouring)
    : m_engine(engine)
    , m_colouring(std::move(colouring))
    , m_texts(shortParts(text))
    , m_coloured(static_cast<std::size_t>(m_texts.size()))
    , m_promises(m_coloured.size())
    , m_isTaken(m_coloured.size())
{
}

PartsInTurn::~PartsInTurn()
{
    m_isOver = true;
}

PartsInTurn::Colouring PartsInTurn::finished(const RichTextSettings &settings, Spelling spelling)
{
    return [settings, spelling](const ColourEngine &engine, QStringView lines) {
        return ColouredPart{finishedText(engine, lines, settings, spelling), 0, {}};
    };
}

PartsInTurn::Colouring PartsInTurn::coloured(const RichTextSettings &settings)
{
    return [settings](const ColourEngine &engine, QStringView lines) {
        return colouredPart(engine, lines, false, settings);
    };
}

void PartsInTurn::begin()
{
    constexpr int most = 3;
    const int others = std::min(most, QThread::idealThreadCount() - 1);
    if (!m_engine.isForThreads())
        return;
    try {
        for (int i = 0; i < others; ++i)
            m_others.push_back(std::async(std::launch::async, [this] { colourFrom(1); }));
    } catch (const std::system_error &) { // no thread is to be had
    }
}

void PartsInTurn::colourFrom(std::size_t first)
{
    for (std::size_t part = first; part < m_coloured.size() && !m_isOver; ++part)
        colourUntaken(part);
}

void PartsInTurn::colourUntaken(std::size_t part)
{
    if (m_isTaken[part].test_and_set())
        return;
    try {
        colour(part);
    } catch (...) {
        m_promises[part].set_exception(std::current_exception());
    }
}

void PartsInTurn::colour(std::size_t part)
{
    m_coloured[part] = m_colouring(m_engine, m_texts[static_cast<qsizetype>(part)]);
    m_promises[part].set_value();
}

bool PartsInTurn::differsMostlyFrom(const SharedText &other)
{
    constexpr std::size_t fewest = 5; // less than two of them are in common
    if (m_coloured.size() < fewest)
        return false;
    for (const std::size_t part : {std::size_t{0}, m_coloured.size() - 1}) {
        if (!m_isTaken[part].test_and_set())
            colour(part);
    }
    const QString &front = m_coloured.front().lines.text;
    const QString &back = m_coloured.back().lines.text;
    return other.size() < std::max(front.size(), back.size()) ||
           (other.mid(0, front.size()) != front &&
            other.mid(other.size() - back.size(), back.size()) != back);
}

std::optional<ColouredText> PartsInTurn::next()
{
    if (m_next == m_coloured.size())
        return std::nullopt;
    if (m_next == 0)
        begin();
    colourUntaken(m_next);
    try {
        m_promises[m_next].get_future().get();
    } catch (...) {
        m_isOver = true;
        m_others.clear(); // waits: whoever hears of the failure may change what they read
        throw;
    }
    ColouredPart part = std::move(m_coloured[m_next++]);
    part.goOnIn(m_colour);
    m_colour = part.lastWord.value_or(m_colour);
    return std::move(part.lines);
}

} // namespace ORVTListview
