#include "project/analysis/ProgramAnalysis.h"

#include "base/TextRules.h"
#include "project/analysis/LineParser.h"

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

bool isUsed(const ProgramToken &token)
{
    return token.kind == TokenKind::Name || token.kind == TokenKind::Unknown;
}

} // namespace

void ProgramAnalysis::setWords(const ProgramWords &words)
{
    m_words = words;
    m_names.clear();
    m_numbers.clear();
    m_lines.setAllUnread();
    m_nextToRead = 0;
    restart();
}

void ProgramAnalysis::setOtherUses(const OtherUses &uses)
{
    if (m_otherUses == uses)
        return;
    m_otherUses = uses;
    restart();
}

void ProgramAnalysis::reset(qint32 lines)
{
    m_lines = {};
    m_names.clear();
    m_numbers.clear();
    m_lines.insert(0, std::max(0, lines));
    m_nextToRead = 0;
    restart();
}

void ProgramAnalysis::replaceLines(qint32 first, qint32 removed, qint32 added)
{
    first = std::clamp(first, 0, m_lines.count());
    removed = std::clamp(removed, 0, m_lines.count() - first);
    for (qint32 line = first; line < first + removed; ++line)
        forget(m_lines.at(line));
    m_lines.remove(first, removed);
    m_lines.insert(first, std::max(0, added));
    m_nextToRead = std::min(m_nextToRead, first);
    restart();
}

void ProgramAnalysis::forget(const LineFacts &facts)
{
    for (const NameUse &use : facts.uses) {
        Name &name = m_names[static_cast<std::size_t>(use.name)];
        --(use.isWrite ? name.writes : name.reads);
    }
}

bool ProgramAnalysis::work(qint32 lines)
{
    if (m_isDone)
        return true;
    lines -= readLines(lines);
    if (lines <= 0)
        return false;
    if (m_walk.line == 0)
        startWalk(); // all names have been counted
    for (; lines > 0 && m_walk.line < m_lines.count(); --lines)
        walkLine(m_walk.line++);
    if (m_walk.line < m_lines.count())
        return false;
    finishWalk();
    return true;
}

void ProgramAnalysis::finish()
{
    constexpr qint32 slice = 1 << 20;
    while (!work(slice)) {
    }
}

qint32 ProgramAnalysis::readLines(qint32 most)
{
    qint32 read = 0;
    while (read < most) {
        const qint32 line = m_lines.firstUnread(m_nextToRead);
        if (line < 0)
            break;
        readLine(line);
        m_nextToRead = line + 1;
        ++read;
    }
    return read;
}

void ProgramAnalysis::readLine(qint32 line)
{
    const QString text = m_text(line);
    ParsedLine parsed = parseLine(text, m_words);
    LineFacts facts;
    facts.problems = std::move(parsed.problems);
    facts.blocks = blockWordsOf(text);
    for (qsizetype i = 0; i < parsed.tokens.size(); ++i) {
        const ProgramToken &token = parsed.tokens[i];
        if (!isUsed(token))
            continue;
        const QStringView word = QStringView(text).sliced(token.place.start, token.place.length);
        const bool isWrite = std::binary_search(parsed.written.cbegin(), parsed.written.cend(), i);
        const qint32 number = numberOf(word, token.wordClass);
        Name &name = m_names[static_cast<std::size_t>(number)];
        ++(isWrite ? name.writes : name.reads);
        facts.uses.append({number, isWrite, token.place});
    }
    m_lines.setRead(line, std::move(facts));
    ++m_linesRead;
}

qint32 ProgramAnalysis::numberOf(QStringView name, WordClass wordClass)
{
    const QString folded = foldedCase(name);
    const auto known = m_numbers.constFind(folded);
    if (known != m_numbers.cend())
        return *known;
    const auto number = static_cast<qint32>(m_names.size());
    m_numbers.insert(folded, number);
    m_names.push_back({wordClass, 0, 0, folded});
    return number;
}

void ProgramAnalysis::restart()
{
    m_isDone = false;
    m_walk = {};
}

void ProgramAnalysis::startWalk()
{
    m_walk.suspects.reserve(m_names.size());
    for (const Name &name : m_names)
        m_walk.suspects.push_back(suspicion(name));
}

Fault ProgramAnalysis::suspicion(const Name &name) const
{
    const bool isVariable = name.wordClass == WordClass::Variable;
    const bool isWritable = isVariable || name.wordClass == WordClass::Output;
    if (isWritable && name.reads > 0 && name.writes == 0 &&
        !m_otherUses.written.contains(name.folded))
        return Fault::NeverWritten;
    if (isVariable && name.writes > 0 && name.reads == 0 && !m_otherUses.read.contains(name.folded))
        return Fault::NeverRead;
    return Fault::UnknownName;
}

void ProgramAnalysis::walkLine(qint32 line)
{
    const LineFacts &facts = m_lines.at(line);
    for (const LineProblem &problem : facts.problems)
        add(line, problem);
    walkBlocks(line, facts);
    walkUses(line, facts);
}

void ProgramAnalysis::walkBlocks(qint32 line, const LineFacts &facts)
{
    for (const BlockWord &word : facts.blocks) {
        if (word.kind == BlockWord::If)
            m_walk.open.push_back({line, word.place});
        else if (word.kind == BlockWord::Else)
            walkElse(line, word);
        else if (m_walk.open.empty())
            add(line, problemAt(Fault::EndifWithoutIf, line, word.place));
        else
            m_walk.open.pop_back();
    }
}

void ProgramAnalysis::walkElse(qint32 line, const BlockWord &word)
{
    if (m_walk.open.empty())
        add(line, problemAt(Fault::ElseWithoutIf, line, word.place));
    else if (std::exchange(m_walk.open.back().hasElse, true))
        add(line, problemAt(Fault::SecondElse, line, word.place));
}

// What is never written, or never read, is told once, where it comes first.
void ProgramAnalysis::walkUses(qint32 line, const LineFacts &facts)
{
    for (const NameUse &use : facts.uses) {
        Fault &suspect = m_walk.suspects[static_cast<std::size_t>(use.name)];
        if (suspect != Fault::UnknownName)
            add(line, problemAt(std::exchange(suspect, Fault::UnknownName), line, use.place));
    }
}

void ProgramAnalysis::finishWalk()
{
    qsizetype told = 0;
    for (const OpenIf &open : m_walk.open) {
        if (++told <= mostProblems)
            m_walk.problems.append(
                {open.line + 1, problemAt(Fault::IfWithoutEndif, open.line, open.place)});
    }
    m_walk.count += static_cast<qsizetype>(m_walk.open.size());
    if (!m_walk.open.empty())
        m_walk.faults.insert(Fault::IfWithoutEndif);
    std::stable_sort(m_walk.problems.begin(), m_walk.problems.end(),
                     [](const ProgramProblem &a, const ProgramProblem &b) {
                         return a.line != b.line ? a.line < b.line
                                                 : a.found.place.start < b.found.place.start;
                     });
    m_problems = m_walk.problems.first(std::min(m_walk.problems.size(), mostProblems));
    m_problemCount = m_walk.count;
    m_faults = m_walk.faults;
    m_walk = {};
    m_isDone = true;
}

void ProgramAnalysis::add(qint32 line, const LineProblem &problem)
{
    m_walk.faults.insert(problem.fault);
    if (++m_walk.count <= mostProblems)
        m_walk.problems.append({line + 1, problem});
}

LineProblem ProgramAnalysis::problemAt(Fault fault, qint32 line, TextPiece place) const
{
    return {fault, place, m_text(line).mid(place.start, place.length)};
}

OtherUses ProgramAnalysis::uses() const
{
    OtherUses uses;
    for (const Name &name : m_names) {
        if (name.reads > 0)
            uses.read.insert(name.folded);
        if (name.writes > 0)
            uses.written.insert(name.folded);
    }
    return uses;
}

QList<UsePlace> ProgramAnalysis::usesOf(QStringView name)
{
    QList<UsePlace> places;
    const auto number = m_numbers.constFind(foldedCase(name));
    for (qint32 line = 0; number != m_numbers.cend() && line < m_lines.count(); ++line) {
        for (const NameUse &use : std::as_const(m_lines.at(line).uses)) {
            if (use.name == *number)
                places.append({line + 1, use.place, use.isWrite});
        }
    }
    return places;
}

} // namespace ORVTListview
