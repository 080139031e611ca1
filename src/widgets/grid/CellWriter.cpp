#include "widgets/grid/CellWriter.h"

#include "grid/rules/CellRules.h"

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>

#include <utility>

namespace ORVTListview {

CellWriter::CellWriter(CellTable &table, const GridRules &rules)
    : m_table(table)
    , m_rules(rules)
{
}

// By the rule first, which may write the text in another way; then by the host. None of what
// is not there.
QString CellWriter::refusalOf(CellEntry &entry, const CellRule &rule, const Asking &asking)
{
    const QString *held = m_table.textIn(entry.item, entry.column);
    if (!held)
        return {};
    CellAnswer answer = checkedCell(rule, std::move(entry.text), asking.locale);
    if (!answer.isTaken())
        return answer.refusal;
    entry.text = std::move(answer.text);
    QString refusal;
    if (asking.isHostAsked && *held != entry.text)
        m_host.ask(entry.item, entry.column, entry.text, refusal);
    return refusal;
}

// Asking a host for names, once for each column.
const CellRule &CellWriter::ruleOf(int column, QHash<int, CellRule> &known) const
{
    auto rule = known.find(column);
    if (rule == known.end())
        rule = known.insert(column,
                            m_rules.isEdited(column) ? m_rules.completeRule(column) : CellRule());
    return *rule;
}

std::optional<QList<CellRefusal>> CellWriter::enter(QList<CellEntry> entries)
{
    if (m_isAsking)
        return std::nullopt;
    const QPointer<CellWriter> self(this);
    const QList<CellRefusal> refusals = ask(entries);
    if (!self)
        return std::nullopt;
    if (!refusals.isEmpty())
        return refusals;
    const QList<CellChange> changes = writeNew(std::move(entries));
    if (self && !changes.isEmpty() && m_keep)
        m_keep(changes);
    if (self)
        tell(changes);
    return self ? std::optional(refusals) : std::nullopt;
}

// Being asked for names or texts a host may remove rows, or the list.
QList<CellRefusal> CellWriter::ask(QList<CellEntry> &wanted)
{
    const QPointer<CellWriter> self(this);
    m_isAsking = true;
    const auto asked = qScopeGuard([self] {
        if (self)
            self->m_isAsking = false;
    });
    QList<CellRefusal> refusals;
    QHash<int, CellRule> known;
    const Asking asking{QLocale(), m_host.listens && m_host.listens()};
    for (CellEntry &entry : wanted) {
        const CellRule &rule = ruleOf(entry.column, known);
        const QString reason = self ? refusalOf(entry, rule, asking) : QString();
        if (!self)
            return {};
        if (!reason.isEmpty())
            refusals.append({entry.item, static_cast<qint16>(entry.column), reason});
    }
    return refusals;
}

// What is still there.
void CellWriter::tell(QList<CellChange> changes) const
{
    changes.removeIf(
        [this](const CellChange &change) { return !m_table.isThere(change.item, change.column); });
    if (!changes.isEmpty() && m_host.tell)
        m_host.tell(changes);
}

// What is there and holds another text.
QList<CellChange> CellWriter::writeNew(QList<CellEntry> entries)
{
    QList<CellChange> changes;
    changes.reserve(entries.size());
    m_table.setTexts([&] {
        for (CellEntry &entry : entries) {
            const QString *held = m_table.textIn(entry.item, entry.column);
            if (!held || *held == entry.text)
                continue;
            QString former = m_table.exchangeText(*entry.item, entry.column, entry.text);
            changes.append({entry.item, static_cast<qint16>(entry.column), std::move(former),
                            std::move(entry.text)});
        }
    });
    return changes;
}

// What there was to be done.
QList<CellChange> CellWriter::write(QList<CellChange> changes)
{
    const auto isLeftOut = [this](const CellChange &change) {
        const QString *text = m_table.textIn(change.item, change.column);
        if (!text || change.text == change.former || *text != change.former)
            return true;
        m_table.exchangeText(*change.item, change.column, change.text);
        return false;
    };
    m_table.setTexts([&] { changes.removeIf(isLeftOut); });
    return changes;
}

bool CellWriter::revert(const QList<CellChange> &changes)
{
    QList<CellChange> back;
    for (auto change = changes.crbegin(); change != changes.crend(); ++change)
        back.append({change->item, change->column, change->text, change->former});
    return repeat(back);
}

bool CellWriter::repeat(const QList<CellChange> &changes)
{
    const QPointer<CellWriter> self(this);
    const QList<CellChange> written = write(changes);
    if (self)
        m_repeated.enqueue(written);
    return !written.isEmpty();
}

void CellWriter::tellRepeated()
{
    const QPointer<CellWriter> self(this);
    while (self && !m_repeated.isEmpty())
        tell(m_repeated.dequeue());
}

} // namespace ORVTListview
