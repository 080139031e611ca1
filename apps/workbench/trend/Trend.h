#pragma once

#include "project/controller/Controller.h"

#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QObject>

#include <deque>
#include <optional>

namespace ORVTListview {

class PointReading;
class ProjectDocument;

// A value at a time in milliseconds since 1970, UTC; no number where reading has failed.
struct TrendSample
{
    qint64 when = 0;
    double value = 0;

    bool isGap() const;
};

// The values of one point. On and Off are 1 and 0.
struct TrendLine
{
    AskedPoint point;
    QString name;
    QString unit;
    bool isState = false; // On or Off
    std::deque<TrendSample> samples = {};
    qsizetype row = -1; // of the point; -1 when it is gone
    qsizetype rows = 0; // that its table has

    // The last sample at a time or before; null before the first.
    const TrendSample *at(qint64 when) const;

    // Of all that are numbers.
    struct Range
    {
        double least;
        double most;
    };
    std::optional<Range> range(qint64 from, qint64 to) const;

    // As it is told: "19.4 °C", "On"; empty for a gap.
    QString textOf(double value, const QLocale &locale) const;
};

// What was read of chosen points, the latest samples of each.
class Trend : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype mostLines = 16;
    static constexpr std::size_t mostSamples = 10000; // of a line

    // Both outlive it.
    Trend(ProjectDocument &document, PointReading &reading, QObject *parent);

    const QList<TrendLine> &lines() const { return m_lines; }

    // Begins with the next reading. False when the point is there already, has no value, or
    // there is no more room.
    bool add(LwType type, qsizetype row);
    bool add(const AskedPoint &point);
    void remove(qsizetype line);
    void removeAll();

    // Forgets the samples.
    void clear();

    // All times at which something was read, in ascending order.
    QList<qint64> times() const;

Q_SIGNALS:
    void linesChanged();   // and perhaps samples
    void samplesChanged(); // only

private:
    void take(const QList<AskedPoint> &points);
    void takeGaps(const QList<AskedPoint> &missed);
    void append(TrendLine &line, double value);
    void follow();
    void followRow(TrendLine &line, qsizetype row);
    bool isDrawn(const AskedPoint &point) const;

    ProjectDocument &m_document;
    PointReading &m_reading;
    QList<TrendLine> m_lines;
};

} // namespace ORVTListview
