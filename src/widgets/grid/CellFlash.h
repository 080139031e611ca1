#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QTimer>

class QTableView;

namespace ORVTListview {

// The ground of cells whose text has changed fades once, where the style animates at all.
// What is not seen when it changes does not flash.
class CellFlash final : public QObject
{
public:
    explicit CellFlash(QTableView &view);

    bool isOn() const { return m_isOn; }
    void setOn(bool on);

    // From 1, right after the change, to 0.
    qreal strength(const QModelIndex &cell) const;

private:
    void note(const QModelIndex &first, const QModelIndex &last, const QList<int> &roles);
    void fade();
    int duration() const;

    QTableView &m_view;
    QHash<QPersistentModelIndex, qint64> m_changed; // when, in milliseconds of the clock
    QElapsedTimer m_clock;
    QTimer m_timer; // while something fades
    bool m_isOn = false;
};

} // namespace ORVTListview
