// A text that the host sets while the user's last line is not finished, and one set
// inside an event of the user's own edit.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethodEvent>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr qint32 none = -1;

// What happens while a message is shown, once.
class Interrupting final : public MessageService
{
public:
    void show(const Message &) override
    {
        if (const auto now = std::exchange(act, {}))
            now();
    }

    std::function<void()> act;
};

using Call = std::function<void(EditorHost &, const QString &)>;

// Each leaves the text, as it is given, in the box.
QList<std::pair<const char *, Call>> callsThatSetTheText()
{
    const auto asRtf = [](const QString &text) {
        RichTextBox box;
        box.setText(text);
        return box.TextRTF();
    };
    return {
        {"setCodeText",
         [](EditorHost &host, const QString &text) { host.list->setCodeText(text); }},
        {"setCodeTextRTF",
         [=](EditorHost &host, const QString &text) { host.list->setCodeTextRTF(asRtf(text)); }},
        {"setCodeTextRTF plain",
         [](EditorHost &host, const QString &text) { host.list->setCodeTextRTF(text); }},
        {"setText", [](EditorHost &host, const QString &text) { host.box().setText(text); }},
        {"setTextRTF",
         [=](EditorHost &host, const QString &text) { host.box().setTextRTF(asRtf(text)); }},
        {"setSelText over all",
         [](EditorHost &host, const QString &text) {
             host.list->RTextSelectAll();
             host.box().setSelText(text);
         }},
        {"setSelRTF over all",
         [=](EditorHost &host, const QString &text) {
             host.list->RTextSelectAll();
             host.box().setSelRTF(asRtf(text));
         }},
        {"Clear and setSelText",
         [](EditorHost &host, const QString &text) {
             host.list->Clear();
             host.box().setSelText(text);
         }},
    };
}

QString program(qsizetype lines)
{
    QStringList text;
    for (qsizetype i = 0; i < lines; ++i)
        text << u"if temp1 > %1"_s.arg(i);
    return text.join(u"\r\n"_s);
}

// The user types on a line, where the caret stays.
void typeOnLine(EditorHost &host, qint32 line)
{
    host.box().setSelStart(host.box().lineStart(line));
    host.key(Qt::Key_X);
}

// What would finish a line that is not.
void leaveTheLine(EditorHost &host)
{
    const qint32 last = host.box().lineCount() - 1;
    for (const qint32 line : {0, last / 2, last})
        host.box().setSelStart(host.box().lineStart(line));
    host.after->setFocus();
    host.box().setFocus();
}

bool hasNoColours(EditorHost &host)
{
    const ColouredText shown = host.box().coloured(0, host.box().TextLength());
    return std::all_of(shown.runs.begin(), shown.runs.end(),
                       [](const ColouredText::Run &run) { return run.colour == none; });
}

} // namespace

class EditorHostTextTest : public WidgetTest
{
    Q_OBJECT

private:
    static void addCalls()
    {
        QTest::addColumn<Call>("call");
        for (const auto &[name, call] : callsThatSetTheText())
            QTest::newRow(name) << call;
    }

private Q_SLOTS:
    void aLargeProgramIsReplaced_data() { addCalls(); }
    void aLargeProgramIsReplaced()
    {
        QFETCH(const Call, call);
        EditorHost host;
        for (const qsizetype lines : {1, 100, 2000, 3000}) {
            host.list->setCodeText(program(2000));
            typeOnLine(host, 1999);
            call(host, program(lines));
            QCOMPARE(host.box().Text(), program(lines));
            leaveTheLine(host);
            QCOMPARE(host.box().Text(), program(lines));
            QVERIFY(hasNoColours(host));
        }
    }

    void everyLineOfASmallProgramIsAsTheHostGaveIt_data() { addCalls(); }
    void everyLineOfASmallProgramIsAsTheHostGaveIt()
    {
        QFETCH(const Call, call);
        EditorHost host;
        for (const qint32 lines : {1, 2, 3, 10}) {
            for (qint32 line = 0; line < lines; ++line) {
                host.list->setCodeText(program(lines));
                typeOnLine(host, line);
                call(host, program(lines));
                leaveTheLine(host);
                QCOMPARE(host.box().Text(), program(lines));
                QVERIFY(hasNoColours(host));
            }
        }
    }

    void aTextSetInsideAnEventIsAsTheHostGaveIt_data() { addCalls(); }
    void aTextSetInsideAnEventIsAsTheHostGaveIt()
    {
        QFETCH(const Call, call);
        using Edit = std::function<void(EditorHost &)>;
        const QList<Edit> edits{
            [](EditorHost &host) { host.key(Qt::Key_X); },
            [](EditorHost &host) { host.key(Qt::Key_Space); },
            [](EditorHost &host) { host.key(Qt::Key_Return); },
            [](EditorHost &host) { host.key(Qt::Key_Backspace); },
            [](EditorHost &host) { host.key(Qt::Key_Delete); },
            [](EditorHost &host) { host.key(Qt::Key_V, Qt::ControlModifier); },
        };
        EditorHost host;
        QGuiApplication::clipboard()->setText(u"day\r\nday\r\nday"_s);
        bool isIdle = true;
        connect(&host.box(), &RichTextBox::Change, &host.form, [&] {
            if (std::exchange(isIdle, true))
                return;
            call(host, program(4));
        });
        for (const Edit &edit : edits) {
            host.list->setCodeText(program(3));
            host.box().setSelStart(host.box().lineStart(1) + 4);
            isIdle = false;
            edit(host);
            QVERIFY(isIdle);
            leaveTheLine(host);
            QCOMPARE(host.box().Text(), program(4));
        }
    }

    void aKeyThatOnlyMovesTakesNoTextForItsOwn_data() { addCalls(); }
    void aKeyThatOnlyMovesTakesNoTextForItsOwn()
    {
        QFETCH(const Call, call);
        EditorHost host;
        host.list->setCodeText(program(3));
        for (const int key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Escape}) {
            host.key(key);
            call(host, program(3));
            leaveTheLine(host);
            QCOMPARE(host.box().Text(), program(3));
            QVERIFY(hasNoColours(host));
        }
    }

    void newAppearanceColoursALargeProgram()
    {
        EditorHost host;
        host.list->setCodeText(program(2000));
        typeOnLine(host, 1999);
        host.list->Init_RichTextBox(host.settings);
        QCOMPARE(host.box().lineCount(), 2000);
        QCOMPARE(host.box().lineText(0), u"IF Temp1 > 0"_s);
        QCOMPARE(host.box().lineText(1999), u"xif Temp1 > 1999"_s);
    }

    // The words known now are others than those that the line was typed with.
    void newAppearanceLeavesNoLineUnfinished()
    {
        EditorHost host;
        host.list->setCodeText(u"a\r\nb"_s);
        typeOnLine(host, 1);
        host.list->Init_RichTextBox(host.settings);
        host.inputs.Add(u"XB"_s);
        host.list->RefillListviewWithWordList();
        leaveTheLine(host);
        QCOMPARE(host.box().Text(), u"a\r\nxb"_s);
    }

    void aLineTypedIsFinishedWhenOtherLinesChange()
    {
        EditorHost host;
        host.setText(u"one\r\ntwo\r\n|\r\nfour"_s);
        host.type(u"temp1"_s);
        QTextCursor elsewhere(host.box().document());
        elsewhere.insertText(u"if\nday\n"_s);
        elsewhere.movePosition(QTextCursor::End);
        elsewhere.insertText(u"\nif"_s);
        leaveTheLine(host);
        QCOMPARE(host.box().Text(), u"if\r\nday\r\none\r\ntwo\r\nTemp1\r\nfour\r\nif"_s);
    }

    void aLineTypedIsFinishedWhenWordsAreReplaced()
    {
        EditorHost host;
        host.setText(u"foo\r\n|\r\nfoo"_s);
        host.type(u"temp1"_s);
        QString errMsg;
        host.list->ReplaceRichTextBox(u"foo"_s, u"bar"_s, errMsg, false);
        QCOMPARE(errMsg, QString());
        leaveTheLine(host);
        QCOMPARE(host.box().Text(), u"bar\r\nTemp1\r\nbar"_s);
    }

    void aLineTypedIsFinishedAfterACompositionThatWasGivenUp()
    {
        EditorHost host;
        host.setText(u"one\r\n|"_s);
        host.type(u"temp1"_s);
        QInputMethodEvent composes(u"a"_s, {});
        QCoreApplication::sendEvent(&host.box(), &composes);
        QInputMethodEvent givenUp;
        QCoreApplication::sendEvent(&host.box(), &givenUp);
        leaveTheLine(host);
        QCOMPARE(host.box().Text(), u"one\r\nTemp1"_s);
    }

    void aLineTypedIsFinishedAfterItsIndentChanged()
    {
        EditorHost host;
        host.setText(u"one\r\n|"_s);
        host.type(u"temp1"_s);
        host.key(Qt::Key_Home, Qt::ShiftModifier);
        host.key(Qt::Key_Tab);
        leaveTheLine(host);
        QCOMPARE(host.box().Text(), u"one\r\n    Temp1"_s);
    }

    void aLineCutByTheHostsMenuIsFinished()
    {
        EditorHost host;
        host.setText(u"one\r\n|"_s);
        host.type(u"temp12"_s);
        host.key(Qt::Key_Left, Qt::ShiftModifier);
        host.list->RTextCut();
        leaveTheLine(host);
        QCOMPARE(host.box().Text(), u"one\r\nTemp1"_s);
    }

    void aWordPickedOverSelectedLinesLeavesTheOthersAlone()
    {
        EditorHost host;
        host.setText(u"|x\r\nif temp1 > |20"_s);
        host.key(Qt::Key_Space, Qt::ControlModifier);
        host.key(Qt::Key_End);
        host.key(Qt::Key_Return);
        QCOMPARE(host.box().lineText(1), u"if temp1 > 20"_s);
    }

    void openProgramShowsItsLinesFinished()
    {
        EditorHost host;
        host.setText(u"|a| b"_s);
        QSignalSpy changes(&host.box(), &RichTextBox::Change);
        host.list->openProgram(u"if ( temp1 )\n\tx\\ {y}\rREM fan1\r\nfan1"_s);
        QCOMPARE(host.marked(), u"|IF ( Temp1 )\r\n\tx\\ {y}\r\nREM fan1\r\nFan1"_s);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(host.colourOf(u"IF"_s), host.settings.ReservedWordColor);
        QCOMPARE(host.colourOf(u"Temp1"_s), host.settings.InputColor);
        QCOMPARE(host.colourOf(u"fan1"_s), host.settings.CommentColor);
        QCOMPARE(host.colourAt(host.box().TextLength() - 1), host.settings.OutputColor);
        QCOMPARE(host.colourOf(u"x\\"_s), none);
        const QString shown = host.box().Text();
        leaveTheLine(host);
        QCOMPARE(host.box().Text(), shown);
        host.list->openProgram(QString());
        QCOMPARE(host.marked(), u"|"_s);
    }

    void openProgramBeginsTheHistoryAnew()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"a b c "_s);
        host.list->RTextSelectAll();
        host.type(u"x"_s);
        host.list->openProgram(u"if temp1"_s);
        QVERIFY(!host.list->IsUndoAvailable());
        QVERIFY(!host.list->IsRedoAvailable());
        QVERIFY(!host.list->restoreUnsavedText());
        QString errMsg;
        host.list->Undo(errMsg);
        QCOMPARE(host.box().Text(), u"IF Temp1"_s);

        host.key(Qt::Key_End);
        host.type(u" x "_s);
        while (host.list->IsUndoAvailable())
            host.list->Undo(errMsg);
        QCOMPARE(host.box().Text(), u"IF Temp1"_s); // in its colours
        host.list->Undo(errMsg);
        QCOMPARE(host.box().Text(), u"IF Temp1"_s);
        QCOMPARE(errMsg, QString());
    }

    void openProgramShowsItsTop()
    {
        EditorHost host;
        const QString longOne = program(500) + QString(500, u'x');
        host.list->openProgram(longOne);
        for (int i = 0; i < 2; ++i) {
            host.key(Qt::Key_End, Qt::ControlModifier);
            QVERIFY(host.box().verticalScrollBar()->value() > 0);
            QVERIFY(host.box().horizontalScrollBar()->value() > 0);
            host.list->openProgram(longOne);
            QCOMPARE(host.box().SelStart(), 0);
            QCOMPARE(host.box().verticalScrollBar()->value(), 0);
            QCOMPARE(host.box().horizontalScrollBar()->value(), 0);
        }
    }

    void openProgramClosesTheWordList()
    {
        EditorHost host;
        host.setText(u"te|"_s);
        host.key(Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(host.wordList().isVisible());
        host.list->openProgram(u"te"_s);
        QVERIFY(!host.wordList().isVisible());
    }

    // The words are not known yet.
    void openProgramBeforeInitialisationHasNoColoursYet()
    {
        ORVListView list;
        list.setListviewType(dsCode);
        list.openProgram(u"if x"_s);
        QCOMPARE(list.CodeText(), u"if x"_s);
        QVERIFY(messages().isEmpty());
        QVERIFY(!list.IsUndoAvailable());
        list.Init_RichTextBox(defaultColours());
        QCOMPARE(list.CodeText(), u"IF x"_s);
    }

    // A message lets the host and the user do what they like.
    void whatIsSetDuringAMessageStays()
    {
        Interrupting message;
        threadPart<Messages>().install(&message);
        ORVListView list; // which knows no words, and says so
        list.setListviewType(dsCode);
        list.setCodeText(u"keep me"_s);
        list.RTextSelectAll();
        message.act = [&list] { list.setCodeText(u"set"_s); };
        QString data = u"if x"_s;
        list.RTextPaste(data);
        QCOMPARE(list.CodeText(), u"set"_s);
        QVERIFY(!message.act);

        list.setCodeText(u"a b a"_s);
        message.act = [&list] { list.setCodeText(u"set again"_s); };
        QString errMsg;
        list.ReplaceRichTextBox(u"a"_s, u"xx"_s, errMsg, true);
        QCOMPARE(list.CodeText(), u"set again"_s);
        QVERIFY(!message.act);
    }

    void theControlGoesInAMessage()
    {
        Interrupting message;
        threadPart<Messages>().install(&message);
        for (const bool pastes : {true, false}) {
            auto *list = new ORVListView;
            list->setListviewType(dsCode);
            list->setCodeText(u"a b a"_s);
            message.act = [list] { delete list; };
            QString data = u"if x"_s;
            if (pastes)
                list->RTextPaste(data);
            else
                list->ReplaceRichTextBox(u"a"_s, u"xx"_s, data, true);
            QVERIFY(!message.act);
        }
    }

    void theWordListClosesWhenTheHostSetsTheText_data() { addCalls(); }
    void theWordListClosesWhenTheHostSetsTheText()
    {
        QFETCH(const Call, call);
        EditorHost host;
        host.setText(u"te|"_s);
        host.key(Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(host.wordList().isVisible());
        call(host, u"te"_s);
        QVERIFY(!host.wordList().isVisible());
    }
};

ORVT_TEST(EditorHostTextTest)
#include "EditorHostTextTest.moc"
