#include "project/importing/SeparatedText.h"

#include "base/Windows1252.h"
#include "project/TextFile.h"

#include <QtCore/QHash>
#include <QtCore/QStringConverter>

#include <limits>
#include <utility>

namespace ORVTListview {

namespace {

// Reads one cell after the other.
class CellReader
{
public:
    CellReader(const QString &text, QChar separator)
        : m_text(text)
        , m_separator(separator)
    {
    }

    bool isAtEnd() const { return m_place >= m_text.size(); }

    QStringList readRow()
    {
        QStringList row{readCell()};
        while (!isAtEnd() && m_text.at(m_place) == m_separator) {
            ++m_place;
            row.append(readCell());
        }
        passLineEnd();
        return row;
    }

private:
    // What stands behind a closing quotation mark belongs to the cell, too.
    QString readCell()
    {
        QString cell;
        if (!isAtEnd() && m_text.at(m_place) == u'"') {
            ++m_place;
            cell = readQuoted();
        }
        const qsizetype start = m_place;
        while (!isAtEnd() && m_text.at(m_place) != m_separator && !isLineEnd(m_text.at(m_place)))
            ++m_place;
        return cell + m_text.sliced(start, m_place - start);
    }

    QString readQuoted()
    {
        QString cell;
        for (; !isAtEnd(); ++m_place) {
            if (m_text.at(m_place) == u'"') {
                ++m_place;
                if (isAtEnd() || m_text.at(m_place) != u'"')
                    return cell;
            }
            cell += m_text.at(m_place);
        }
        return cell;
    }

    void passLineEnd()
    {
        if (!isAtEnd() && m_text.at(m_place) == u'\r')
            ++m_place;
        if (!isAtEnd() && m_text.at(m_place) == u'\n')
            ++m_place;
    }

    static bool isLineEnd(QChar c) { return c == u'\r' || c == u'\n'; }

    const QString &m_text;
    const QChar m_separator;
    qsizetype m_place = 0;
};

QList<QStringList> firstRows(const QString &text, QChar separator, qsizetype most)
{
    QList<QStringList> rows;
    CellReader reader(text, separator);
    while (!reader.isAtEnd() && rows.size() < most) {
        const QStringList row = reader.readRow();
        if (row.size() > 1 || !row.constFirst().isEmpty())
            rows.append(row);
    }
    return rows;
}

} // namespace

TextEncoding guessedEncoding(const QByteArray &bytes)
{
    if (bytes.startsWith("\xFF\xFE"))
        return TextEncoding::Utf16LittleEndian;
    if (bytes.startsWith("\xFE\xFF"))
        return TextEncoding::Utf16BigEndian;
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = utf8(bytes);
    return utf8.hasError() || text.contains(QChar::ReplacementCharacter) ? TextEncoding::Windows1252
                                                                         : TextEncoding::Utf8;
}

QString decodedText(const QByteArray &bytes, TextEncoding encoding)
{
    if (encoding == TextEncoding::Windows1252)
        return fromWindows1252(bytes);
    const auto converter = encoding == TextEncoding::Utf16LittleEndian ? QStringConverter::Utf16LE
                           : encoding == TextEncoding::Utf16BigEndian  ? QStringConverter::Utf16BE
                                                                       : QStringConverter::Utf8;
    QStringDecoder decode(converter, QStringConverter::Flag::Stateless);
    return decode(bytes);
}

QChar guessedSeparator(const QString &text)
{
    constexpr qsizetype most = 50;
    QChar best = u',';
    qsizetype bestRows = 0;
    for (const QChar separator : {u',', u';', u'\t'}) {
        QHash<qsizetype, qsizetype> lengths; // to the number of rows that have it
        for (const QStringList &row : firstRows(text, separator, most))
            lengths[row.size()] += row.size() > 1;
        for (const qsizetype rows : std::as_const(lengths)) {
            if (rows > bestRows) {
                best = separator;
                bestRows = rows;
            }
        }
    }
    return best;
}

QList<QStringList> separatedCells(const QString &text, QChar separator)
{
    return firstRows(text, separator, std::numeric_limits<qsizetype>::max());
}

} // namespace ORVTListview
