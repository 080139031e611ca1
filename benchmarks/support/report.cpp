#include "support/report.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cstdio>
#include <cstring>

namespace ORVTListview::bench {

using namespace Qt::StringLiterals;

namespace {

bool hasFailed = false;

void printLine(const QJsonObject &object)
{
    std::puts(QJsonDocument(object).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

QJsonObject toJson(const Side &side)
{
    return {{u"what"_s, side.what},
            {u"cost"_s, side.cost},
            {u"least"_s, side.least},
            {u"repetitions"_s, static_cast<qint64>(side.repetitions)}};
}

QString nameOf(Unit unit)
{
    switch (unit) {
    case Unit::Time:
        return u"time"_s;
    case Unit::TimeEach:
        return u"time each"_s;
    case Unit::CharactersPerSecond:
        return u"characters/s"_s;
    case Unit::Bytes:
        return u"bytes"_s;
    }
    Q_UNREACHABLE();
}

// Where two long texts part, with what stands around.
QString firstDifference(const QString &found, const QString &expected)
{
    qsizetype place = 0;
    while (place < std::min(found.size(), expected.size()) && found[place] == expected[place])
        ++place;
    constexpr qsizetype before = 20;
    constexpr qsizetype shown = 60;
    const qsizetype from = std::max<qsizetype>(0, place - before);
    return u"at %1: \"%2\" instead of \"%3\""_s.arg(QString::number(place), found.mid(from, shown),
                                                    expected.mid(from, shown));
}

} // namespace

Side medianOf(const QString &what, const Times &times, qsizetype amount)
{
    const auto each = static_cast<double>(amount);
    return {what, times.median() / each, times.minimum() / each, times.count()};
}

Side percentile99Of(const QString &what, const Times &times)
{
    return {what, times.quantile(0.99), times.minimum(), times.count()};
}

Side slowestOf(const QString &what, const Times &times)
{
    return {what, times.maximum(), times.minimum(), times.count()};
}

void printRow(const Row &row)
{
    QJsonObject object{
        {u"row"_s, row.name}, {u"ours"_s, toJson(row.ours)}, {u"unit"_s, nameOf(row.unit)}};
    if (row.peers)
        object.insert(u"peers"_s, toJson(*row.peers));
    if (row.bound)
        object.insert(u"bound"_s, *row.bound);
    printLine(object);
}

void check(const QString &what, bool isRight, const QString &found)
{
    hasFailed = hasFailed || !isRight;
    printLine({{u"check"_s, what}, {u"ok"_s, isRight}, {u"found"_s, found}});
}

void checkEqual(const QString &what, qsizetype found, qsizetype expected)
{
    check(what, found == expected,
          u"%1 instead of %2"_s.arg(QString::number(found), QString::number(expected)));
}

void checkEqual(const QString &what, const QString &found, const QString &expected)
{
    const bool isRight = found == expected;
    check(what, isRight, isRight ? QString() : firstDifference(found, expected));
}

int runBenchmark(int argc, char **argv, const std::function<void()> &checkWork,
                 const std::function<void()> &measure)
{
    if (argc > 1 && std::strcmp(argv[1], "--check") == 0)
        checkWork();
    else
        measure();
    return hasFailed ? 2 : 0;
}

} // namespace ORVTListview::bench
