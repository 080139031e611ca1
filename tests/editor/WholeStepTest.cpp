// Undo and redo between states of a long program that differ throughout: they are put in
// part by part, while other parts are still coloured.

#include "editor/SteppingHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Of many parts, each of which begins anywhere in what is repeated.
QString veryLong(const QString &program)
{
    return (program + u"\r\n \tfan1"_s).repeated(10);
}

// At once: waiting for so many lines takes as long as the machine likes.
void giveColours(SteppingHost &host)
{
    host.colours().giveAll();
    host.finish();
}

} // namespace

class WholeStepTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsColouredLooksAsInTheRing()
    {
        SteppingHost host;
        host.open(veryLong(colouredProgram()));
        giveColours(host);
        host.typeAt(20000, u"x y "_s);
        host.undo(); // sets all brackets off
        QVERIFY(host.isAtWork());
        host.compareWithTheRing();
        host.typeAt(100, u"x y "_s);
        host.undo();
        QVERIFY(host.hasTouchedFew());
        host.compareWithTheRing();
    }

    void whatIsKeptAsTypedLooksAsOpenedAnew()
    {
        KeepingHost host;
        host.view().setHasOwnUndo(true); // which what is compared does not empty
        host.open(veryLong(longProgram()));
        giveColours(host);
        const QString opened = host.list->CodeText();
        host.replaceAll(u"temp1"_s, u"temp2"_s);
        const QString replaced = host.list->CodeText();
        QVERIFY(replaced != opened);
        host.undo();
        QVERIFY(host.isAtWork());
        QVERIFY(host.list->CodeText() == opened);
        giveColours(host);
        host.compareWithOpenedAnew();
        host.redo();
        QVERIFY(host.list->CodeText() == replaced);
        giveColours(host);
        host.compareWithOpenedAnew();
        host.undo();
        QVERIFY(host.list->CodeText() == opened);
        giveColours(host);
        host.compareWithOpenedAnew();
    }

    // In the midst of a step.
    void aTextOfTheHostsStaysAsItIs()
    {
        SteppingHost host;
        host.open(veryLong(colouredProgram()));
        giveColours(host);
        host.typeAt(20000, u"x y "_s);
        QObject::connect(&host.box(), &QPlainTextEdit::textChanged, &host.form,
                         [&host, isFirst = true]() mutable {
                             if (std::exchange(isFirst, false))
                                 host.box().setText(u"(temp1)"_s);
                         });
        host.undo();
        QCOMPARE(host.list->CodeText(), u"(temp1)"_s);
        host.typeAt(0, u"x y "_s);
        host.undo();
        host.compareWithTheRing();
    }
};

ORVT_TEST(WholeStepTest)
#include "WholeStepTest.moc"
