// Which entries match what is typed, and that it is quick.

#include "widgets/combo/ComboMatches.h"
#include "support/RandomText.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/combo/ComboEntries.h"

#include <QtTest/QAbstractItemModelTester>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QList<ComboEntry> entriesOf(const QStringList &texts)
{
    QList<ComboEntry> entries;
    for (const QString &text : texts)
        entries.append({.text = text});
    return entries;
}

QStringList textsOf(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.index(row, 0).data().toString());
    return texts;
}

// What it all comes down to.
QStringList textsHolding(const QStringList &texts, const QString &part)
{
    QStringList found;
    for (const QString &text : texts) {
        if (text.contains(part, Qt::CaseInsensitive))
            found.append(text);
    }
    return found;
}

// Names of few letters, so that parts are found often.
QString randomName(RandomText &random, int longest)
{
    static const QString letters = u"aAbBtTeE1 2äÄßſKk\u212a\u0130i"_s + QChar(0xd801) +
                                   QChar(0xdc00) + QChar(0xdc28) + QChar(0);
    QString name;
    for (int length = random.number(longest + 1); length > 0; --length)
        name += letters.at(random.number(static_cast<int>(letters.size())));
    return name;
}

} // namespace

class ComboMatchesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void allMatchAtFirstAndAgain()
    {
        ComboEntries entries;
        ComboMatches matches(entries);
        const QAbstractItemModelTester entriesTester(&entries);
        const QAbstractItemModelTester tester(&matches);
        QCOMPARE(matches.size(), 0);
        QCOMPARE(matches.bestPosition(), -1);
        matches.setFilter(u"x"_s);
        entries.setEntries(entriesOf({u"a"_s, u"b"_s}));
        QCOMPARE(textsOf(matches), QStringList({u"a"_s, u"b"_s}));
        QCOMPARE(matches.filter(), QString());
        matches.setFilter(u"b"_s);
        entries.setEntries(entriesOf({u"c"_s}));
        QCOMPARE(textsOf(matches), QStringList{u"c"_s});
        matches.setFilter(u"b"_s);
        matches.setFilter(QString());
        QCOMPARE(textsOf(matches), QStringList{u"c"_s});
    }

    void rowsAndPositionsBelongTogether()
    {
        ComboEntries entries;
        entries.setEntries(entriesOf({u"ab"_s, u"c"_s, u"b"_s, u"cb"_s}));
        ComboMatches matches(entries);
        matches.setFilter(u"B"_s);
        QCOMPARE(matches.size(), 3);
        QCOMPARE(matches.rowAt(0), 0);
        QCOMPARE(matches.rowAt(1), 2);
        QCOMPARE(matches.rowAt(2), 3);
        QCOMPARE(matches.positionOf(2), 1);
        QCOMPARE(matches.positionOf(1), -1);
        QCOMPARE(matches.positionOf(-1), -1);
        QCOMPARE(matches.positionOf(9), -1);
        QCOMPARE(matches.bestPosition(), 1);
    }

    void halfACharacterDoesNotNarrow()
    {
        const QString capital = QString(QChar(0xd801)) + QChar(0xdc00);
        const QString small = QString(QChar(0xd801)) + QChar(0xdc28);
        ComboEntries entries;
        entries.setEntries(entriesOf({small}));
        ComboMatches matches(entries);
        matches.setFilter(capital.last(1));
        QCOMPARE(matches.size(), 0);
        matches.setFilter(capital);
        QCOMPARE(matches.size(), 1);
    }

    void matchesAreThoseOfTheModel()
    {
        for (int round = 0; round < 60; ++round) {
            RandomText random;
            QStringList texts;
            for (int count = random.number(200); count > 0; --count)
                texts.append(randomName(random, 12));
            ComboEntries entries;
            entries.setEntries(entriesOf(texts));
            ComboMatches matches(entries);
            QString typed;
            for (int step = 0; step < 40; ++step) {
                switch (random.number(4)) { // a user types, takes away and begins anew
                case 0:
                    typed.chop(1);
                    break;
                case 1:
                    typed = randomName(random, 3);
                    break;
                default:
                    typed.insert(random.number(static_cast<int>(typed.size()) + 1),
                                 randomName(random, 2));
                }
                matches.setFilter(typed);
                const QString what = QString::fromStdString(random.seed()) + u": "_s + typed;
                QVERIFY2(textsOf(matches) == textsHolding(texts, typed), qPrintable(what));
                checkBest(matches, what);
            }
        }
    }

private:
    // Reads so, begins so, or is the first.
    static int rankOf(const QString &text, const QString &typed)
    {
        if (text.compare(typed, Qt::CaseInsensitive) == 0)
            return 2;
        return text.startsWith(typed, Qt::CaseInsensitive) ? 1 : 0;
    }

    static void checkBest(const ComboMatches &matches, const QString &what)
    {
        const QStringList texts = textsOf(matches);
        const bool isOffered = !texts.isEmpty() && !matches.filter().isEmpty();
        int best = isOffered ? 0 : -1;
        for (int position = 1; isOffered && position < texts.size(); ++position) {
            if (rankOf(texts.at(position), matches.filter()) >
                rankOf(texts.at(best), matches.filter()))
                best = position;
        }
        QVERIFY2(matches.bestPosition() == best, qPrintable(what));
    }
};

ORVT_TEST(ComboMatchesTest)
#include "ComboMatchesTest.moc"
