// Programs that are opened with their colours to come later.

#include "editor/OpeningHost.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/undo/UndoRecord.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QDropEvent>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QScrollBar>

#include <functional>
#include <stdexcept>

using namespace ORVTListview;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

struct Case
{
    const char *name;
    EditorAct act;
};

void putCaret(EditorHost &host, int line, int column = 0)
{
    host.box().setSelStart(host.box().lineStart(line) + column);
}

// At the caret.
EditorAct drop(const QString &text)
{
    return [text](EditorHost &host) {
        QMimeData data;
        data.setText(text);
        host.box().ensureCursorVisible();
        const QPointF place = host.box().cursorRect().center();
        QWidget &viewport = *host.box().viewport();
        QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&viewport, &enter);
        QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&viewport, &event);
    };
}

// What the user or the host does; all of it far from the lines in view.
QList<Case> acts()
{
    const auto at = [](int line, int column, auto act) {
        return [=](EditorHost &host) {
            putCaret(host, line, column);
            act(host);
        };
    };
    const auto keys = [](const QString &text) {
        return [=](EditorHost &host) { host.type(text); };
    };
    const auto press = [](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        return [=](EditorHost &host) { host.key(key, modifiers); };
    };
    return {
        {"nothing", [](EditorHost &) {}},
        {"typing", at(3002, 4, keys(u" temp2 fan1"_s))},
        {"typing in a comment", at(3001, 5, keys(u"x y "_s))},
        {"a new line", at(3000, 10, keys(u"\n"_s))},
        {"joining by Backspace", at(3002, 0, press(Qt::Key_Backspace))},
        {"joining by Delete", at(2999, 5, press(Qt::Key_Delete))},
        {"a word removed backwards", at(3002, 0, press(Qt::Key_Backspace, Qt::ControlModifier))},
        {"up and down", at(3002, 2,
                           [](EditorHost &host) {
                               host.key(Qt::Key_Down);
                               host.key(Qt::Key_Up);
                           })},
        {"a selection typed over", at(2500, 3,
                                      [](EditorHost &host) {
                                          host.box().setSelLength(900);
                                          host.type(u"a"_s);
                                          host.key(Qt::Key_Down);
                                      })},
        {"a selection pasted over", at(2500, 3,
                                       [](EditorHost &host) {
                                           host.box().setSelLength(900);
                                           QGuiApplication::clipboard()->setText(
                                               u"if temp1\nfan1"_s);
                                           host.key(Qt::Key_V, Qt::ControlModifier);
                                       })},
        {"a cut", at(2500, 3,
                     [](EditorHost &host) {
                         host.box().setSelLength(50);
                         host.list->RTextCut();
                     })},
        {"all typed over",
         [](EditorHost &host) {
             host.list->RTextSelectAll();
             host.type(u"x y "_s);
         }},
        {"undo of typing", at(3000, 4,
                              [](EditorHost &host) {
                                  host.type(u"x y "_s);
                                  QString errMsg;
                                  host.list->Undo(errMsg);
                              })},
        {"undo and redo", at(3000, 4,
                             [](EditorHost &host) {
                                 host.type(u"x y z "_s);
                                 QString errMsg;
                                 host.list->Undo(errMsg);
                                 host.list->Undo(errMsg);
                                 host.list->Redo(errMsg);
                             })},
        {"undo and redo of a text that is kept as it is",
         at(3000, 4,
            [](EditorHost &host) {
                host.list->codeView()->setKeepsText(true);
                host.type(u"x temp1 z "_s);
                for (const int key : {Qt::Key_Z, Qt::Key_Z, Qt::Key_Y})
                    host.key(key, Qt::ControlModifier);
            })},
        {"names dropped", at(3000, 4, drop(u"temp1 fan1"_s))},
        {"text dropped in place of a selection", at(2990, 4,
                                                    [](EditorHost &host) {
                                                        host.box().setSelLength(200);
                                                        drop(u"if temp1\nfan1"_s)(host);
                                                    })},
        {"found far below",
         [](EditorHost &host) { QVERIFY(host.box().Find(u"var1 = 3900"_s) > 0); }},
        {"saved in the middle",
         [](EditorHost &host) { QVERIFY(host.list->CodeText().contains(u"Var1 = 3900"_s)); }},
        {"an indent", at(2600, 1,
                         [](EditorHost &host) {
                             host.box().setSelLength(500);
                             host.key(Qt::Key_Tab);
                         })},
        {"moved lines", at(2600, 1, [](EditorHost &host) { host.list->codeView()->moveLines(3); })},
        {"duplicated lines",
         at(2600, 1, [](EditorHost &host) { host.list->codeView()->duplicateLines(); })},
        {"sorted lines", at(2600, 1,
                            [](EditorHost &host) {
                                host.box().setSelLength(2000);
                                host.list->codeView()->sortLines();
                            })},
        {"joined lines", at(2600, 1, [](EditorHost &host) { host.list->codeView()->joinLines(); })},
        {"a comment",
         at(2600, 1, [](EditorHost &host) { host.list->codeView()->toggleComment(); })},
        {"tidied", [](EditorHost &host) { host.list->codeView()->tidy(); }},
        {"a word replaced throughout",
         [](EditorHost &host) {
             QString errMsg;
             host.list->ReplaceRichTextBox(u"temp1"_s, u"fan1"_s, errMsg, true);
         }},
        {"a word replaced in its colours",
         [](EditorHost &host) {
             QString errMsg;
             host.list->ReplaceRichTextBox(u"temp1"_s, u"longer name"_s, errMsg, false);
         }},
        {"the host's text",
         at(2600, 5, [](EditorHost &host) { host.box().setSelText(u"host\r\nline"_s); })},
        {"the host's RTF",
         at(2600, 5,
            [](EditorHost &host) {
                host.box().setSelRTF(
                    u"{\\rtf1{\\colortbl;\\red9\\green8\\blue7;}\\cf1 RTF\\par x}"_s);
            })},
        {"the host's colour", at(2600, 5,
                                 [](EditorHost &host) {
                                     host.box().setSelLength(300);
                                     host.box().setSelColor(0x123456);
                                 })},
        {"the host's colour for what comes", at(2600, 5,
                                                [](EditorHost &host) {
                                                    host.box().setSelColor(0x123456);
                                                    host.box().setSelText(u"abc"_s);
                                                })},
        {"the appearance",
         [](EditorHost &host) {
             host.settings.InputColor = 0x00ABCDEF;
             host.list->Init_RichTextBox(host.settings);
         }},
        {"the ground", [](EditorHost &host) { host.box().setBackColor(0); }},
        {"another font", [](EditorHost &host) { host.box().setFontSize(14); }},
        {"a table and back",
         [](EditorHost &host) {
             host.list->setListviewType(dsInput);
             QCoreApplication::processEvents();
             host.list->setListviewType(dsCode);
         }},
        {"new words",
         [](EditorHost &host) { host.list->UpdateWordListItem(u"Temp1"_s, u"Heat"_s, dsInput); }},
        {"another language",
         [](EditorHost &host) {
             QEvent change(QEvent::LanguageChange);
             QCoreApplication::sendEvent(host.list, &change);
         }},
        {"another palette", [](EditorHost &host) { host.form.setPalette(QPalette(Qt::black)); }},
        {"disabled", [](EditorHost &host) { host.list->setEnabled(false); }},
        {"typing where nothing may be typed", at(3002, 4,
                                                 [](EditorHost &host) {
                                                     host.box().setReadOnly(true);
                                                     host.type(u"x y "_s);
                                                 })},
        {"read-only", [](EditorHost &host) { host.box().setReadOnly(true); }},
        {"hidden", [](EditorHost &host) { host.form.hide(); }},
        {"another program",
         [](EditorHost &host) {
             host.list->openProgram(longProgram().replace(u"fan1"_s, u"temp2"_s));
         }},
        {"another text", [](EditorHost &host) { host.list->setCodeText(longProgram().toUpper()); }},
        {"nothing left", [](EditorHost &host) { host.list->Clear(); }},
        {"folded",
         [](EditorHost &host) {
             host.list->codeView()->setFoldingEnabled(true);
             host.list->codeView()->foldAll();
         }},
    };
}

} // namespace

class OpeningTest : public WidgetTest
{
    Q_OBJECT

private:
    struct Result
    {
        QStringList picture;
        QString text;
        QString rtf;
        int start = 0;
        int length = 0;
        QString base;
        bool canUndo = false;
        QString undone;
    };

    static Result resultOf(EditorHost &host)
    {
        Result result;
        result.picture = pictureOf(host.box());
        result.text = host.list->CodeText();
        result.rtf = host.box().TextRTF();
        result.start = host.box().SelStart();
        result.length = host.box().SelLength();
        result.base = host.ring().UndoSlots(0);
        result.canUndo = host.list->IsUndoAvailable();
        QString errMsg;
        host.list->Undo(errMsg);
        result.undone = host.list->CodeText();
        return result;
    }

    static void compare(const Result &late, const Result &atOnce)
    {
        QCOMPARE(late.text, atOnce.text);
        comparePictures(late.picture, atOnce.picture);
        QVERIFY(late.rtf == atOnce.rtf);
        QCOMPARE(late.start, atOnce.start);
        QCOMPARE(late.length, atOnce.length);
        QVERIFY(late.base == atOnce.base);
        QCOMPARE(late.canUndo, atOnce.canUndo);
        QCOMPARE(late.undone, atOnce.undone);
    }

private Q_SLOTS:
    void theTextIsThereAtOnceAndItsColoursInView()
    {
        OpeningHost host;
        host.list->openProgram(longProgram());
        const QString text = host.list->CodeText();
        host.setText(u"x|"_s);
        QSignalSpy changes(&host.box(), &RichTextBox::Change);
        host.open();
        QVERIFY(host.view().isOpening());
        QVERIFY(host.list->CodeText() == text);
        QCOMPARE(host.box().TextLength(), static_cast<qint32>(text.size()));
        QCOMPARE(host.box().lineCount(), programLines);
        QCOMPARE(host.box().Find(u"VAR1 = 3995"_s),
                 static_cast<qint32>(text.indexOf(u"Var1 = 3995")));
        QCOMPARE(changes.size(), 1);
        host.box().setSelStart(0);
        host.box().viewport()->repaint();
        QVERIFY(host.hasColours(0));
        QVERIFY(host.hasColours(2));
        QVERIFY(!host.hasColours(3000));
        QVERIFY(host.view().isOpening());
        host.finish();
        QVERIFY(host.hasColours(3000));
        QCOMPARE(changes.size(), 1);
    }

    // Keys and painting come between the slices.
    void aSliceColoursFewLines()
    {
        constexpr int most = 8;
        OpeningHost host;
        host.open();
        host.pass();
        int left = host.colours().linesLeft();
        QVERIFY(left > programLines / 2);
        for (int i = 0; i < 20; ++i) {
            host.pass();
            const int now = host.colours().linesLeft();
            QVERIFY2(left - now <= 2 * most, qPrintable(QString::number(left - now)));
            QVERIFY(now < left);
            left = now;
        }
    }

    void linesInViewComeFirst()
    {
        OpeningHost host;
        host.open();
        host.box().verticalScrollBar()->setValue(2000);
        host.box().viewport()->repaint();
        QVERIFY(host.hasColours(2000));
        QVERIFY(!host.hasColours(1500));
        host.pass();
        host.pass();
        QVERIFY(!host.hasColours(1500));
        host.finish();
        QVERIFY(host.hasColours(1500));
    }

    void theEndIsThatOfOpeningInOneGo_data()
    {
        QTest::addColumn<EditorAct>("act");
        for (const Case &one : acts())
            QTest::newRow(one.name) << one.act;
    }

    void theEndIsThatOfOpeningInOneGo()
    {
        QFETCH(EditorAct, act);
        const auto run = [&](const EditorAct &open) {
            renewState();
            OpeningHost host;
            open(host);
            act(host);
            host.finish();
            return resultOf(host);
        };
        const Result atOnce = run([](EditorHost &host) { host.list->openProgram(longProgram()); });
        const Result late = run([](EditorHost &host) {
            host.list->codeView()->openProgram(longProgram());
            QVERIFY(host.list->codeView()->isOpening());
            QCoreApplication::processEvents();
        });
        compare(late, atOnce);
    }

    void whoAsksForColoursHasThemAll()
    {
        OpeningHost host;
        host.list->openProgram(longProgram());
        const QString rtf = host.list->CodeTextRTF();
        const qint32 place = host.box().lineStart(3000) + 7;
        const ColouredText some = host.box().coloured(place, 3000);
        host.list->Clear();
        host.open();
        QVERIFY(host.box().coloured(place, 3000) == some);
        QVERIFY(!host.hasColours(3900));
        putCaret(host, 2000, 7);
        QCOMPARE(host.box().SelColor(), host.settings.InputColor);
        QVERIFY(host.list->CodeTextRTF() == rtf);
        QVERIFY(!host.colours().areWaiting() || host.colours().linesLeft() == 0);
        host.finish();
    }

    // The words and colours of the call count.
    void whatChangesAfterwardsDoesNotCount()
    {
        OpeningHost host;
        host.open();
        host.inputs.Remove(u"Temp1"_s);
        host.finish();
        QCOMPARE(host.colourAt(host.box().lineStart(3000) + 8), host.settings.InputColor);
    }

    void colouringIsNoChange()
    {
        OpeningHost host;
        host.open();
        host.box().document()->setModified(false);
        QSignalSpy modified(&host.box(), &QPlainTextEdit::modificationChanged);
        QSignalSpy text(&host.box(), &QPlainTextEdit::textChanged);
        QSignalSpy change(&host.box(), &RichTextBox::Change);
        const int top = host.box().verticalScrollBar()->maximum();
        host.finish();
        QCOMPARE(modified.size(), 0);
        QCOMPARE(text.size(), 0);
        QCOMPARE(change.size(), 0);
        QVERIFY(!host.box().document()->isModified());
        QCOMPARE(host.box().verticalScrollBar()->maximum(), top);
        host.open();
        host.finish();
        QVERIFY(host.box().document()->isModified()); // as after opening in one go
    }

    void theViewStaysWhereItIs()
    {
        OpeningHost host;
        const QString wide(400, u'w');
        host.open(longProgram().replace(u"endif"_s, wide + u" temp1"_s));
        host.box().verticalScrollBar()->setValue(1000);
        host.box().viewport()->repaint();
        host.box().horizontalScrollBar()->setValue(900);
        const int left = host.box().horizontalScrollBar()->value();
        QVERIFY(left > 0);
        host.finish();
        QCOMPARE(host.box().horizontalScrollBar()->value(), left);
        QCOMPARE(host.box().verticalScrollBar()->value(), 1000);
    }

    void progressRunsToAHundred()
    {
        OpeningHost host;
        QSignalSpy progress(&host.view(), &CodeView::openingProgress);
        host.open();
        QCOMPARE(progress.size(), 0); // not within the call
        host.finish();
        QTRY_COMPARE(progress.isEmpty() ? -1 : progress.last().first().toInt(), 100);
        int last = -1;
        for (const auto &one : progress) {
            QVERIFY(one.first().toInt() > last);
            last = one.first().toInt();
        }
        QVERIFY(progress.size() > 50);
        progress.clear();
        QTest::qWait(20);
        QCOMPARE(progress.size(), 0);

        host.open(u"if temp1"_s); // has its colours at once
        QVERIFY(!host.view().isOpening());
        QCOMPARE(host.colourOf(u"Temp1"_s), host.settings.InputColor);
        QTRY_COMPARE(progress.size(), 1);
        QCOMPARE(progress.last().first().toInt(), 100);
    }

    void cancellingKeepsTheText()
    {
        OpeningHost host;
        host.list->openProgram(longProgram());
        const QString text = host.list->CodeText();
        host.list->Clear();
        QSignalSpy progress(&host.view(), &CodeView::openingProgress);
        host.open();
        host.box().viewport()->repaint();
        host.view().cancelOpening();
        QVERIFY(!host.view().isOpening());
        QTRY_COMPARE(progress.size(), 1);
        QCOMPARE(progress.last().first().toInt(), 100);
        QVERIFY(host.list->CodeText() == text);
        QVERIFY(host.hasColours(0));
        QVERIFY(!host.hasColours(3000));
        QVERIFY(!host.list->IsUndoAvailable());
        putCaret(host, 3000, 2);
        host.key(Qt::Key_Down); // a line that is worked on
        QVERIFY(host.hasColours(3000));
        QVERIFY(!host.hasColours(3010));
        host.view().cancelOpening();
        host.list->Init_RichTextBox(host.settings);
        QVERIFY(host.hasColours(3010));
    }

    void anotherTextEndsAnOpening()
    {
        OpeningHost host;
        QSignalSpy progress(&host.view(), &CodeView::openingProgress);
        host.open();
        host.list->setCodeText(u"if temp1"_s);
        QVERIFY(!host.view().isOpening());
        QTRY_COMPARE(progress.size(), 1);
        QCOMPARE(progress.last().first().toInt(), 100);
        QCOMPARE(host.colourOf(u"temp1"_s), -1);
    }

    void anotherProgramTakesOver()
    {
        OpeningHost host;
        host.open();
        host.pass();
        QSignalSpy progress(&host.view(), &CodeView::openingProgress);
        host.open(longProgram().replace(u"fan1"_s, u"temp2"_s));
        QVERIFY(host.view().isOpening());
        host.finish();
        QTRY_COMPARE(progress.isEmpty() ? -1 : progress.last().first().toInt(), 100);
        QVERIFY(!host.list->CodeText().contains(u"Fan1"_s));
        const QStringList late = pictureOf(host.box());
        host.list->openProgram(longProgram().replace(u"fan1"_s, u"temp2"_s));
        QCOMPARE(late, pictureOf(host.box()));
    }

    void whatUndoBringsBackGetsItsColoursLate_data()
    {
        QTest::addColumn<int>("back");
        QTest::addColumn<int>("forth");
        QTest::newRow("undo") << 1 << 0;
        QTest::newRow("undo twice") << 2 << 0;
        QTest::newRow("undo and redo") << 2 << 1;
    }

    void whatUndoBringsBackGetsItsColoursLate()
    {
        QFETCH(int, back);
        QFETCH(int, forth);
        OpeningHost host;
        host.open();
        host.finish();
        putCaret(host, 3000, 5);
        host.box().setSelRTF(u"{\\rtf1{\\b bold} \\i i\\par x}"_s);
        host.type(u"x y z "_s);
        QString errMsg;
        for (int i = 0; i < back; ++i)
            host.list->Undo(errMsg);
        for (int i = 0; i < forth; ++i)
            host.list->Redo(errMsg);
        QVERIFY(host.colours().areWaiting());
        QVERIFY(!host.view().isOpening());
        host.view().cancelOpening(); // not this
        const QString slot = host.ring().FetchUndoSnapshot(host.ring().UndoCurrent());
        const ColouredText expected =
            colouredText(threadColouring(), splitUndoRecord(slot).text, false, host.settings);
        QVERIFY(host.list->CodeText() == expected.text);
        host.box().ensureCursorVisible();
        host.box().viewport()->repaint();
        const int line = host.box().textCursor().blockNumber();
        QVERIFY2(host.hasColours(line), qPrintable(host.box().lineText(line)));
        host.finish();
        RichTextBox box;
        box.setFont(host.box().font());
        box.setColoured(expected);
        comparePictures(pictureOf(host.box()), pictureOf(box));
        QVERIFY(host.box().TextRTF() == box.TextRTF());
    }

    void theHostMayDestroyTheControl()
    {
        OpeningHost host;
        connect(&host.view(), &CodeView::openingProgress, &host.form, [&](int percent) {
            if (percent > 3)
                delete std::exchange(host.list, nullptr);
        });
        host.open();
        QTRY_VERIFY(!host.list);
        QTest::qWait(20);
    }

    void theHostMayDestroyTheControlInChange()
    {
        OpeningHost host;
        connect(&host.box(), &RichTextBox::Change, &host.form,
                [&] { delete std::exchange(host.list, nullptr); });
        host.open();
        QVERIFY(!host.list);
        QTest::qWait(20);
    }

    void theHostMayThrow()
    {
        OpeningHost host;
        connect(&host.view(), &CodeView::openingProgress, &host.form, [](int percent) {
            if (percent == 5)
                throw std::runtime_error("the host");
        });
        QTest::ignoreMessage(QtWarningMsg, "An event handler failed: the host");
        host.open();
        host.finish();
        QVERIFY(host.hasColours(3000));
    }

    void theHostMayOpenAnotherInTheMiddle()
    {
        OpeningHost host;
        bool isFirst = true;
        connect(&host.view(), &CodeView::openingProgress, &host.form, [&](int percent) {
            if (percent > 5 && std::exchange(isFirst, false))
                host.open(longProgram().replace(u"fan1"_s, u"temp2"_s));
        });
        host.open();
        QTRY_VERIFY(!isFirst);
        host.finish();
        QVERIFY(!host.list->CodeText().contains(u"Fan1"_s));
        QVERIFY(host.hasColours(3000));
    }

    // What goes past the box stays as it was set.
    void theDocumentChangedDirectly()
    {
        OpeningHost host;
        host.open();
        QTextCursor cursor(host.box().document()->findBlockByNumber(3000));
        cursor.insertText(u"temp2 "_s);
        QTextCursor other(host.box().document()->findBlockByNumber(3005));
        other.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        other.removeSelectedText();
        host.finish();
        QVERIFY(host.box().lineText(3000).startsWith(u"temp2 "_s));
        QCOMPARE(host.box().lineText(3005), QString());
        QVERIFY(host.hasColours(3010));
    }

    void anEditorThatWasNeverShown()
    {
        ORVListView list;
        PointList inputs;
        inputs.Add(u"Temp1"_s);
        ORVTreeview tree;
        tree.SetCollectionRenamable(nullptr, nullptr, nullptr, &inputs, nullptr, nullptr);
        list.setListviewType(dsCode);
        list.Init_RichTextBox(defaultColours());
        list.codeView()->openProgram(longProgram());
        QVERIFY(list.codeView()->isOpening());
        QTRY_VERIFY(!list.codeView()->isOpening());
        const QString rtf = list.CodeTextRTF();
        list.openProgram(longProgram());
        QVERIFY(list.CodeTextRTF() == rtf);
    }

    void withoutKnownWordsThereIsNothingToColour()
    {
        ORVListView list;
        list.setListviewType(dsCode);
        list.codeView()->openProgram(longProgram());
        QTRY_VERIFY(!list.codeView()->isOpening());
        QCOMPARE(list.CodeText(), longProgram());
        QVERIFY(messages().isEmpty());
    }
};

ORVT_TEST(OpeningTest)
#include "OpeningTest.moc"
