#pragma once

#include <QtCore/QString>

#include <map>

// The ring as an endless tape: positions only grow with snapshots, a slot is a
// position's remainder by 50, and 49 positions behind the newest are in reach
// once the tape has come to a multiple of 50.
class UndoTape
{
public:
    void push(const QString &record)
    {
        m_newest = ++m_current;
        m_isRound = m_isRound || slotOf(m_current) == 0;
        m_records[slotOf(m_current)] = record;
    }
    void setBase(const QString &record) { m_records[0] = record; }
    void clear() { *this = UndoTape(); }

    bool back() { return canGoBack() && (--m_current, true); }
    bool forward() { return canGoForward() && (++m_current, true); }
    bool canGoBack() const { return m_current > oldest(); }
    bool canGoForward() const { return m_current < m_newest; }

    int current() const { return slotOf(m_current); }
    QString record(int slot) const
    {
        const auto found = m_records.find(slot);
        return found == m_records.end() ? QString() : found->second;
    }
    QString indices() const
    {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(slotOf(oldest()))
            .arg(current())
            .arg(slotOf(m_newest))
            .arg(m_isRound);
    }

private:
    static int slotOf(int position) { return (position % 50 + 50) % 50; }
    int oldest() const { return m_isRound ? m_newest - 49 : 0; }

    std::map<int, QString> m_records;
    int m_current = 0;
    int m_newest = 0;
    bool m_isRound = false;
};
