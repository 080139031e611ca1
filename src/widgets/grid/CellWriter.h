#pragma once

#include "widgets/grid/CellTable.h"
#include "widgets/grid/GridRules.h"
#include <ORVTListview/CellChange.h>
#include <ORVTListview/CellRefusal.h>

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QQueue>

#include <functional>
#include <optional>

namespace ORVTListview {

// What the user wants in a cell.
struct CellEntry
{
    ListItem *item = nullptr;
    int column = 0;
    QString text;
};

// The one way in which cells change by the user: by the rules, with the host's consent,
// all at once or none, and told afterwards. A host may destroy the list meanwhile.
class CellWriter final : public QObject
{
public:
    // What the host is asked and told by, if it listens to questions at all; ask is false
    // when it has destroyed the list.
    struct Host
    {
        std::function<bool()> listens;
        std::function<bool(ListItem *, int, QString &, QString &)> ask;
        std::function<void(const QList<CellChange> &)> tell;
    };

    CellWriter(CellTable &table, const GridRules &rules);

    void setHost(const Host &host) { m_host = host; }

    // What gets the changes that a user has made, to undo them; they are done already.
    void setKeeper(const std::function<void(const QList<CellChange> &)> &keep) { m_keep = keep; }

    // Whether a host is being asked, which may take as long as it likes.
    bool isAsking() const { return m_isAsking; }

    // The refusals, after which nothing is changed. None at all when the list is gone, or
    // the host is still being asked.
    std::optional<QList<CellRefusal>> enter(QList<CellEntry> entries);

    // Puts back what changes have changed, or does it again. What is gone or holds another
    // text by now stays. False when nothing was changed. The host is told by tellRepeated,
    // since nobody may touch a stack that is within a step.
    bool revert(const QList<CellChange> &changes);
    bool repeat(const QList<CellChange> &changes);
    void tellRepeated();

private:
    QList<CellRefusal> ask(QList<CellEntry> &wanted);
    void tell(QList<CellChange> changes) const;
    // What is the same for all cells of one entry.
    struct Asking
    {
        QLocale locale;
        bool isHostAsked;
    };
    QString refusalOf(CellEntry &entry, const CellRule &rule, const Asking &asking);
    const CellRule &ruleOf(int column, QHash<int, CellRule> &known) const;
    QList<CellChange> write(QList<CellChange> changes);
    QList<CellChange> writeNew(QList<CellEntry> entries);

    CellTable &m_table;
    const GridRules &m_rules;
    Host m_host;
    std::function<void(const QList<CellChange> &)> m_keep;
    QQueue<QList<CellChange>> m_repeated; // and not told
    bool m_isAsking = false;
};

} // namespace ORVTListview
