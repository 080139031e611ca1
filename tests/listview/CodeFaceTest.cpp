// The code face of ORVListView: text in and out, appearance, vocabulary.

#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/Error.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/RichTextBox.h>

#include "base/ColouredText.h"

#include <QtCore/QTimer>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class CodeFaceTest : public WidgetTest
{
    Q_OBJECT

private:
    struct Host
    {
        explicit Host(const RichTextSettings &settings = defaultColours())
        {
            inputs.Add(u"Temp1"_s);
            tree.SetCollectionRenamable(nullptr, nullptr, nullptr, &inputs, nullptr, nullptr);
            list.setListviewType(dsCode);
            list.Init_RichTextBox(settings);
        }
        RichTextBox &box() { return *list.RTextBox(); }
        ColouredText shown() { return box().coloured(0, box().TextLength()); }

        PointList inputs;
        ORVTreeview tree;
        ORVListView list;
    };

private Q_SLOTS:
    void aFreshControlIsAnInputTable()
    {
        const ORVListView list;
        QCOMPARE(list.ListviewType(), dsInput);
        QCOMPARE(list.Key(), u"Inputs"_s);
        QVERIFY(list.RTextBox()->isHidden());
        QCOMPARE(list.RTextBox()->objectName(), u"RichTextBox1"_s);
    }

    void theWidthTimerExistsAndHasNoDuties()
    {
        const ORVListView list;
        const auto *timer = list.findChild<QTimer *>(u"TimerWidth"_s);
        QVERIFY(timer);
        QVERIFY(!timer->isActive());
    }

    void aTypeOutsideTheRangeIsIgnored()
    {
        ORVListView list;
        list.setListviewType(dsCode);
        for (const int type : {-1, 13, 1000}) {
            list.setListviewType(static_cast<LwType>(type));
            QCOMPARE(list.ListviewType(), dsCode);
            QCOMPARE(list.CurrentType(), dsCode);
            QVERIFY(!list.RTextBox()->isHidden());
        }
    }

    void theCodeTypeShowsTheBox()
    {
        ORVListView list;
        list.setListviewType(dsCode);
        QCOMPARE(list.Key(), u"Code"_s);
        QVERIFY(!list.RTextBox()->isHidden());
        list.setListviewType(dsOutput);
        QVERIFY(list.RTextBox()->isHidden());
    }

    void plainTextGoesInUncoloured()
    {
        Host host;
        host.list.setCodeText(u"if temp1\r\nREM x"_s);
        QCOMPARE(host.list.CodeText(), u"if temp1\r\nREM x"_s);
        QCOMPARE(host.shown().runs.size(), 1);
        QCOMPARE(host.shown().runs[0].colour, ColouredText::automatic);
        QCOMPARE(host.box().SelStart(), 0);
        QCOMPARE(host.box().SelLength(), 0);
    }

    void everyLineEndIsALineEnd()
    {
        Host host;
        host.list.setCodeText(u"a\nb\rc\r\nd"_s);
        QCOMPARE(host.list.CodeText(), u"a\r\nb\r\nc\r\nd"_s);
        QCOMPARE(host.list.GetColorText(u"a\nb\rc\r\nd"_s),
                 host.list.GetColorText(u"a\r\nb\r\nc\r\nd"_s));
    }

    void aTypedFormatDoesNotOutliveNewText()
    {
        Host host;
        host.box().setSelColor(0x123456);
        host.list.setCodeText(u"x"_s);
        host.box().setSelText(u"y"_s);
        QCOMPARE(host.shown().runs.size(), 1);
        QCOMPARE(host.shown().runs[0].colour, ColouredText::automatic);
    }

    void colouredTextComesBackAsWritten()
    {
        Host host;
        const QString rtf = host.list.GetColorText(u"if (temp1 >= 20)\r\nREM check"_s);
        QVERIFY(rtf.endsWith(u"\\cf6 IF \\cf0 ( \\cf4 Temp1 \\cf6 >= \\cf0 20\\cf0  )\r\n"
                             "\\par \\cf2 REM check}"_s));
        host.list.setCodeTextRTF(rtf);
        QCOMPARE(host.list.CodeText(), u"IF ( Temp1 >= 20 )\r\nREM check"_s);
        const QList<ColouredText::Run> runs = host.shown().runs;
        QCOMPARE(runs.size(), 6);
        QCOMPARE(runs[0].colour, 0);
        QCOMPARE(runs[2].colour, 0x0000FF);
        QCOMPARE(runs[5].colour, 0x008000);
        QCOMPARE(host.list.GetColorText(host.list.CodeText()), rtf);
    }

    void aHeadTakenFromTheBoxCarriesItsFont()
    {
        RichTextSettings settings = defaultColours();
        settings.FontName = u"DejaVu Sans Mono"_s;
        settings.FontSize = 11;
        settings.FontStyle = u"b1i1"_s;
        Host host(settings);
        const QStringList lines = host.list.GetColorText(u"x"_s).split(u"\r\n"_s);
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines[0].contains(u"DejaVu Sans Mono;"_s));
        QCOMPARE(lines[1], defaultColourTable());
        QVERIFY2(lines[2].contains(u"\\fs22"_s), qPrintable(lines[2]));
        QVERIFY2(lines[2].contains(u"\\b"_s), qPrintable(lines[2]));
        QVERIFY2(lines[2].contains(u"\\i"_s), qPrintable(lines[2]));
        QVERIFY(lines[2].endsWith(u" \\cf0 x}"_s));
    }

    void beforeTheFirstInitialisationThereIsNoHead()
    {
        ORVListView list;
        list.RefillListviewWithWordList();
        QCOMPARE(list.GetColorText(u"if"_s), u"\\cf6 IF}"_s);
        QCOMPARE(list.GetColorText(u""_s), u"}"_s);
    }

    void anEmptyWordListIsReported()
    {
        ORVListView list;
        QCOMPARE(list.GetColorText(u"if x"_s), u"\\cf0 if \\cf0 x}"_s);
        QCOMPARE(messages().size(), 2);
        QCOMPARE(messages()[0].text, u"List not found!"_s);
    }

    void readingRtfSelectsEverything()
    {
        Host host;
        host.list.setCodeText(u"ab\r\ncd"_s);
        const QString rtf = host.list.CodeTextRTF();
        QCOMPARE(host.box().SelStart(), 0);
        QCOMPARE(host.box().SelLength(), 6);
        QCOMPARE(rtf, host.box().SelRTF());
        QVERIFY(rtf.startsWith(u"{\\rtf1"_s));
    }

    void settingRtfReplacesEverything()
    {
        Host host;
        host.list.setCodeText(u"old"_s);
        host.list.setCodeTextRTF(u"{\\rtf1 new}"_s);
        QCOMPARE(host.list.CodeText(), u"new"_s);
        QCOMPARE(host.box().SelStart(), 3);
        host.list.setCodeTextRTF(u"no rtf"_s);
        QCOMPARE(host.list.CodeText(), u"no rtf"_s);
    }

    void initialisingColoursTheTextThatIsThere()
    {
        Host host;
        host.list.setCodeText(u"if temp1"_s);
        RichTextSettings settings = defaultColours();
        settings.ReservedWordColor = 0x111111;
        settings.InputColor = 0x222222;
        host.list.Init_RichTextBox(settings);
        QCOMPARE(host.list.CodeText(), u"IF Temp1"_s);
        QCOMPARE(host.shown().runs[0].colour, 0x111111);
        QCOMPARE(host.shown().runs[1].colour, 0x222222);
        QCOMPARE(host.box().SelStart(), 0);
        settings.InputColor = 0x333333;
        host.list.Init_RichTextBox(settings);
        QCOMPARE(host.shown().runs[1].colour, 0x333333);
    }

    void initialisingKeepsCharactersThatRtfKeepsForItself()
    {
        Host host;
        host.list.setCodeText(u"a\\b {if} if"_s);
        host.list.Init_RichTextBox(defaultColours());
        QCOMPARE(host.list.CodeText(), u"a\\b {if} IF"_s);
    }

    void fontStyleIsReadFromItsMarks_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << u""_s << u""_s;
        QTest::newRow("underline") << u"u1"_s << u"u"_s;
        QTest::newRow("bold in capitals") << u"B1"_s << u"b"_s;
        QTest::newRow("bold italic") << u"b1i1"_s << u"bi"_s;
        QTest::newRow("inside a longer text") << u"xxb1yy"_s << u"b"_s;
        QTest::newRow("off") << u"b0i0u0"_s << u""_s;
    }
    void fontStyleIsReadFromItsMarks()
    {
        QFETCH(const QString, style);
        QFETCH(const QString, expected);
        RichTextSettings settings = defaultColours();
        settings.FontStyle = u"b1i1u1"_s;
        Host host(settings);
        settings.FontStyle = style;
        host.list.Init_RichTextBox(settings);
        QCOMPARE(host.box().FontBold(), expected.contains(u'b'));
        QCOMPARE(host.box().FontItalic(), expected.contains(u'i'));
        QCOMPARE(host.box().FontUnderline(), expected.contains(u'u'));
    }

    void fontAndBackgroundGoToTheBox()
    {
        RichTextSettings settings = defaultColours();
        settings.FontName = u"DejaVu Sans"_s;
        settings.FontSize = 17;
        settings.BackColor = 0x00C0FFEE;
        Host host(settings);
        QCOMPARE(host.box().FontName(), u"DejaVu Sans"_s);
        QCOMPARE(host.box().FontSize(), 17.0F);
        QCOMPARE(host.box().BackColor(), 0x00C0FFEE);
        QCOMPARE(threadPart<EditorState>().LineHeight, host.box().fontMetrics().height());
    }

    void nvoColourIsNeverTaken()
    {
        RichTextSettings settings = defaultColours();
        Host host(settings);
        const QString before = host.list.GetColorText(u"if temp1 x"_s);
        settings.nvoFPAColor = 0x777777;
        host.list.Init_RichTextBox(settings);
        QCOMPARE(host.list.GetColorText(u"if temp1 x"_s), before);
        QCOMPARE(threadPart<EditorState>().EditorSettings.nvoFPAColor, 0);
    }

    void aSystemBackgroundIsWrittenAsItIs()
    {
        RichTextSettings settings = defaultColours();
        settings.BackColor = static_cast<qint32>(0x80000005);
        Host host(settings);
        QVERIFY(host.list.GetColorText(u"x"_s).contains(
            u"{\\colortbl ;\\red-251\\green-255\\blue-32767;"_s));
        host.list.setCodeTextRTF(host.list.GetColorText(u"if x"_s));
        QCOMPARE(host.list.CodeText(), u"IF x"_s);
    }

    void settingsAreSharedByAllEditors()
    {
        Host host;
        ORVListView second;
        second.setListviewType(dsCode);
        QCOMPARE(second.GetColorText(u"temp1"_s), host.list.GetColorText(u"temp1"_s));
    }

    void visibleAndEnabledGoToTheBox()
    {
        Host host;
        host.list.setRichTextVisible(false);
        QVERIFY(host.box().isHidden());
        host.list.setRichTextVisible(true);
        QVERIFY(!host.box().isHidden());
        host.list.setRichTexteNable(false);
        QVERIFY(!host.box().isEnabled());
        host.list.setRichTexteNable(true);
        QVERIFY(host.box().isEnabled());
    }

    void sqrtIsTakenOutByTheCodeTypeUntilSetAgain()
    {
        ORVListView list;
        const auto knowsSqrt = [&list] {
            list.RefillListviewWithWordList();
            return list.GetColorText(u"sqrt"_s) == u"\\cf6 SQRT}"_s;
        };
        QVERIFY(!knowsSqrt());
        list.setIsSqrtSupported(u"True"_s);
        QVERIFY(knowsSqrt());
        list.setListviewType(dsOutput);
        QVERIFY(knowsSqrt());
        list.setListviewType(dsCode);
        QVERIFY(!knowsSqrt());
        list.setIsSqrtSupported(u"1"_s);
        QVERIFY(knowsSqrt());
        QVERIFY_THROWS_EXCEPTION(Error, list.setIsSqrtSupported(u"perhaps"_s));
        QVERIFY(knowsSqrt());
        list.setIsSqrtSupported(u"0"_s);
        QVERIFY(!knowsSqrt());
    }

    void theIndexFollowsAReadyCollection()
    {
        Host host;
        QVERIFY(host.list.GetColorText(u"late"_s).endsWith(u"\\cf0 late}"_s));
        host.inputs.Add(u"Late"_s);
        QVERIFY(host.list.GetColorText(u"late"_s).endsWith(u"\\cf4 Late}"_s));
        host.inputs.Remove(u"Late"_s);
        QVERIFY(host.list.GetColorText(u"late"_s).endsWith(u"\\cf0 late}"_s));
    }

    void collectionsMayGoBeforeTheComponents()
    {
        ORVTreeview tree;
        ORVListView list;
        {
            PointList inputs;
            inputs.Add(u"Temp1"_s);
            tree.SetCollectionRenamable(nullptr, nullptr, nullptr, &inputs, nullptr, nullptr);
            list.RefillListviewWithWordList();
        }
        // A ready collection that is gone holds nothing, and the index follows it.
        QCOMPARE(list.GetColorText(u"temp1"_s), u"\\cf0 temp1}"_s);
    }

    void clearEmptiesTheEditorInCodeModeOnly()
    {
        Host host;
        host.list.setCodeText(u"x"_s);
        host.list.setListviewType(dsInput);
        host.list.Clear();
        QCOMPARE(host.list.CodeText(), u"x"_s);
        host.list.setListviewType(dsCode);
        host.list.Clear();
        QCOMPARE(host.list.CodeText(), u""_s);
    }

    void membersAreKnownToTheMetaObject()
    {
        Host host;
        QVERIFY(host.list.setProperty("CodeText", u"if"_s));
        QCOMPARE(host.list.property("CodeText").toString(), u"if"_s);
        QString rtf;
        QVERIFY(QMetaObject::invokeMethod(&host.list, "GetColorText", Q_RETURN_ARG(QString, rtf),
                                          Q_ARG(QString, u"if"_s)));
        QVERIFY(rtf.endsWith(u"\\cf6 IF}"_s));
        QCOMPARE(host.list.property("ListviewType").toInt(), 0);
    }
};

ORVT_TEST(CodeFaceTest)
#include "CodeFaceTest.moc"
