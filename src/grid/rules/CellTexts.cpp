#include "grid/rules/CellTexts.h"

#include "base/TextCutter.h"

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

bool hasLineEnd(const QString &cell)
{
    return cell.contains(u'\n') || cell.contains(u'\r');
}

QString quoted(QString cell)
{
    cell.replace(u'"', u"\"\""_s);
    return u'"' + cell + u'"';
}

// Where a letter stands next, looked for once for the places up to it.
class NextLetter
{
public:
    NextLetter(QStringView text, QChar letter)
        : m_text(text)
        , m_letter(letter)
    {
    }

    // The text's end where there is none.
    qsizetype from(qsizetype place)
    {
        if (place < m_from || m_at < place) {
            m_from = place;
            const qsizetype found = m_text.indexOf(m_letter, place);
            m_at = found < 0 ? m_text.size() : found;
        }
        return m_at;
    }

private:
    const QStringView m_text;
    const QChar m_letter;
    qsizetype m_from = 0; // for places from here
    qsizetype m_at = -1;
};

// Reads one cell after the other.
class TabbedReader
{
public:
    explicit TabbedReader(QStringView text)
        : m_text(text)
        , m_tab(text, u'\t')
        , m_feed(text, u'\n')
        , m_return(text, u'\r')
        , m_mark(text, u'"')
        , m_cutter(text)
    {
    }

    CellBlock read()
    {
        CellBlock cells;
        while (m_place < m_text.size())
            cells.append(readRow(cells.isEmpty() ? 0 : cells.constLast().size()));
        return cells;
    }

private:
    // Most rows are as long as the one before.
    QStringList readRow(qsizetype likely)
    {
        QStringList row;
        row.reserve(likely);
        row.append(readCell());
        while (pass(u'\t'))
            row.append(readCell());
        pass(u'\r');
        pass(u'\n');
        return row;
    }

    QString readCell()
    {
        const bool isQuoted = isAt(m_place, u'"');
        const qsizetype end = isQuoted ? endOfQuoted() : -1;
        return end >= 0 ? readQuoted(end) : readPlain();
    }

    // A quotation mark that no other one closes before the cell's end is a letter.
    qsizetype endOfQuoted()
    {
        qsizetype at = m_mark.from(m_place + 1);
        while (isAt(at + 1, u'"'))
            at = m_mark.from(at + 2);
        return at < m_text.size() && cellEnd(at) == at + 1 ? at : -1;
    }

    QString readQuoted(qsizetype end)
    {
        QString cell = m_text.sliced(m_place + 1, end - m_place - 1).toString();
        cell.replace(u"\"\""_s, u"\""_s);
        m_place = end + 1;
        return cell;
    }

    QString readPlain()
    {
        const qsizetype start = std::exchange(m_place, cellEnd(m_place));
        return m_cutter.cut(start, m_place - start);
    }

    qsizetype cellEnd(qsizetype from)
    {
        return std::min({m_tab.from(from), m_feed.from(from), m_return.from(from)});
    }

    bool isAt(qsizetype place, QChar letter) const
    {
        return place < m_text.size() && m_text.at(place) == letter;
    }

    bool pass(QChar letter)
    {
        const bool isThere = isAt(m_place, letter);
        m_place += isThere ? 1 : 0;
        return isThere;
    }

    const QStringView m_text;
    NextLetter m_tab;
    NextLetter m_feed;
    NextLetter m_return;
    NextLetter m_mark;
    TextCutter m_cutter;
    qsizetype m_place = 0;
};

QString htmlLines(const QString &text)
{
    QString html = text.toHtmlEscaped();
    return html.replace(u"\r\n"_s, u"\n"_s).replace(u'\n', u"<br>"_s);
}

} // namespace

QString tabbedText(const CellBlock &cells)
{
    QString text;
    for (QStringList row : cells) {
        for (QString &cell : row) {
            if (cell.contains(u'\t') || hasLineEnd(cell) || cell.startsWith(u'"'))
                cell = quoted(cell);
        }
        text += row.join(u'\t') + u'\n';
    }
    return text;
}

CellBlock cellsOfTabbedText(const QString &text)
{
    return TabbedReader(text).read();
}

QString commaText(const CellBlock &cells)
{
    QString text;
    for (QStringList row : cells) {
        for (QString &cell : row) {
            if (cell.contains(u',') || cell.contains(u'"') || hasLineEnd(cell))
                cell = quoted(cell);
        }
        text += row.join(u',') + u"\r\n"_s;
    }
    return text;
}

QString htmlTable(const CellBlock &cells, qsizetype heads)
{
    QString html = u"<table>\n"_s;
    for (qsizetype row = 0; row < cells.size(); ++row) {
        const QString tag = row < heads ? u"th"_s : u"td"_s;
        html += u"<tr>"_s;
        for (const QString &cell : cells.at(row))
            html += u"<%1>"_s.arg(tag) + htmlLines(cell) + u"</%1>"_s.arg(tag);
        html += u"</tr>\n"_s;
    }
    return html + u"</table>\n"_s;
}

CellBlock fittedBlock(CellBlock cells, qsizetype rows, qsizetype columns)
{
    qsizetype widest = 0;
    for (const QStringList &row : cells)
        widest = std::max(widest, row.size());
    const bool fits = !cells.isEmpty() && widest > 0 && rows > 0 && columns > 0 &&
                      rows % cells.size() == 0 && columns % widest == 0;
    if (!fits)
        return cells;
    CellBlock fitted;
    for (qsizetype row = 0; row < rows; ++row) {
        QStringList line;
        for (qsizetype column = 0; column < columns; ++column)
            line.append(cells.at(row % cells.size()).value(column % widest));
        fitted.append(line);
    }
    return fitted;
}

} // namespace ORVTListview
