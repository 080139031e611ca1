// The dialog agrees with a simple search, on texts, words and options at random.

#include "find/FindFixture.h"
#include "find/SimpleSearch.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class FindRandomTest : public WidgetTest
{
    Q_OBJECT

private:
    // A selection cannot be moved within a pair, so that its places are whole.
    static qint32 wholePlace(const QString &text, RandomPrograms &random)
    {
        const QList<Character> characters = charactersOf(text);
        const qsizetype at = random.number(static_cast<int>(characters.size()) + 1);
        return static_cast<qint32>(at < characters.size() ? characters[at].place : text.size());
    }

    static TextSearch chooseOptions(FindHost &host, RandomPrograms &random)
    {
        const TextSearch how{random.coin(), random.coin()};
        host.option(0).setChecked(how.wholeWord);
        host.option(1).setChecked(how.matchCase);
        return how;
    }

private Q_SLOTS:
    void findNext()
    {
        RandomPrograms random;
        FindHost host;
        host.open(u""_s);
        int found = 0;
        for (int i = 0; i < 10'000; ++i) {
            const QString text = random.text(30);
            const QString wanted = random.text(2);
            host.box().setText(text);
            host.box().setSelStart(wholePlace(text, random));
            qint32 start = host.box().SelStart() + 1;
            host.dialog().Open(host.box(), false);
            const TextSearch how = chooseOptions(host, random);
            const SimpleSearch simple(text, wanted, how);
            host.combo(0).setEditText(wanted);
            for (int step = 0; step < 4 && !wanted.isEmpty(); ++step) {
                host.button(0).click();
                const auto expected = static_cast<qint32>(simple.from(start));
                const auto length = static_cast<qint32>(wanted.size());
                const QByteArray failure = QByteArray::fromStdString(random.seed()) + ": " +
                                           text.toUtf8() + " / " + wanted.toUtf8();
                QVERIFY2(host.box().SelLength() == (expected < 0 ? 0 : length),
                         failure.constData());
                QVERIFY2(expected < 0 || host.box().SelStart() == expected, failure.constData());
                QVERIFY2(host.status().startsWith(u"Found in"_s) == (expected >= 0),
                         failure.constData());
                start = expected < 0 ? 0 : expected + length;
                found += expected < 0 ? 0 : 1;
            }
        }
        QVERIFY(found > 1'000);
    }

    void replaceAll()
    {
        RandomPrograms random;
        FindHost host;
        host.open(u""_s, FindHost::Replace);
        qsizetype replaced = 0;
        for (int i = 0; i < 10'000; ++i) {
            const QString text = random.text(30);
            const QString wanted = random.text(2);
            const QString by = random.text(3).remove(u'('); // which would be set off
            host.box().setText(text);
            host.dialog().Open(host.box(), true);
            const TextSearch how = chooseOptions(host, random);
            host.combo(0).setEditText(wanted);
            host.combo(1).setEditText(by);
            host.button(3).click();
            const Places places = SimpleSearch(text, wanted, how).all();
            QString expected = text;
            for (qsizetype at = places.size() - 1; at >= 0; --at)
                expected.replace(places[at], wanted.size(), by);
            const QByteArray failure = QByteArray::fromStdString(random.seed()) + ": " +
                                       text.toUtf8() + " / " + wanted.toUtf8() + " / " +
                                       by.toUtf8();
            QVERIFY2(host.box().Text() == expected, failure.constData());
            QVERIFY2(wanted.isEmpty() || host.status() == u"%1 replace(s)!"_s.arg(places.size()),
                     failure.constData());
            replaced += places.size();
        }
        QVERIFY(replaced > 1'000);
    }
};

ORVT_TEST(FindRandomTest)
#include "FindRandomTest.moc"
