#include "project/TableEdit.h"

#include "project/JsonEdit.h"
#include "project/LineMatch.h"
#include "project/ProjectColumns.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <limits>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct RowMember
{
    QString name;
    QVariant value; // invalid for none
};

// What the file may say of a row; `number` from 1 is what data is when left out.
QList<RowMember> membersOf(const ProjectRow &row, LwType type, qsizetype number)
{
    QList<RowMember> members;
    const QList<ProjectColumn> &columns = projectColumns(type);
    for (qsizetype column = 0; column < columns.size(); ++column)
        members.append({columns.at(column).member, row.cellsOfFile().value(column)});
    if (isVocabularyType(type)) {
        const bool isSaid = row.isDataGiven || row.data != number;
        members.append({u"data"_s, isSaid ? QVariant(row.data) : QVariant()});
    }
    return members;
}

QByteArray written(const RowMember &member)
{
    return jsonText(member.name) + ": " + jsonText(member.value);
}

QByteArray writtenRow(const QList<RowMember> &members)
{
    QByteArrayList texts;
    for (const RowMember &member : members) {
        if (member.value.isValid())
            texts.append(written(member));
    }
    return "{ " + texts.join(", ") + " }";
}

// A row as a line of text, to compare by.
QString keyOf(const ProjectRow &row)
{
    QString key = row.isDataGiven ? QString::number(row.data) : QString();
    for (const QVariant &cell : row.cellsOfFile()) {
        const QChar kind(u'0' + static_cast<char16_t>(cell.typeId() % 64));
        key += u'\n' + (cell.isValid() ? kind + cellText(cell) : QString());
    }
    return key;
}

// For each row of now the one of before that it was: those alike, those of one name,
// and changed ones between them as far as they follow one another.
QList<qsizetype> partnersOf(const QList<ProjectRow> &before, const QList<ProjectRow> &now)
{
    QStringList keys;
    const auto viewsOf = [&keys](const QList<ProjectRow> &rows) {
        LineViews views;
        for (const ProjectRow &row : rows) {
            keys.append(keyOf(row));
            views.append(keys.constLast());
        }
        return views;
    };
    const LineViews former = viewsOf(before);
    QList<qsizetype> partners = matchingLines(former, viewsOf(now));
    qsizetype free = 0; // the first row of before that none is yet
    qsizetype next = 0; // the first row from here on that has its partner
    for (qsizetype i = 0; i < partners.size(); ++i) {
        if (partners[i] >= 0) {
            free = partners[i] + 1;
            continue;
        }
        next = std::max(next, i);
        while (next < partners.size() && partners[next] < 0)
            ++next;
        const qsizetype end = next < partners.size() ? partners[next] : before.size();
        const qsizetype missing = next - i;
        qsizetype found = -1;
        for (qsizetype at = free; at < end && found < 0 && !now[i].name.isEmpty(); ++at)
            found = before[at].name == now[i].name ? at : -1;
        if (found < 0 && end - free >= missing)
            found = free;
        partners[i] = found;
        free = found < 0 ? free : found + 1;
    }
    return partners;
}

// The table's array, put together from the rows that stay and new ones.
class ArrayText
{
public:
    ArrayText(const QByteArray &json, const JsonPlace &array)
        : m_json(json)
        , m_start(array.start())
        , m_end(array.end())
        , m_items(array.items(std::numeric_limits<qsizetype>::max()))
    {
    }

    const JsonPlace &item(qsizetype index) const { return m_items.at(index); }

    // A row that was none of the array comes with -1.
    void append(const QByteArray &row, qsizetype former)
    {
        m_text += m_count++ == 0 ? leadOf(std::max<qsizetype>(former, 0), former == 0)
                                 : separatorBefore(former);
        m_text += row;
        m_last = former;
    }

    QByteArray text() const
    {
        if (m_count == 0)
            return "[]";
        return '[' + m_text + (m_items.isEmpty() ? QByteArray("\n  ") : behindLast()) + ']';
    }

private:
    // What stands between a row and the one before, or the bracket.
    QByteArray between(qsizetype item) const
    {
        const qsizetype from = item == 0 ? m_start + 1 : m_items.at(item - 1).end();
        return m_json.sliced(from, m_items.at(item).start() - from);
    }

    QByteArray leadOf(qsizetype item, bool isFirst) const
    {
        if (m_items.isEmpty())
            return "\n    ";
        return isFirst ? between(0) : blanksOf(between(std::min(item, m_items.size() - 1)));
    }

    QByteArray separatorBefore(qsizetype former) const
    {
        if (former > 0 && m_last == former - 1)
            return between(former);
        if (m_items.isEmpty())
            return ",\n    ";
        const qsizetype like = former >= 0 ? former : m_items.size() - 1;
        return ',' + blanksOf(between(like));
    }

    static QByteArray blanksOf(const QByteArray &text)
    {
        return text.sliced(text.indexOf(',') + 1);
    }

    QByteArray behindLast() const
    {
        const qsizetype from = m_items.constLast().end();
        return m_json.sliced(from, m_end - 1 - from);
    }

    QByteArray m_json;
    qsizetype m_start;
    qsizetype m_end;
    QList<JsonPlace> m_items;
    QByteArray m_text;
    qsizetype m_count = 0;
    qsizetype m_last = -1;
};

// Behind what stands last in an object or array.
qsizetype lastInside(const QByteArray &json, const JsonPlace &place)
{
    qsizetype at = place.end() - 1;
    while (QByteArrayView(" \t\r\n").contains(json[at - 1]))
        --at;
    return at;
}

// The bytes of a row with other members. One that loses a member is written anew.
QByteArray editedRow(const QByteArray &json, const JsonPlace &place, const QList<RowMember> &before,
                     const QList<RowMember> &now)
{
    JsonEdit edit(json.sliced(place.start(), place.end() - place.start()), place.start());
    const qsizetype last = lastInside(json, place);
    bool isEmpty = json[last - 1] == '{';
    for (qsizetype i = 0; i < now.size(); ++i) {
        const JsonPlace member = place.member(now[i].name);
        if (now[i].value == before[i].value || (!now[i].value.isValid() && !member.isPresent()))
            continue;
        if (!now[i].value.isValid())
            return writtenRow(now);
        if (member.isPresent())
            edit.replace(member, now[i].value);
        else
            edit.insert(last, (std::exchange(isEmpty, false) ? " " : ", ") + written(now[i]));
    }
    return edit.bytes();
}

} // namespace

QByteArray withRows(const QByteArray &json, const QString &fileName, LwType type,
                    const QList<ProjectRow> &before, const QList<ProjectRow> &now)
{
    const JsonPlace root = JsonPlace::parse(json, fileName);
    const JsonPlace array = root.member(projectMember(type));
    if (!array.isPresent()) {
        QByteArrayList rows;
        for (qsizetype i = 0; i < now.size(); ++i)
            rows.append("\n    " + writtenRow(membersOf(now.at(i), type, i + 1)));
        JsonEdit edit(json);
        edit.insert(lastInside(json, root),
                    ",\n  " + jsonText(projectMember(type)) + ": [" + rows.join(',') + "\n  ]");
        return now.isEmpty() ? json : edit.bytes();
    }
    ArrayText text(json, array);
    const QList<qsizetype> partners = partnersOf(before, now);
    for (qsizetype i = 0; i < now.size(); ++i) {
        const qsizetype former = partners.at(i);
        const QList<RowMember> members = membersOf(now.at(i), type, i + 1);
        text.append(former < 0 ? writtenRow(members)
                               : editedRow(json, text.item(former),
                                           membersOf(before.at(former), type, former + 1), members),
                    former);
    }
    JsonEdit edit(json);
    edit.replaceBytes(array.start(), array.end(), text.text());
    return edit.bytes();
}

} // namespace ORVTListview
