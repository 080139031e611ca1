// What a word costs in an index of 30,000 names, beside one of 300.

#include "support/points.h"
#include "support/program.h"
#include "support/report.h"

#include "editor/rules/language/WordIndex.h"

#include <QtCore/QSet>

#include <algorithm>
#include <random>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype fewNames = 300;
constexpr qsizetype manyNames = 30000;

WordIndex indexOf(qsizetype names)
{
    WordIndex index;
    for (qsizetype i = 0; i < names; ++i)
        index.add(pointName(i), static_cast<qint32>(i));
    index.findExact(u"sorts it");
    return index;
}

// The words of a program in random order, names of the project and others.
QStringList programWords()
{
    QStringList words = makeProgram(usualProgram).text.simplified().split(u' ');
    std::shuffle(words.begin(), words.end(), std::minstd_rand(1));
    return words;
}

// So many names of the index in random order, each as often as any other.
QStringList names(qsizetype inIndex, qsizetype count)
{
    QStringList words;
    for (qsizetype i = 0; i < count; ++i)
        words.append(pointName(i % inIndex));
    std::shuffle(words.begin(), words.end(), std::minstd_rand(1));
    return words;
}

qsizetype found(const WordIndex &index, const QStringList &words)
{
    return std::count_if(words.begin(), words.end(),
                         [&](const QString &word) { return index.findExact(word) >= 0; });
}

qsizetype namesAmong(const QStringList &words, qsizetype names)
{
    QSet<QString> known;
    for (qsizetype i = 0; i < names; ++i)
        known.insert(pointName(i).toLower());
    return std::count_if(words.begin(), words.end(),
                         [&](const QString &word) { return known.contains(word.toLower()); });
}

double lookUp(const WordIndex &index, const QStringList &words)
{
    return timed([&] { keep(found(index, words)); });
}

void checkWork()
{
    const WordIndex few = indexOf(fewNames);
    const WordIndex many = indexOf(manyNames);
    checkEqual(u"the large index holds 30,000 names"_s, many.count(), manyNames);
    checkEqual(u"each name is found"_s, found(many, names(manyNames, manyNames)), manyNames);
    const QStringList words = programWords();
    checkEqual(u"of a program's words the index finds its names"_s, found(few, words),
               namesAmong(words, fewNames));
    bool same = true;
    for (const QString &word : words) {
        const qsizetype place = few.findExact(word);
        const qsizetype other = many.findExact(word);
        same = same && (place < 0 || (other >= 0 && many.at(other).text == few.at(place).text));
    }
    check(u"both find the same"_s, same);
}

void printLookup(const QString &name, const Sides &sides, qsizetype lookups,
                 std::optional<double> bound)
{
    printRow({.name = name,
              .ours = medianOf(u"of 30,000 names"_s, sides.ours, lookups),
              .peers = medianOf(u"of 300 names"_s, sides.peers, lookups),
              .bound = bound,
              .unit = Unit::TimeEach});
}

void measure()
{
    const WordIndex few = indexOf(fewNames);
    const WordIndex many = indexOf(manyNames);
    const QStringList words = programWords();
    printLookup(u"Looking up a program's words"_s,
                sideBySide(
                    41, [&] { return lookUp(many, words); }, [&] { return lookUp(few, words); }),
                words.size(), 1.3);

    const QStringList ofMany = names(manyNames, manyNames);
    const QStringList ofFew = names(fewNames, manyNames);
    printLookup(u"Looking up every name of the index in turn"_s,
                sideBySide(
                    41, [&] { return lookUp(many, ofMany); }, [&] { return lookUp(few, ofFew); }),
                manyNames, {});
}

} // namespace

int main(int argc, char **argv)
{
    return runBenchmark(argc, argv, checkWork, measure);
}
