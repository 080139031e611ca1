#include "editor/rules/colouring/TouchedLine.h"

#include "base/TextRules.h"

#include <algorithm>

namespace ORVTListview {
namespace {

// The line as it was and as it would be, walked through side by side.
class Merge
{
public:
    Merge(ColouredText &line, const ColouredText &former)
        : m_line(line)
        , m_former(former)
    {
    }

    void takeUpTo(qsizetype end, bool isTouched)
    {
        while (m_place < end) {
            const qsizetype length =
                std::min({end - m_place, leftOf(m_line, m_new), leftOf(m_former, m_old)});
            const ColouredText::Run run =
                (isTouched ? m_line.runs[m_new.run] : m_former.runs[m_old.run]);
            m_merged.appendRun(length, run.colour);
            if (!isTouched)
                m_line.text.replace(m_place, length, m_former.text.constData() + m_place, length);
            m_place += length;
            m_new.used += length;
            m_old.used += length;
        }
    }

    void finish() { m_line.runs = m_merged.runs; }

private:
    struct Walk
    {
        qsizetype run = 0;
        qsizetype used = 0; // of the run
    };

    static qsizetype leftOf(const ColouredText &text, Walk &walk)
    {
        while (walk.used == text.runs[walk.run].length) {
            ++walk.run;
            walk.used = 0;
        }
        return text.runs[walk.run].length - walk.used;
    }

    ColouredText &m_line;
    const ColouredText &m_former;
    ColouredText m_merged; // its runs
    Walk m_new;
    Walk m_old;
    qsizetype m_place = 0;
};

} // namespace

void TouchedLine::keepTheRest(ColouredText &line, const ColouredText &former) const
{
    const QString text = former.text;
    Merge merge(line, former);
    for (const auto &[from, to] : m_places) {
        qsizetype start = std::clamp<qsizetype>(from, 0, text.size());
        while (start > 0 && !isBlank(text[start - 1]))
            --start;
        qsizetype end = std::clamp<qsizetype>(to, 0, text.size());
        while (end < text.size() && !isBlank(text[end]))
            ++end;
        while (end < text.size() && isBlank(text[end]))
            ++end;
        merge.takeUpTo(start, false);
        merge.takeUpTo(end, true);
    }
    merge.takeUpTo(text.size(), false);
    merge.finish();
}

} // namespace ORVTListview
