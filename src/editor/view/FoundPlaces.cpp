#include "editor/view/FoundPlaces.h"

#include "find/rules/ProgramSearch.h"
#include "widgets/box/BoxMarks.h"

#include <QtGui/QTextDocument>

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr int linesOfPart = 1000;
constexpr int linesAtOnce = 5000;

QString textOf(const QTextBlock &line)
{
    QString text = line.text();
    BoxMarks::restore(line, text);
    return text;
}

} // namespace

FoundPlaces::FoundPlaces(QTextDocument &document)
    : m_document(document)
{
    connect(&m_timer, &QTimer::timeout, this, &FoundPlaces::goOn);
    connect(&document, &QObject::destroyed, &m_timer, &QTimer::stop);
}

void FoundPlaces::look(const QString &wanted, TextSearch how, int start)
{
    disconnect(&m_document, &QTextDocument::contentsChange, this, nullptr);
    m_timer.stop();
    m_parts.clear();
    m_count = 0;
    m_unread = 0;
    m_wanted = wanted;
    m_how = how;
    m_lineEnds = static_cast<int>(wanted.count("\r\n"_L1));
    if (isLooking()) {
        connect(&m_document, &QTextDocument::contentsChange, this, &FoundPlaces::noteChange);
        m_lineCount = m_document.blockCount();
        insertUnread(0, m_lineCount);
        m_next = partOf(m_document.findBlock(start).blockNumber()).part;
        readSome(linesAtOnce);
    }
    Q_EMIT wantedChanged();
    Q_EMIT changed();
}

int FoundPlaces::length() const
{
    return static_cast<int>(m_wanted.size()) - m_lineEnds;
}

QList<int> FoundPlaces::on(const QTextBlock &line) const
{
    QString text = textOf(line);
    const qsizetype last = text.size();
    QTextBlock next = line;
    for (int i = 0; i < m_lineEnds && next.next().isValid(); ++i) {
        next = next.next();
        text += "\r\n"_L1 + textOf(next);
    }
    QList<int> places;
    qsizetype place = findInProgram(text, m_wanted, 0, m_how);
    while (place >= 0 && place <= last) {
        places.append(line.position() + static_cast<int>(place));
        place = findInProgram(text, m_wanted, place + m_wanted.size(), m_how);
    }
    return places;
}

FoundPlaces::Place FoundPlaces::partOf(int line) const
{
    Place place;
    while (place.part + 1 < m_parts.size() && place.firstLine + m_parts[place.part].lines <= line)
        place.firstLine += m_parts[place.part++].lines;
    return place;
}

void FoundPlaces::insertUnread(std::size_t at, int lines)
{
    const int parts = std::max(1, lines / linesOfPart);
    std::vector<Part> inserted(static_cast<std::size_t>(parts));
    for (int i = 0; i < parts; ++i)
        inserted[static_cast<std::size_t>(i)].lines =
            i + 1 < parts ? linesOfPart : lines - (parts - 1) * linesOfPart;
    m_unread += inserted.size();
    m_parts.insert(m_parts.begin() + static_cast<std::ptrdiff_t>(at), inserted.begin(),
                   inserted.end());
}

void FoundPlaces::forget(Part &part)
{
    if (!std::exchange(part.isRead, false))
        return;
    ++m_unread;
    m_count -= std::exchange(part.count, 0);
    part.found.clear();
}

void FoundPlaces::noteChange(int from, int, int added)
{
    const int lastPlace = m_document.characterCount() - 1;
    const int after = m_document.findBlock(std::min(from + added, lastPlace)).blockNumber();
    const int first = m_document.findBlock(std::min(from, lastPlace)).blockNumber();
    const int shift = m_document.blockCount() - m_lineCount;
    const int begin = std::max(0, first - m_lineEnds); // one may begin earlier
    replaceLines(begin, std::max(1, after + 1 - begin - shift), after + 1 - begin);
    m_lineCount = m_document.blockCount();
    m_timer.start(0);
}

// All parts that hold some of the lines become one, and that several when it is large.
void FoundPlaces::replaceLines(int first, int before, int after)
{
    const std::size_t begin = partOf(first).part;
    const std::size_t end = partOf(first + before - 1).part + 1;
    int lines = after - before;
    for (std::size_t i = begin; i < end; ++i) {
        lines += m_parts[i].lines;
        forget(m_parts[i]);
    }
    const bool fits = end - begin == 1 && 0 < lines && lines < 2 * linesOfPart;
    if (fits) {
        m_parts[begin].lines = lines;
    } else {
        m_unread -= end - begin;
        m_parts.erase(m_parts.begin() + static_cast<std::ptrdiff_t>(begin),
                      m_parts.begin() + static_cast<std::ptrdiff_t>(end));
        if (lines > 0 || m_parts.empty())
            insertUnread(begin, std::max(lines, 0));
    }
    m_next = begin;
}

void FoundPlaces::goOn()
{
    readSome(linesAtOnce);
    Q_EMIT changed();
}

void FoundPlaces::readSome(int lines)
{
    if (m_next >= m_parts.size())
        m_next = 0;
    int firstLine = 0;
    for (std::size_t i = 0; i < m_next; ++i)
        firstLine += m_parts[i].lines;
    while (m_unread > 0 && lines > 0) {
        Part &part = m_parts[m_next];
        if (!part.isRead) {
            read(part, firstLine);
            lines -= part.lines;
        }
        firstLine += part.lines;
        if (++m_next == m_parts.size()) {
            m_next = 0;
            firstLine = 0;
        }
    }
    if (m_unread > 0)
        m_timer.start(0);
    else
        m_timer.stop();
}

void FoundPlaces::read(Part &part, int firstLine)
{
    part.isRead = true;
    --m_unread;
    QTextBlock line = m_document.findBlockByNumber(firstLine);
    for (int i = 0; i < part.lines && line.isValid(); ++i, line = line.next()) {
        const qsizetype found = on(line).size();
        if (found == 0)
            continue;
        part.found.append(i);
        part.count += found;
    }
    m_count += part.count;
}

std::optional<qsizetype> FoundPlaces::numberOf(int position) const
{
    if (!isLooking())
        return {};
    const QTextBlock line = m_document.findBlock(position);
    const auto [own, firstLine] = partOf(line.blockNumber());
    qsizetype number = 0;
    for (std::size_t i = 0; i <= own; ++i) {
        if (!m_parts[i].isRead)
            return {};
        number += i < own ? m_parts[i].count : 0;
    }
    for (const int found : m_parts[own].found) {
        const QTextBlock other = m_document.findBlockByNumber(firstLine + found);
        const QList<int> places = on(other);
        if (other != line) {
            number += places.size();
            continue;
        }
        const qsizetype index = places.indexOf(position);
        return index < 0 ? std::nullopt : std::optional(number + index + 1);
    }
    return {};
}

std::optional<int> FoundPlaces::firstIn(const Part &part, int firstLine, int position) const
{
    for (const int found : part.found) {
        const QTextBlock line = m_document.findBlockByNumber(firstLine + found);
        if (line.position() + line.length() <= position)
            continue;
        for (const int place : on(line)) {
            if (place >= position)
                return place;
        }
    }
    return {};
}

std::optional<int> FoundPlaces::firstFrom(int position) const
{
    if (!isLooking())
        return {};
    Place place = partOf(m_document.findBlock(position).blockNumber());
    for (std::size_t i = 0; i <= m_parts.size(); ++i) {
        const Part &part = m_parts[place.part];
        if (!part.isRead)
            return {};
        if (const auto found = firstIn(part, place.firstLine, position))
            return found;
        place.firstLine += part.lines;
        if (++place.part == m_parts.size()) {
            place = {};
            position = 0;
        }
    }
    return {};
}

// The first one of each of as many parts of the document.
QList<int> FoundPlaces::lines(int most) const
{
    const qint64 all = std::max(1, m_lineCount);
    QList<int> lines;
    qint64 wanted = 0; // the line from which the next one counts
    int firstLine = 0;
    for (const Part &part : m_parts) {
        auto found = part.found.cbegin();
        for (;;) {
            found = std::lower_bound(found, part.found.cend(), wanted - firstLine);
            if (found == part.found.cend())
                break;
            const qint64 row = (qint64{firstLine} + *found) * most / all;
            lines.append(firstLine + *found);
            wanted = ((row + 1) * all + most - 1) / most;
        }
        firstLine += part.lines;
    }
    return lines;
}

} // namespace ORVTListview
