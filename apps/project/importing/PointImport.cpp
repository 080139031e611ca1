#include "project/importing/PointImport.h"

#include "base/TextRules.h"
#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "project/ProjectTexts.h"

#include <QtCore/QHash>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

std::optional<double> numberOf(QString text)
{
    if (text.count(u',') == 1 && !text.contains(u'.'))
        text.replace(u',', u'.');
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

bool isOneOf(const QString &text, const QStringList &words)
{
    return words.contains(text, Qt::CaseInsensitive);
}

// Makes rows of a table from rows of texts.
class RowImport
{
public:
    RowImport(const Project &project, const ImportColumns &columns, const QStringList &yesAndNo)
        : m_project(project)
        , m_columns(columns)
        , m_yes{yesAndNo.value(0), u"yes"_s, u"true"_s, u"1"_s}
        , m_no{yesAndNo.value(1), u"no"_s, u"false"_s, u"0"_s}
        , m_name(nameColumn(columns.type))
    {
        const QList<ProjectRow> &rows = project.rows(columns.type);
        for (qsizetype row = 0; m_name >= 0 && row < rows.size(); ++row)
            m_rows.insert(foldedCase(rows.at(row).name), row);
        m_next = rows.size();
    }

    ImportedRow take(const QStringList &texts)
    {
        ImportedRow result;
        find(result, texts);
        if (!result.fault.isEmpty())
            return result;
        for (qsizetype column = 0; column < m_columns.sources.size(); ++column) {
            const qsizetype source = m_columns.sources.at(column);
            if (source >= 0 && column != m_name)
                takeCell(result, column, texts.value(source));
        }
        if (!result.fault.isEmpty())
            result.fate = ImportedRow::Faulty;
        else if (result.row < 0)
            result.fate = ImportedRow::Added;
        else
            result.fate = result.changed.isEmpty() ? ImportedRow::Same : ImportedRow::Changed;
        return result;
    }

private:
    void refuse(ImportedRow &row, const QString &fault)
    {
        row.fate = ImportedRow::Faulty;
        if (row.fault.isEmpty())
            row.fault = fault;
    }

    // The point that is there, or a new one.
    void find(ImportedRow &result, const QStringList &texts)
    {
        const QList<ProjectRow> &rows = m_project.rows(m_columns.type);
        if (m_name >= 0)
            findByName(result, texts.value(m_columns.sources.value(m_name, -1)).trimmed());
        else
            findByNumber(result, texts.value(m_columns.number).trimmed());
        if (result.row >= 0)
            result.point = rows.at(result.row);
        else if (result.fault.isEmpty())
            begin(result);
    }

    void findByName(ImportedRow &result, const QString &name)
    {
        result.point.name = name;
        const QString key = foldedCase(name);
        if (m_taken.contains(key))
            refuse(result, ProjectTexts::tr("\"%1\" comes twice").arg(name));
        else
            result.row = m_rows.value(key, -1);
        if (result.row < 0 && result.fault.isEmpty())
            result.fault =
                m_project.nameFault(m_columns.type, m_project.rows(m_columns.type).size(), name);
        if (!result.fault.isEmpty())
            result.fate = ImportedRow::Faulty;
        m_taken.insert(key, true);
    }

    void findByNumber(ImportedRow &result, const QString &number)
    {
        bool isNumber = false;
        const qsizetype row = number.toLongLong(&isNumber) - 1;
        if (!isNumber && !number.isEmpty())
            refuse(result, ProjectTexts::tr("\"%1\" is not the number of a row").arg(number));
        else if (isNumber && m_taken.contains(number))
            refuse(result, ProjectTexts::tr("\"%1\" comes twice").arg(number));
        else if (isNumber && row >= 0 && row < m_project.rows(m_columns.type).size())
            result.row = row;
        if (isNumber)
            m_taken.insert(number, true);
    }

    void begin(ImportedRow &result)
    {
        if (m_next >= std::numeric_limits<qint16>::max()) {
            refuse(result, ProjectTexts::tr("The table is full"));
            return;
        }
        ++m_next;
        result.point.cells.resize(projectColumns(m_columns.type).size());
        if (m_name >= 0)
            result.point.cells[m_name] = result.point.name;
    }

    // A cell that is the same as it is shown, or in the file, stays.
    void takeCell(ImportedRow &result, qsizetype column, const QString &typed)
    {
        const QVariant before = result.point.cells.value(column);
        const QVariant inFile = result.point.cellsOfFile().value(column);
        const CellKind kind = projectColumns(m_columns.type).at(column).kind;
        const QString text = kind == CellKind::Text ? typed : typed.trimmed();
        const std::optional<QVariant> cell = cellOf(text, kind);
        if (!cell) {
            refuse(result, kind == CellKind::YesNo
                               ? ProjectTexts::tr("\"%1\" is neither yes nor no").arg(text)
                               : ProjectTexts::tr("\"%1\" is not a number").arg(text));
            return;
        }
        const bool isSame = *cell == inFile || text == cellText(before) || text == cellText(inFile);
        if (isSame)
            return;
        result.point.setCell(column, *cell);
        result.changed.append(column);
    }

    std::optional<QVariant> cellOf(const QString &text, CellKind kind) const
    {
        if (text.isEmpty())
            return QVariant();
        if (kind == CellKind::YesNo) {
            if (isOneOf(text, m_yes))
                return QVariant(true);
            return isOneOf(text, m_no) ? std::optional(QVariant(false)) : std::nullopt;
        }
        const std::optional<double> number = kind == CellKind::Text ? std::nullopt : numberOf(text);
        if (number)
            return QVariant(*number);
        return kind == CellKind::Number ? std::nullopt : std::optional(QVariant(text));
    }

    const Project &m_project;
    const ImportColumns &m_columns;
    const QStringList m_yes;
    const QStringList m_no;
    const qsizetype m_name;
    QHash<QString, qsizetype> m_rows; // by name
    QHash<QString, bool> m_taken;     // by this text: names, or numbers
    qsizetype m_next = 0;
};

} // namespace

ImportColumns columnsByNames(LwType type, const QStringList &heads, const QStringList &titles)
{
    const auto headOf = [&heads](const QStringList &names) {
        for (qsizetype head = 0; head < heads.size(); ++head) {
            if (isOneOf(heads.at(head).trimmed(), names))
                return head;
        }
        return qsizetype(-1);
    };
    ImportColumns columns{type, {}, headOf({u"#"_s})};
    const QList<ProjectColumn> &all = projectColumns(type);
    for (qsizetype i = 0; i < all.size(); ++i) {
        QStringList names{all.at(i).key, all.at(i).member};
        if (!titles.value(i).isEmpty())
            names.prepend(titles.at(i));
        columns.sources.append(headOf(names));
    }
    return columns;
}

ImportColumns columnsInOrder(LwType type)
{
    ImportColumns columns{type, {}, 0};
    for (qsizetype i = 0; i < projectColumns(type).size(); ++i)
        columns.sources.append(i + 1);
    return columns;
}

QList<ImportedRow> importedRows(const Project &project, const QList<QStringList> &cells,
                                const ImportColumns &columns, const QStringList &yesAndNo)
{
    RowImport import(project, columns, yesAndNo);
    QList<ImportedRow> rows;
    for (const QStringList &texts : cells)
        rows.append(import.take(texts));
    return rows;
}

RowChanges importChanges(const Project &project, LwType type, const QList<ImportedRow> &rows,
                         const QList<bool> &isTicked)
{
    RowChanges changes;
    qsizetype next = project.rows(type).size();
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const ImportedRow &row = rows.at(i);
        if (!isTicked.value(i))
            continue;
        if (row.fate == ImportedRow::Changed) {
            changes.append({type, row.row, project.rows(type).at(row.row), row.point});
        } else if (row.fate == ImportedRow::Added) {
            ProjectRow point = row.point;
            point.data = isVocabularyType(type) ? static_cast<qint32>(next) + 1 : 0;
            changes.append({type, next++, {}, point});
        }
    }
    return changes;
}

} // namespace ORVTListview
