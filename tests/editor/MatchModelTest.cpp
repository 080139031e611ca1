// The entries of a word list that hold a word, under random work with the list.

#include "editor/MatchModel.h"

#include "support/RandomSession.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtCore/QStringListModel>
#include <QtTest/QAbstractItemModelTester>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Lists with columns, as those of words are.
class MatchSession final : public RandomSession
{
public:
    explicit MatchSession(unsigned seed)
        : RandomSession(seed)
    {
    }

private:
    void act() override
    {
        switch (number(6)) {
        case 0:
            m_entries.setStringList(someWords(20));
            note(u"fill"_s);
            break;
        case 1:
            note(u"insert"_s);
            m_entries.insertRows(number(m_entries.rowCount() + 1), 1 + number(3));
            break;
        case 2:
            note(u"remove"_s);
            if (m_entries.rowCount() > 0)
                m_entries.removeRows(number(m_entries.rowCount()), 1);
            break;
        case 3:
            note(u"rename"_s);
            if (m_entries.rowCount() > 0)
                rename(m_entries.index(number(m_entries.rowCount())));
            break;
        case 4:
            note(u"sort"_s);
            m_entries.sort(0);
            break;
        default:
            return show();
        }
        m_shown.reset();
    }
    void rename(const QModelIndex &entry) // nobody is told of the same text
    {
        m_entries.setData(entry, entry.data().toString() + someWord() + u'x');
    }
    void show()
    {
        const QString word = someWord();
        note(u"show "_s + word);
        m_shown = word;
        m_matches.show(word);
    }
    QString someWord()
    {
        static const QStringList words{u"temp1"_s, u"Temp2"_s, u"p1"_s, u"te"_s,
                                       u"MP"_s,    u"x"_s,     u""_s,   u"1"_s};
        return oneOf(words);
    }
    QStringList someWords(int most)
    {
        QStringList words;
        for (int i = number(most); i > 0; --i)
            words.append(someWord());
        return words;
    }

    // Without a word that was asked for since the entries changed there are no rows that
    // stand for others.
    QString whatIsWrong() override
    {
        for (int row = 0; row < m_matches.rowCount(); ++row) {
            const int entry = m_matches.entryOf(row);
            const QString text = m_matches.index(row).data().toString();
            if (entry < 0 || entry >= m_entries.rowCount())
                return u"row %1 stands for no entry"_s.arg(row);
            if (text != m_entries.stringList().at(entry))
                return u"row %1 shows another entry"_s.arg(row);
        }
        if (!m_shown)
            return m_matches.rowCount() > 0 ? u"rows of former entries"_s : QString();
        return wrongMatches();
    }
    QString wrongMatches()
    {
        int holding = 0;
        for (const QString &text : m_entries.stringList())
            holding += text.contains(*m_shown, Qt::CaseInsensitive) ? 1 : 0;
        const int all = holding > 0 ? holding : m_entries.rowCount();
        if (m_matches.isMatched() != (holding > 0))
            return u"whether a word is held"_s;
        return m_matches.rowCount() == all
                   ? QString()
                   : u"%1 rows instead of %2"_s.arg(m_matches.rowCount()).arg(all);
    }

    QStringListModel m_entries;
    MatchModel m_matches{m_entries,
                         {[](const QString &text) { return u"kind of "_s + text; },
                          [](const QString &) { return QString(); }}};
    QAbstractItemModelTester m_tester{&m_matches,
                                      QAbstractItemModelTester::FailureReportingMode::Fatal};
    std::optional<QString> m_shown;
};

} // namespace

class MatchModelTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheEntriesThatHoldTheWord()
    {
        const QString failure = failureIn<MatchSession>(50, 10'000);
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
    }
};

ORVT_TEST(MatchModelTest)
#include "MatchModelTest.moc"
