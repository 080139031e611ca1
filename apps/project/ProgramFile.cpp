#include "project/ProgramFile.h"

#include "base/Windows1252.h"
#include "project/LineMatch.h"
#include "project/ProjectError.h"
#include "project/ProjectTexts.h"
#include "project/TextFile.h"

#include <QtCore/QHash>
#include <QtCore/QStringConverter>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <optional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

using enum ProgramFile::Encoding;

constexpr QChar markCharacter = u'\uFEFF';

struct RawLine
{
    QStringView text;
    QStringView end; // empty for the last line
};

QStringView lineEndAt(QStringView text, qsizetype at)
{
    if (text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n')
        return text.sliced(at, 2);
    const bool isEnd =
        text[at] == u'\r' || text[at] == u'\n' || text[at] == QChar::ParagraphSeparator;
    return isEnd ? text.sliced(at, 1) : QStringView();
}

QList<RawLine> rawLines(QStringView text)
{
    QList<RawLine> lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size();) {
        const QStringView end = lineEndAt(text, i);
        if (end.isEmpty()) {
            ++i;
            continue;
        }
        lines.append({text.sliced(start, i - start), end});
        i += end.size();
        start = i;
    }
    lines.append({text.sliced(start), {}});
    return lines;
}

QString usualLineEnd(const QList<RawLine> &lines)
{
    QHash<QStringView, qsizetype> counts;
    QStringView usual = u"\n";
    for (const RawLine &line : lines) {
        if (!line.end.isEmpty() && ++counts[line.end] > counts.value(usual))
            usual = line.end;
    }
    return usual.toString();
}

QStringConverter::Encoding converterOf(ProgramFile::Encoding encoding)
{
    if (encoding == Utf16LittleEndian)
        return QStringConverter::Utf16LE;
    return encoding == Utf16BigEndian ? QStringConverter::Utf16BE : QStringConverter::Utf8;
}

constexpr auto asItIs = QStringConverter::Flags(QStringConverter::Flag::Stateless) |
                        QStringConverter::Flag::ConvertInitialBom;

// Nothing when the bytes are not of that encoding.
std::optional<QString> decoded(QByteArrayView bytes, ProgramFile::Encoding encoding)
{
    QStringDecoder decode(converterOf(encoding), asItIs);
    QString text = decode(bytes);
    const bool isWhole = encoding == Utf8 || bytes.size() % 2 == 0;
    if (decode.hasError() || !isWhole || !text.isValidUtf16())
        return std::nullopt;
    return text;
}

[[noreturn]] void failToEncode(const QString &raw, qsizetype at, const QString &name)
{
    const auto line = rawLines(QStringView(raw).first(at)).size();
    if (!raw.isValidUtf16())
        throw Error(TextNotUtf8, u"ProgramFile"_s,
                    ProjectTexts::tr("%1: line %2 holds half a character")
                        .arg(name, QString::number(line)));
    throw Error(TextNotEncodable, u"ProgramFile"_s,
                ProjectTexts::tr("%1: line %2 holds \"%3\", which the file's encoding "
                                 "(Windows-1252) does not have")
                    .arg(name, QString::number(line), raw.at(at)));
}

qsizetype firstHalfCharacter(QStringView text)
{
    qsizetype at = 0;
    while (at < text.size()) {
        const bool isPair =
            text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        if (text[at].isSurrogate() && !isPair)
            break;
        at += isPair ? 2 : 1;
    }
    return at;
}

// Puts the lines of a new text together, the old ones as they came.
class Composing
{
public:
    Composing(const QList<RawLine> &before, const QList<qsizetype> &partners)
        : m_before(before)
        , m_partners(partners)
        , m_usualEnd(usualLineEnd(before))
    {
    }

    QString compose(const LineViews &now)
    {
        QString raw;
        for (qsizetype i = 0; i < now.size(); ++i) {
            const qsizetype partner = m_partners.at(i);
            raw += partner >= 0 ? m_before.at(partner).text : now.at(i);
            if (i + 1 < now.size())
                raw += endOf(i);
        }
        return raw;
    }

private:
    // A changed line stands in the place of the one behind the last that stayed.
    QStringView endOf(qsizetype line)
    {
        const qsizetype partner = m_partners.at(line);
        m_place = partner >= 0 ? partner : m_place + 1;
        const bool isReplaced = partner >= 0 || (m_place < m_before.size() && isFree(line));
        const QStringView end = isReplaced ? m_before.at(m_place).end : QStringView();
        return end.isEmpty() ? QStringView(m_usualEnd) : end;
    }

    // Whether no later line is the one at the place.
    bool isFree(qsizetype line)
    {
        if (m_next <= line) {
            m_next = line + 1;
            while (m_next < m_partners.size() && m_partners.at(m_next) < 0)
                ++m_next;
        }
        return m_next >= m_partners.size() || m_place < m_partners.at(m_next);
    }

    const QList<RawLine> &m_before;
    const QList<qsizetype> &m_partners;
    const QString m_usualEnd;
    qsizetype m_place = -1;
    qsizetype m_next = 0; // the next line that stayed
};

} // namespace

ProgramFile::ProgramFile(const QByteArray &bytes)
    : m_bytes(bytes)
{
    struct Form
    {
        QByteArrayView mark;
        Encoding encoding = Utf8;
    };
    static constexpr std::array forms{Form{byteOrderMark, Utf8},
                                      Form{"\xFF\xFE", Utf16LittleEndian},
                                      Form{"\xFE\xFF", Utf16BigEndian}, Form{{}, Utf8}};
    for (const Form &form : forms) {
        if (!bytes.startsWith(form.mark))
            continue;
        if (auto text = decoded(QByteArrayView(bytes).sliced(form.mark.size()), form.encoding)) {
            m_raw = *std::move(text);
            m_encoding = form.encoding;
            m_hasMark = !form.mark.isEmpty();
            return;
        }
    }
    m_raw = fromWindows1252(bytes);
    m_encoding = Windows1252; // NOLINT(cppcoreguidelines-prefer-member-initializer)
}

QString ProgramFile::text() const
{
    QStringList lines;
    for (const RawLine &line : rawLines(m_raw))
        lines.append(line.text.toString());
    return lines.join(u"\r\n"_s);
}

QByteArray ProgramFile::with(const QString &now, const QString &shown, const QString &name) const
{
    if (now == shown)
        return m_bytes;
    const QList<RawLine> before = rawLines(m_raw);
    const LineViews shownLines = linesOf(shown);
    const LineViews lines = linesOf(now);
    const bool isKnown = shownLines.size() == before.size();
    const QList<qsizetype> partners =
        isKnown ? matchingLines(shownLines, lines) : QList<qsizetype>(lines.size(), -1);
    return encoded(Composing(before, partners).compose(lines), name);
}

QByteArray ProgramFile::encoded(const QString &raw, const QString &name) const
{
    if (!raw.isValidUtf16())
        failToEncode(raw, firstHalfCharacter(raw), name);
    if (m_encoding == Windows1252) {
        const auto bytes = toWindows1252(raw);
        if (bytes && ProgramFile(*bytes).m_raw == raw)
            return *bytes;
        if (bytes)
            return raw.toUtf8(); // it would be read as something else
        const auto isMissing = [](QChar c) { return !toWindows1252(QStringView(&c, 1)); };
        failToEncode(raw, std::ranges::find_if(raw, isMissing) - raw.begin(), name);
    }
    QStringEncoder encode(converterOf(m_encoding), asItIs);
    // A program's own first character would be taken for a mark.
    const bool needsMark = m_hasMark || raw.startsWith(markCharacter);
    return encode(needsMark ? markCharacter + raw : raw);
}

ProgramFile ProgramFile::inUtf8() const
{
    ProgramFile file;
    file.m_raw = m_raw;
    file.m_hasMark = m_hasMark;
    file.m_bytes = file.encoded(m_raw, {});
    return file;
}

} // namespace ORVTListview
