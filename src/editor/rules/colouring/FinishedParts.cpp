#include "editor/rules/colouring/FinishedParts.h"

#include "editor/rules/colouring/LineColouring.h"
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

FinishedParts::FinishedParts(const ColourEngine &engine, QStringView text,
                             const RichTextSettings &settings)
    : m_engine(engine)
    , m_settings(settings)
    , m_texts(shortParts(text))
    , m_finished(static_cast<std::size_t>(m_texts.size()))
    , m_promises(m_finished.size())
    , m_isTaken(m_finished.size())
{
}

FinishedParts::~FinishedParts()
{
    m_isOver = true;
}

void FinishedParts::begin()
{
    constexpr int most = 3;
    const int others = std::min(most, QThread::idealThreadCount() - 1);
    if (!m_engine.isForThreads())
        return;
    try {
        for (int i = 0; i < others; ++i)
            m_others.push_back(std::async(std::launch::async, [this] { finishFrom(1); }));
    } catch (const std::system_error &) { // no thread is to be had
    }
}

void FinishedParts::finishFrom(std::size_t first)
{
    for (std::size_t part = first; part < m_finished.size() && !m_isOver; ++part)
        finish(part);
}

void FinishedParts::finish(std::size_t part)
{
    if (m_isTaken[part].test_and_set())
        return;
    try {
        m_finished[part] =
            finishedText(m_engine, m_texts[static_cast<qsizetype>(part)], m_settings);
        m_promises[part].set_value();
    } catch (...) {
        m_promises[part].set_exception(std::current_exception());
    }
}

std::optional<ColouredText> FinishedParts::next()
{
    if (m_next == m_finished.size())
        return std::nullopt;
    if (m_next == 0)
        begin();
    finish(m_next);
    try {
        m_promises[m_next].get_future().get();
    } catch (...) {
        m_isOver = true;
        m_others.clear(); // waits: whoever hears of the failure may change what they read
        throw;
    }
    return std::move(m_finished[m_next++]);
}

} // namespace ORVTListview
