// A host replaces a word throughout the program.

#include "editor/EditorHost.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/Error.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ReplaceWordTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void replacesWholeWords_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("result");
        QTest::newRow("alone") << u"T1"_s << u"V2"_s;
        QTest::newRow("any letter case") << u"t1 T1"_s << u"V2 V2"_s;
        QTest::newRow("with an underscore") << u"T1_A _T1 T1"_s << u"T1_A _T1 V2"_s;
        QTest::newRow("in a longer word") << u"xT1 T1x T11"_s << u"xT1 T1x T11"_s;
        QTest::newRow("in brackets") << u"f(T1) (T1) ( T1 )"_s << u"f(V2) (V2) ( V2 )"_s;
        QTest::newRow("between tabs") << u"\tT1\tx"_s << u"\tV2\tx"_s;
        QTest::newRow("at line ends") << u"T1\r\nT1\r\n"_s << u"V2\r\nV2\r\n"_s;
        QTest::newRow("on comment lines") << u"REM T1 is T1\r\nT1"_s << u"REM V2 is V2\r\nV2"_s;
        QTest::newRow("one blank apart") << u"T1 T1 T1"_s << u"V2 V2 V2"_s;
        QTest::newRow("beside signs") << u"T1=1 -T1 T1,"_s << u"T1=1 -T1 T1,"_s;
    }
    void replacesWholeWords()
    {
        QFETCH(const QString, program);
        QFETCH(const QString, result);
        for (const bool inColours : {false, true}) {
            EditorHost host;
            host.setText(program);
            QString errMsg = u"as it was"_s;
            host.list->ReplaceRichTextBox(u"t1"_s, u"V2"_s, errMsg, inColours);
            if (inColours && program.contains(u'('))
                continue; // brackets are looked at below
            QCOMPARE(host.box().Text(), result);
            QCOMPARE(errMsg, u"as it was"_s);
        }
    }

    void anEmptyWordIsNowhere()
    {
        EditorHost host;
        host.setText(u"a |b| c"_s);
        QString errMsg;
        host.list->ReplaceRichTextBox(QString(), u"x"_s, errMsg);
        QCOMPARE(host.marked(), u"a |b| c"_s);
        QCOMPARE(host.ring().UndoNewest(), 0);
    }

    void withoutColoursItTakesThoseOfWhatItReplaces()
    {
        EditorHost host;
        host.list->setCodeText(u"Temp1 = 1"_s);
        host.list->Init_RichTextBox(host.settings);
        QString errMsg;
        host.list->ReplaceRichTextBox(u"Temp1"_s, u"fan1"_s, errMsg);
        QCOMPARE(host.box().Text(), u"fan1 = 1"_s);
        QCOMPARE(host.colourAt(0), host.settings.InputColor);
    }

    void withColoursItTakesItsOwn()
    {
        EditorHost host;
        host.list->setCodeText(u"Temp1 = 1\r\nREM Temp1"_s);
        host.list->Init_RichTextBox(host.settings);
        QString errMsg;
        host.list->ReplaceRichTextBox(u"Temp1"_s, u"fan1"_s, errMsg, true);
        QCOMPARE(host.box().Text(), u"Fan1 = 1\r\nREM fan1"_s);
        QCOMPARE(host.colourAt(0), host.settings.OutputColor);
        QCOMPARE(host.colourOf(u"fan1"_s), host.settings.CommentColor);
    }

    void takesOneSnapshotBefore()
    {
        EditorHost host;
        host.list->setCodeText(u"a b a"_s);
        QString errMsg;
        host.list->ReplaceRichTextBox(u"a"_s, u"c"_s, errMsg);
        QCOMPARE(host.ring().UndoNewest(), 1);
        host.list->Undo(errMsg);
        QCOMPARE(host.box().Text(), u"a b a"_s);
        host.list->ReplaceRichTextBox(u"nowhere"_s, u"c"_s, errMsg);
        QCOMPARE(host.ring().UndoNewest(), 1);
    }

    void aTextOfSeveralLinesGoesIn()
    {
        EditorHost host;
        host.setText(u"x T1 y"_s);
        QString errMsg;
        host.list->ReplaceRichTextBox(u"T1"_s, u"a\nREM b\nif"_s, errMsg, true);
        QCOMPARE(host.box().Text(), u"x a\r\nREM b\r\nIF y"_s);
        const QString text = host.box().Text();
        RichTextBox other;
        other.setColoured(finishedText(threadColouring(), text, host.settings));
        QCOMPARE(host.colourAt(5), other.coloured(5, 1).runs[0].colour);
        QCOMPARE(host.colourOf(u"IF"_s), host.settings.ReservedWordColor);
    }

    void theCaretStandsBehindTheLast()
    {
        EditorHost host;
        host.setText(u"a| b a c"_s);
        QString errMsg;
        host.list->ReplaceRichTextBox(u"a"_s, u"xyz"_s, errMsg);
        QCOMPARE(host.marked(), u"xyz b xyz| c"_s);
    }

    void aFailureIsInErrMsg()
    {
        class FailingMessages final : public MessageService
        {
        public:
            void show(const Message &) override
            {
                throw Error(InvalidCall, u"show"_s, u"no way to tell"_s);
            }
        };
        FailingMessages failing;
        ORVListView bare; // without known words, which is to be told
        bare.setListviewType(dsCode);
        bare.setCodeText(u"a"_s);
        MessageService *former = threadPart<Messages>().install(&failing);
        QString errMsg;
        bare.ReplaceRichTextBox(u"a"_s, u"b"_s, errMsg, true);
        threadPart<Messages>().install(former);
        QCOMPARE(errMsg, u"no way to tell"_s);
        QCOMPARE(bare.CodeText(), u"b"_s); // messages come when it is done
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void isKnownToTheMetaObject()
    {
        EditorHost host;
        host.setText(u"a"_s);
        QString errMsg;
        QVERIFY(QMetaObject::invokeMethod(host.list, "ReplaceRichTextBox", Q_ARG(QString, u"a"_s),
                                          Q_ARG(QString, u"b"_s), Q_ARG(QString &, errMsg)));
        QCOMPARE(host.box().Text(), u"b"_s);
    }
};

ORVT_TEST(ReplaceWordTest)
#include "ReplaceWordTest.moc"
