// Undo and redo that change only the lines that differ: what they show, compared with the
// same text opened anew, and how much of the document they touch.

#include "editor/SteppingHost.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <memory>
#include <random>
#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class LineStepTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aStepTouchesTheLinesThatDiffer()
    {
        KeepingHost host;
        host.open();
        host.finish();
        const QString opened = host.list->CodeText();
        host.typeAt(2000, u"temp1 temp2 "_s);
        const QString typed = host.list->CodeText();
        host.undo();
        QVERIFY(host.hasTouchedFew());
        host.undo();
        QVERIFY(host.hasTouchedFew());
        QVERIFY(host.list->CodeText() == opened);
        host.compareWithOpenedAnew();
        for (int i = 0; i < 3 && host.list->CodeText() != typed; ++i) {
            host.redo();
            QVERIFY(host.hasTouchedFew());
        }
        QVERIFY(host.list->CodeText() == typed);
        host.compareWithOpenedAnew();
    }

    void stepsThroughSeveralPlacesEndWhereTheyBegan()
    {
        KeepingHost host;
        host.open();
        host.finish();
        const QString opened = host.list->CodeText();
        for (const int line : {3500, 10, 2000, 3999, 0}) {
            host.typeAt(line, u"temp1 fan1\n"_s);
            host.key(Qt::Key_Delete);
        }
        while (host.list->IsUndoAvailable())
            host.undo();
        QVERIFY(host.list->CodeText() == opened);
        host.compareWithOpenedAnew();
    }

    void aStepInFarPlacesTouchesTheLinesThatDiffer()
    {
        KeepingHost host;
        host.open();
        host.finish();
        const QString opened = host.list->CodeText();
        host.typeAt(10, u"x"_s);
        host.typeAt(2001, u"x"_s);
        host.typeAt(3990, u"\ny temp1 "_s); // blanks take snapshots
        const QString typed = host.list->CodeText();
        while (host.list->IsUndoAvailable()) {
            host.undo();
            QVERIFY(host.hasTouchedFew());
        }
        QVERIFY(host.list->CodeText() == opened);
        host.compareWithOpenedAnew();
        for (int i = 0; i < 3 && host.list->CodeText() != typed; ++i) {
            host.redo();
            QVERIFY(host.hasTouchedFew());
        }
        QVERIFY(host.list->CodeText() == typed);
        host.compareWithOpenedAnew();
    }

    void soItDoesAfterReplacingFarApart()
    {
        KeepingHost host;
        QStringList lines = longProgram().split(u"\r\n"_s);
        lines[20] = lines[3980] = u"onlyhere = 1"_s;
        host.open(lines.join(u"\r\n"_s));
        host.finish();
        const QString opened = host.list->CodeText();
        QSignalSpy changes(&host.box(), &RichTextBox::Change);
        host.touched = 0;
        host.replaceAll(u"onlyhere"_s, u"temp1"_s);
        QVERIFY(host.list->CodeText() == QString(opened).replace(u"onlyhere"_s, u"Temp1"_s));
        QCOMPARE(changes.count(), 1);
        QVERIFY(host.hasTouchedFew());
        host.undo();
        QVERIFY(host.hasTouchedFew());
        QVERIFY(host.list->CodeText() == opened);
        host.compareWithOpenedAnew();
    }

    // In the midst of what replaces: that was looked up in another text.
    void aTextOfTheHostsStaysAsItIs()
    {
        KeepingHost host;
        QStringList lines = longProgram().split(u"\r\n"_s);
        lines[20] = lines[2000] = lines[3980] = u"onlyhere = 1"_s;
        host.open(lines.join(u"\r\n"_s));
        host.finish();
        lines.remove(0, 7);
        const QString others = lines.join(u"\r\n"_s);
        QObject::connect(&host.box(), &QPlainTextEdit::textChanged, &host.form,
                         [&host, &others, isFirst = true]() mutable {
                             if (std::exchange(isFirst, false))
                                 host.box().setText(others);
                         });
        host.replaceAll(u"onlyhere"_s, u"temp1"_s);
        QVERIFY(host.box().Text() == others);
    }

    void soItDoesWhileColoursWait()
    {
        KeepingHost host;
        host.open();
        QVERIFY(host.view().isOpening());
        host.typeAt(3000, u"temp1 temp2 "_s);
        host.undo();
        QVERIFY(host.hasTouchedFew());
        QVERIFY(host.view().isOpening());
        QVERIFY(!host.hasColours(3995));
        host.compareWithOpenedAnew();
    }

    // A snapshot of the very text that is shown.
    void aStepToTheSameTextIsAChange()
    {
        KeepingHost host;
        host.open();
        host.finish();
        host.box().setSelStart(host.box().TextLength());
        host.key(Qt::Key_Delete);
        host.key(Qt::Key_Delete);
        QSignalSpy changes(&host.box(), &RichTextBox::Change);
        host.undo();
        QCOMPARE(changes.count(), 1);
        QVERIFY(host.hasTouchedFew());
    }

    void aStepColoursWhatCancellingLeft()
    {
        KeepingHost host;
        host.open();
        host.view().cancelOpening();
        host.typeAt(10, u"temp1 temp2 "_s);
        host.undo();
        host.compareWithOpenedAnew();
        QVERIFY(host.hasColours(3995));
    }

    void aStepColoursByTheWordsOfNow()
    {
        KeepingHost host;
        host.open();
        host.finish();
        host.typeAt(10, u"temp1 temp2 "_s);
        host.list->UpdateWordListItem(u"Temp1"_s, u"Other"_s, dsInput);
        host.undo();
        host.finish();
        QCOMPARE(host.colourOf(u"Temp1 > Limit1"_s), -1);
    }

    void aStepTakesAwayWhatElseWasSet()
    {
        KeepingHost host;
        host.open();
        host.finish();
        host.box().setSelStart(host.box().lineStart(3000));
        host.box().setSelLength(5);
        host.box().setSelColor(0x123456);
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        QTextCursor cursor(host.box().document()->findBlockByNumber(1000));
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(bold);
        host.typeAt(10, u"temp1 temp2 "_s);
        host.undo();
        QVERIFY(host.hasTouchedFew());
        host.compareWithOpenedAnew();
    }

    void bookmarksStayOnLinesThatAStepDoesNotChange()
    {
        KeepingHost host;
        host.open();
        host.finish();
        host.typeAt(1000, u"temp1 "_s);
        host.box().setSelStart(host.box().lineStart(1000));
        host.view().toggleBookmark();
        host.typeAt(3000, u"temp1 temp2 "_s);
        host.undo();
        host.box().setSelStart(0);
        QVERIFY(host.view().nextBookmark());
        QCOMPARE(host.box().GetLineFromChar(host.box().SelStart()), 1000);
    }

    void aStepTouchesFewLinesOfAColouredProgram()
    {
        SteppingHost host;
        host.open(colouredProgram());
        host.finish();
        for (const int line : {2000, 2001, 2002, 30, 3900})
            host.typeAt(line, u"temp1 (x) "_s);
        host.undo(); // sets all brackets off
        QVERIFY(!host.hasTouchedFew());
        host.compareWithTheRing();
        while (host.list->IsUndoAvailable()) {
            host.undo();
            QVERIFY(host.hasTouchedFew());
            host.compareWithTheRing();
        }
        while (host.list->IsRedoAvailable()) {
            host.redo();
            QVERIFY(host.hasTouchedFew());
            host.compareWithTheRing();
        }
    }

    // The snapshots have the brackets that colouring has set off.
    void soItDoesWhatWasTypedSince()
    {
        SteppingHost host;
        host.open(colouredProgram());
        host.finish();
        host.typeAt(2000, u"x y "_s);
        host.undo();
        host.finish();
        host.rest();
        for (const int line : {1000, 1001, 1002, 3900})
            host.typeAt(line, u"temp1 (x) "_s);
        for (int i = 0; i < 7; ++i) {
            host.undo();
            QVERIFY(host.hasTouchedFew());
            host.compareWithTheRing();
        }
        host.redo();
        QVERIFY(host.hasTouchedFew());
        host.compareWithTheRing();
    }

    // Two words that a tab parts become one, of another colour.
    void whatColouringChangesTwiceIsColouredAnew()
    {
        SteppingHost host;
        host.open(colouredProgram() + u"\r\nend\tif"_s);
        host.finish();
        host.typeAt(2000, u"x y "_s);
        host.undo();
        host.finish();
        host.rest();
        host.typeAt(1000, u"temp1 (x) "_s);
        host.undo();
        host.compareWithTheRing();
        host.undo();
        host.compareWithTheRing();
    }

    void anythingTypedInAColouredProgramLooksAsInTheRing()
    {
        const unsigned seed = randomSeed(7);
        std::mt19937 random(seed);
        const auto below = [&](unsigned count) { return static_cast<int>(random() % count); };
        const QStringList words{u"temp1 "_s, u"if "_s,     u"x"_s,        u"\n"_s,
                                u"rem "_s,   u"(fan1) "_s, u"end\tif "_s, u"\n \n"_s};
        SteppingHost host;
        host.open(colouredProgram());
        for (int step = 0; step < randomSteps(80); ++step) {
            const int what = below(16);
            const bool isStep =
                what < 4 ? host.list->IsUndoAvailable() : what < 7 && host.list->IsRedoAvailable();
            if (what < 4)
                host.undo();
            else if (what < 7)
                host.redo();
            else if (what == 7)
                host.key(Qt::Key_Backspace);
            else if (what == 8)
                host.rest();
            else if (what == 9)
                host.pass();
            else
                host.typeAt(below(8) * 10 + below(3), words[below(8)]);
            if (isStep && below(2) == 0)
                host.compareWithTheRing();
        }
    }

    // In the midst of a step: nothing of it is known to be right.
    void aTextThatComesDuringAStepIsColouredByTheNext()
    {
        for (const bool keeps : {false, true}) {
            SteppingHost host;
            host.view().setKeepsText(keeps);
            host.open(colouredProgram());
            host.finish();
            host.typeAt(2000, u"temp1 temp2 "_s);
            host.undo();
            host.finish();
            host.typeAt(2000, u"temp1 temp2 "_s);
            const QString plain = host.list->CodeText();
            const auto once = std::make_shared<bool>(true);
            QObject::connect(host.box().document(), &QTextDocument::contentsChange, &host.form,
                             [&host, &plain, once] {
                                 if (std::exchange(*once, false))
                                     host.box().setText(plain);
                             });
            host.undo();
            host.finish();
            host.undo();
            if (keeps)
                host.compareWithOpenedAnew();
            else
                host.compareWithTheRing();
        }
    }

    void textsWithTheirSeparatorAreRefusedAsEver()
    {
        KeepingHost host;
        host.open(longProgram() + u"\r\n%%%%%%\r\n"_s);
        host.finish();
        host.key(Qt::Key_Delete);
        host.typeAt(10, u"temp1 "_s);
        const QString text = host.list->CodeText();
        QString error;
        host.list->Undo(error);
        QVERIFY(!error.isEmpty());
        QVERIFY(host.list->CodeText() == text);
    }

    void anythingTypedAndTakenBackLooksAsOpenedAnew()
    {
        const unsigned seed = randomSeed(7);
        std::mt19937 random(seed);
        const auto below = [&](unsigned count) { return static_cast<int>(random() % count); };
        const QStringList words{u"temp1 "_s, u"if "_s, u"x"_s, u"\n"_s, u"rem "_s, u"(fan1) "_s};
        KeepingHost host;
        host.open();
        for (int step = 0; step < randomSteps(120); ++step) {
            switch (below(6)) {
            case 0:
                host.undo();
                break;
            case 1:
                host.redo();
                break;
            case 2:
                host.key(Qt::Key_Backspace);
                break;
            case 3:
                host.pass();
                break;
            default:
                host.typeAt(below(8) * 10 + below(3), words[below(6)]);
            }
        }
        host.undo(); // what was typed last is finished by that
        host.undo();
        while (host.ring().CanUndo())
            host.undo();
        QVERIFY(host.list->CodeText() ==
                splitUndoRecord(host.ring().FetchUndoSnapshot(host.ring().UndoCurrent())).text);
        host.compareWithOpenedAnew();
    }
};

ORVT_TEST(LineStepTest)
#include "LineStepTest.moc"
