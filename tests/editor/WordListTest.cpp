// The pop-up list of known words.

#include "editor/EditorHost.h"
#include "editor/rules/language/CodeWordList.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

#include <ORVTListview/Error.h>
#include <ORVTListview/ImageList.h>

#include <QtGui/QScreen>
#include <QtWidgets/QPushButton>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class WordListTest : public WidgetTest
{
    Q_OBJECT

private:
    static void popUp(EditorHost &host, bool absolutely = false)
    {
        host.list->TryToPopupList(absolutely);
    }
    static bool isOpen(EditorHost &host) { return host.wordList().isVisible(); }
    static QString chosen(EditorHost &host)
    {
        const ListItem *item = host.wordList().SelectedItem();
        return item ? item->Text() : QString();
    }

private Q_SLOTS:
    void whatIsFoundOrCompiledIsNotBehindIt()
    {
        for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::ControlModifier}) {
            EditorHost host;
            host.setText(u"nobody|"_s);
            popUp(host);
            QVERIFY(isOpen(host));
            host.key(Qt::Key_F6, modifiers);
            QVERIFY(!isOpen(host));
            QVERIFY(host.box().hasFocus());
            QCOMPARE(host.marked(), u"nobody|"_s);
        }
    }

    void ctrlSpaceOpensItForAnUnknownWord()
    {
        EditorHost host;
        host.setText(u"nobody|"_s);
        host.key(Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(isOpen(host));
        QCOMPARE(chosen(host), QString());
        QVERIFY(host.box().hasFocus());
        host.key(Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(!isOpen(host)); // a second time closes it
        QCOMPARE(host.marked(), u"nobody|"_s);
    }

    void anEmptyLineOrWordOpensItWithNothingChosen()
    {
        EditorHost host;
        host.setText(u"|"_s);
        popUp(host);
        QVERIFY(isOpen(host));
        QCOMPARE(chosen(host), QString());
        popUp(host);
        host.setText(u"f(|"_s);
        popUp(host);
        QVERIFY(isOpen(host));
        QCOMPARE(chosen(host), QString());
    }

    void aKnownWordIsColouredAndNoListOpens()
    {
        EditorHost host;
        host.setText(u"x temp1|"_s);
        popUp(host);
        QVERIFY(!isOpen(host));
        QCOMPARE(host.marked(), u"x temp1|"_s); // letter case unchanged
        QCOMPARE(host.colourAt(2), 0x0000FF);
        QCOMPARE(host.colourAt(0), ColouredText::automatic);
        QVERIFY(host.box().hasFocus());
        QCOMPARE(host.ring().UndoNewest(), 0);
    }

    void aKnownWordIsChosenWhenShownAbsolutely()
    {
        EditorHost host;
        host.setText(u"te|mp1"_s);
        popUp(host, true);
        QVERIFY(isOpen(host));
        QCOMPARE(chosen(host), u"Temp1"_s);
    }

    void aNumberNeverOpensItUnlessAbsolutely()
    {
        EditorHost host;
        host.setText(u"12|"_s);
        popUp(host);
        QVERIFY(!isOpen(host));
        QCOMPARE(host.colourAt(0), ColouredText::automatic); // black on white, white on black
        QCOMPARE(host.box().SelColor(), 0);
        popUp(host, true);
        QVERIFY(isOpen(host));
    }

    void onACommentLineTheCaretGoesToItsEnd_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("first line") << u"rem| x y\r\nnext"_s << u"rem x y|\r\nnext"_s;
        QTest::newRow("last line") << u"a\r\n\t REM b|c"_s << u"a\r\n\t REM bc|"_s;
        QTest::newRow("at its end") << u"REM|\r\nb"_s << u"REM|\r\nb"_s;
    }
    void onACommentLineTheCaretGoesToItsEnd()
    {
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        EditorHost host;
        host.setText(before);
        popUp(host);
        QVERIFY(!isOpen(host));
        QCOMPARE(host.marked(), after);
    }

    void theWordIsTheOneAfterTheBracket()
    {
        EditorHost host;
        host.setText(u"IF(tem|"_s);
        popUp(host);
        QVERIFY(isOpen(host));
        QCOMPARE(chosen(host), u"Temp1"_s);
        host.key(Qt::Key_Return);
        QCOMPARE(host.marked(), u"IF(Temp1|"_s);
    }

    void typingMovesToTheFirstEntryWithThatBeginning()
    {
        EditorHost host;
        host.setText(u"x |"_s);
        popUp(host);
        host.type(u"t"_s);
        QCOMPARE(chosen(host), u"Temp1"_s);
        host.type(u"emp2"_s);
        QCOMPARE(chosen(host), u"Temp2"_s);
        host.key(Qt::Key_Backspace);
        QVERIFY(isOpen(host));
        QCOMPARE(chosen(host), u"Temp1"_s);
        host.type(u"q"_s);
        QCOMPARE(chosen(host), QString());
        QVERIFY(isOpen(host));
        QCOMPARE(host.marked(), u"x tempq|"_s);
    }

    void movingKeysMoveInTheList()
    {
        EditorHost host;
        host.setText(u"|"_s);
        popUp(host);
        const QString first = host.wordList().ListItems()->Item(1)->Text();
        const qint32 count = host.wordList().ListItems()->Count();
        host.key(Qt::Key_Down);
        QCOMPARE(chosen(host), first);
        host.key(Qt::Key_Down);
        QCOMPARE(host.wordList().SelectedItem()->Index(), 2);
        host.key(Qt::Key_Up);
        host.key(Qt::Key_Up);
        QCOMPARE(host.wordList().SelectedItem()->Index(), 1);
        host.key(Qt::Key_End);
        QCOMPARE(host.wordList().SelectedItem()->Index(), count);
        host.key(Qt::Key_Down);
        QCOMPARE(host.wordList().SelectedItem()->Index(), count);
        host.key(Qt::Key_Home);
        QCOMPARE(host.wordList().SelectedItem()->Index(), 1);
        host.key(Qt::Key_PageDown);
        const qint32 page = host.wordList().SelectedItem()->Index();
        QVERIFY(page > 2);
        host.key(Qt::Key_PageUp);
        QCOMPARE(host.wordList().SelectedItem()->Index(), 1);
        QCOMPARE(host.marked(), u"|"_s);
    }

    void enterAndTabTakeTheEntry_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Tab") << int(Qt::Key_Tab);
    }
    void enterAndTabTakeTheEntry()
    {
        QFETCH(const int, key);
        EditorHost host;
        host.setText(u"x fa|n y"_s);
        popUp(host);
        QCOMPARE(chosen(host), u"Fan1"_s);
        host.key(key);
        QVERIFY(!isOpen(host));
        QCOMPARE(host.marked(), u"x Fan1| y"_s);
        QCOMPARE(host.colourAt(2), 0xFF0080);
        QCOMPARE(host.ring().UndoNewest(), 1); // one snapshot before it
        QVERIFY(host.ring().FetchUndoSnapshot(1).startsWith(u"x fan y\r\n"_s));
    }

    void withNothingChosenEnterAndTabActAsUsual()
    {
        EditorHost host;
        host.setText(u"nobody|"_s);
        popUp(host);
        host.key(Qt::Key_Return);
        QVERIFY(!isOpen(host));
        QCOMPARE(host.marked(), u"nobody\r\n|"_s);
        popUp(host);
        host.key(Qt::Key_Tab);
        QVERIFY(!isOpen(host));
        QCOMPARE(host.marked(), u"nobody\r\n\t|"_s);
    }

    void aDoubleClickTakesTheEntry()
    {
        EditorHost host;
        host.setText(u"|"_s);
        popUp(host);
        host.type(u"f"_s);
        auto *viewport = host.wordList().viewport();
        const int row = host.wordList().SelectedItem()->Index() - 1;
        const QRect cell = host.wordList().visualRect(host.wordList().model()->index(row, 0));
        const QString text = chosen(host);
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, cell.center());
        QVERIFY(!isOpen(host));
        QCOMPARE(host.marked(), text + u'|');
        QVERIFY(host.box().hasFocus());
    }

    void escapeClosesIt()
    {
        EditorHost host;
        host.setText(u"fa|"_s);
        popUp(host);
        host.key(Qt::Key_Escape);
        QVERIFY(!isOpen(host));
        QCOMPARE(host.marked(), u"fa|"_s);
    }

    void aClickElsewhereClosesIt()
    {
        EditorHost host;
        host.setText(u"fa|\r\nx"_s);
        popUp(host);
        QTest::mouseClick(host.box().viewport(), Qt::LeftButton, {}, {200, 100});
        QVERIFY(!isOpen(host));
        popUp(host);
        QVERIFY(isOpen(host));
        QTest::mouseClick(&host.form, Qt::LeftButton, {}, {2, 2});
        QVERIFY(!isOpen(host));
    }

    void losingTheFocusClosesIt()
    {
        EditorHost host;
        host.setText(u"fa|"_s);
        popUp(host);
        host.after->setFocus();
        QVERIFY(!isOpen(host));
    }

    void theCaretLeavingTheWordClosesIt()
    {
        EditorHost host;
        host.setText(u"x fa|n"_s);
        popUp(host);
        host.key(Qt::Key_Left);
        QVERIFY(isOpen(host));
        host.key(Qt::Key_Left);
        host.key(Qt::Key_Left);
        host.key(Qt::Key_Left);
        QVERIFY(!isOpen(host));
        host.setText(u"fa|n"_s);
        popUp(host);
        host.type(u" "_s);
        QVERIFY(!isOpen(host));
    }

    void entriesHaveKeyTagAndPicture()
    {
        EditorHost host;
        IndexedNameList names;
        names.Add(u"Tmp"_s, u"0"_s, 1, 1);
        host.tree.setStringIndexCollection(&names);
        host.list->RefillListviewWithWordList();
        const struct
        {
            QString word;
            qint32 colour;
            QString picture;
        } expected[] = {
            {u"Var1"_s, 0xFF0000, u"67"_s},
            {u"Limit1"_s, 0x000080, u"66"_s},
            {u"Temp1"_s, 0x0000FF, u"68"_s},
            {u"Fan1"_s, 0xFF0080, u"69"_s},
            {u"NetTemp"_s, 0x008080, u"71"_s},
            {u"IF"_s, 0, u"64"_s},
            {u"DAY"_s, 0, u"62"_s},
            {u"AVERAGE"_s, 0, u"63"_s},
            {u"CLEAR"_s, 0, u"61"_s},
            {u"Tmp1"_s, 0, u"61"_s},
        };
        for (const auto &row : expected) {
            ListItem *item = host.wordList().ListItems()->Item(row.word);
            QCOMPARE(item->Text(), row.word);
            QCOMPARE(item->Tag(), QString::number(row.colour));
            QCOMPARE(item->PictureKey(), row.picture);
            QVERIFY(!host.list->GetImage()->Picture(row.picture.toInt()).isNull());
        }
    }

    void everyTextIsListedOnce()
    {
        EditorHost host;
        host.variables.Add(u"TEMP1"_s); // an input too; constants, variables come first
        host.list->RefillListviewWithWordList();
        int found = 0;
        for (qint32 i = 1; i <= host.wordList().ListItems()->Count(); ++i) {
            ListItem *item = host.wordList().ListItems()->Item(i);
            if (item->Text().compare(u"temp1"_s, Qt::CaseInsensitive) == 0) {
                ++found;
                QCOMPARE(item->Tag(), QString::number(0xFF0000)); // as colouring finds it
            }
        }
        QCOMPARE(found, 1);
    }

    void updatingRenamesOrAddsAWord()
    {
        EditorHost host;
        host.list->UpdateWordListItem(u"Temp1"_s, u"SupplyTemp"_s, dsInput);
        QVERIFY(host.list->GetColorText(u"temp1"_s).endsWith(u"\\cf0 temp1}"_s));
        QVERIFY(host.list->GetColorText(u"supplytemp"_s).endsWith(u"\\cf4 SupplyTemp}"_s));
        QCOMPARE(host.wordList().ListItems()->Item(u"SupplyTemp"_s)->Tag(),
                 QString::number(0x0000FF));
        host.list->UpdateWordListItem(u"nobody"_s, u"New1"_s, dsVariable);
        QVERIFY(host.list->GetColorText(u"new1"_s).endsWith(u"\\cf7 New1}"_s));
        host.list->UpdateWordListItem(u"Fan1"_s, u"Other"_s, dsLog);
        host.list->UpdateWordListItem(u"Fan1"_s, QString(), dsOutput);
        QVERIFY(host.list->GetColorText(u"fan1 other"_s).endsWith(u"\\cf5 Fan1 \\cf0 other}"_s));
        const qint32 rows = host.wordList().ListItems()->Count();
        host.list->RefillListviewWithWordList(); // from the host's collections again
        QCOMPARE(host.wordList().ListItems()->Count(), rows - 1);
    }

    void readyCollectionsAreFollowed()
    {
        EditorHost host;
        host.inputs.Add(u"Zone1"_s);
        QVERIFY(host.list->GetColorText(u"zone1"_s).endsWith(u"\\cf4 Zone1}"_s));
        host.setText(u"zon|"_s);
        popUp(host);
        QCOMPARE(chosen(host), u"Zone1"_s);
        host.key(Qt::Key_Return);
        QCOMPARE(host.marked(), u"Zone1|"_s);
        QCOMPARE(host.colourAt(0), 0x0000FF);

        host.inputs.Remove(u"Zone1"_s);
        host.variables.Add(u"Zone1"_s);
        popUp(host); // as a known word
        QVERIFY(!isOpen(host));
        QCOMPARE(host.colourAt(0), 0xFF0000);
        host.variables.Clear();
        QVERIFY_THROWS_EXCEPTION(Error, host.list->ListItems()->Item(u"Zone1"_s));
        QVERIFY(!host.list->FindItem(u"Var1"_s));
        host.outputs.Add(u"Zone2"_s);
        QVERIFY(host.list->FindItem(u"Zone2"_s));
    }

    void typingFollowsReadyCollections()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.inputs.Add(u"Zone1"_s);
        host.type(u"zone1 "_s);
        QCOMPARE(host.marked(), u"Zone1 |"_s);
        QCOMPARE(host.colourAt(0), 0x0000FF);
    }

    void whatIsOpenStaysAndIsFollowedWhenItOpensNext()
    {
        EditorHost host;
        host.setText(u"zon|"_s);
        popUp(host);
        const qint32 rows = host.wordList().ListItems()->Count();
        host.inputs.Add(u"Zone1"_s);
        QVERIFY(isOpen(host));
        QCOMPARE(host.list->ListItems()->Count(), rows);
        popUp(host);
        popUp(host);
        QVERIFY(isOpen(host));
        QCOMPARE(chosen(host), u"Zone1"_s);
    }

    void anEmptyIndexDoesNoHarm()
    {
        ORVListView list;
        list.setListviewType(dsCode);
        list.resize(300, 200);
        list.show();
        list.RTextBox()->setFocus();
        list.TryToPopupList();
        QTest::keyClick(list.RTextBox(), Qt::Key_Down);
        QTest::keyClick(list.RTextBox(), Qt::Key_PageUp);
        QTest::keyClick(list.RTextBox(), Qt::Key_End);
        QTest::keyClick(list.RTextBox(), 'a');
        QTest::keyClick(list.RTextBox(), Qt::Key_Return);
        QCOMPARE(list.CodeText(), u"a\r\n"_s);
    }

    void inAListTypeTheListIsTheHosts()
    {
        EditorHost host;
        host.setText(u"fa|"_s);
        popUp(host);
        host.list->setListviewType(dsInput);
        QVERIFY(!host.wordList().isWindow());
        host.wordList().Add(0, u"mine"_s, u"mine"_s);
        const qint32 rows = host.wordList().ListItems()->Count();
        host.list->RefillListviewWithWordList();
        QCOMPARE(host.wordList().ListItems()->Count(), rows);
        host.list->setListviewType(dsCode);
        QVERIFY(host.wordList().ListItems()->Count() > 30);
        host.list->setListviewType(dsInput);
        QVERIFY_THROWS_EXCEPTION(Error, host.wordList().ListItems()->Item(u"IF"_s));
    }

    void itStaysOnTheScreen()
    {
        EditorHost host;
        const QRect screen = host.form.screen()->availableGeometry();
        host.form.move(screen.right() - 200, screen.bottom() - 150);
        host.setText(QString(60, u' ') + u"fa|"_s);
        popUp(host);
        QVERIFY(isOpen(host));
        QVERIFY2(screen.contains(host.wordList().geometry()),
                 qPrintable(QDebug::toString(host.wordList().geometry())));
        const QRect caret(host.box().viewport()->mapToGlobal(host.box().cursorRect().topLeft()),
                          host.box().cursorRect().size());
        QVERIFY(!host.wordList().geometry().intersects(caret));
    }

    void wholeWordsAreFoundWithoutMovingTheSelection_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("word");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("colour");
        QTest::newRow("input") << u"if (temp1)"_s << 6 << u"temp1"_s << 5 << 0x0000FF;
        QTest::newRow("keyword") << u"if (temp1)"_s << 1 << u"if"_s << 1 << 0;
        QTest::newRow("after a bracket") << u"f()"_s << 2 << u""_s << 3 << 0;
        QTest::newRow("nvi has no class of its own here")
            << u"nettemp"_s << 2 << u"nettemp"_s << 1 << 0;
        QTest::newRow("comment") << u"rem temp1"_s << 6 << u"temp1"_s << 5 << 0x008000;
        QTest::newRow("second line") << u"x\r\nfan1 y"_s << 4 << u"fan1"_s << 4 << 0xFF0080;
        QTest::newRow("at a line start") << u"x\r\nfan1 y"_s << 3 << u"fan1"_s << 4 << 0xFF0080;
    }
    void wholeWordsAreFoundWithoutMovingTheSelection()
    {
        QFETCH(const QString, text);
        QFETCH(const int, position);
        QFETCH(const QString, word);
        QFETCH(const int, start);
        QFETCH(const int, colour);
        EditorHost host;
        host.list->setCodeText(text);
        host.box().setSelStart(0);
        host.box().setSelLength(2);
        const QString marked = host.marked();
        qint32 at = position;
        qint32 wordStart = -1;
        qint32 wordColour = -1;
        QCOMPARE(host.list->GetWholeWord(at, wordStart, wordColour), word);
        QCOMPARE(wordStart, start);
        QCOMPARE(wordColour, colour);
        QCOMPARE(host.marked(), marked);
    }
};

ORVT_TEST(WordListTest)
#include "WordListTest.moc"
