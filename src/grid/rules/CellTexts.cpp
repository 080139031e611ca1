#include "grid/rules/CellTexts.h"

#include <algorithm>

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

// Reads one cell after the other.
class TabbedReader
{
public:
    explicit TabbedReader(const QString &text)
        : m_text(text)
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
        while (m_place < m_text.size() && m_text.at(m_place) == u'\t') {
            ++m_place;
            row.append(readCell());
        }
        passLineEnd();
        return row;
    }

    QString readCell()
    {
        const bool isQuoted = m_place < m_text.size() && m_text.at(m_place) == u'"';
        const qsizetype end = isQuoted ? endOfQuoted() : -1;
        return end >= 0 ? readQuoted(end) : readPlain();
    }

    // A quotation mark that no other one closes before the cell's end is a letter.
    qsizetype endOfQuoted() const
    {
        for (qsizetype at = m_place + 1; at < m_text.size(); ++at) {
            if (m_text.at(at) != u'"')
                continue;
            if (at + 1 < m_text.size() && m_text.at(at + 1) == u'"')
                ++at;
            else
                return at + 1 == m_text.size() || isEnd(m_text.at(at + 1)) ? at : -1;
        }
        return -1;
    }

    QString readQuoted(qsizetype end)
    {
        QString cell = m_text.mid(m_place + 1, end - m_place - 1);
        cell.replace(u"\"\""_s, u"\""_s);
        m_place = end + 1;
        return cell;
    }

    QString readPlain()
    {
        const qsizetype start = m_place;
        while (m_place < m_text.size() && !isEnd(m_text.at(m_place)))
            ++m_place;
        return m_text.mid(start, m_place - start);
    }

    void passLineEnd()
    {
        const bool isReturn = m_place < m_text.size() && m_text.at(m_place) == u'\r';
        m_place += isReturn ? 1 : 0;
        const bool isFeed = m_place < m_text.size() && m_text.at(m_place) == u'\n';
        m_place += isFeed ? 1 : 0;
    }

    static bool isEnd(QChar c) { return c == u'\t' || c == u'\n' || c == u'\r'; }

    const QString &m_text;
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

CellBlock fittedBlock(const CellBlock &cells, qsizetype rows, qsizetype columns)
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
