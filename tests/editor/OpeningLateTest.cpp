// Colours that come late, where lines go, are changed past the box or are in no view, and
// where the host acts in the middle.

#include "editor/OpeningHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/box/BoxText.h"

#include <QtWidgets/QScrollBar>

#include <functional>
#include <stdexcept>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

using Lines = LateColours::Lines;

// A long text whose every line is black, red and of no colour.
ColouredText stripes(const QString &first = u"temp"_s)
{
    ColouredText result;
    for (int i = 0; i < 4000; ++i) {
        const QString line = first + u" of the line %1"_s.arg(i);
        result.text += i == 0 ? line : u"\r\n"_s + line;
        result.appendRun(i == 0 ? 2 : 4, 0);
        result.appendRun(5, 0xFF);
        result.appendRun(line.size() - 7, ColouredText::automatic);
    }
    return result;
}

void setLate(RichTextBox &box, const ColouredText &text, Lines lines)
{
    const LateColours::Allowed late(LateColours::of(*box.document()), lines);
    box.setColoured(text);
}

void finish(RichTextBox &box)
{
    LateColours::of(*box.document()).giveAll();
}

void compareWithAtOnce(const RichTextBox &box, const ColouredText &text)
{
    RichTextBox other;
    other.setColoured(text);
    comparePictures(pictureOf(box), pictureOf(other));
    QVERIFY(box.TextRTF() == other.TextRTF());
}

QTextCursor wholeLine(const RichTextBox &box, int line)
{
    QTextCursor cursor(box.document()->findBlockByNumber(line));
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    return cursor;
}

// Only the last lines wait, and the idle work looks for them.
void giveAllButTheLast(OpeningHost &host)
{
    host.open();
    host.colours().give(0, host.box().document()->findBlockByNumber(3900).position());
    host.pass();
    QVERIFY(host.colours().linesLeft() > 0);
}

} // namespace

class OpeningLateTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    // Each time it begins anew with another line in view.
    void scrollingWhileFarLinesWait()
    {
        OpeningHost host;
        giveAllButTheLast(host);
        for (int i = 1; i < 12; ++i) {
            host.box().verticalScrollBar()->setValue(i);
            host.pass();
        }
        host.finish();
        QVERIFY(host.hasColours(3995));
        QVERIFY(host.hasColours(3905));
    }

    void whoAsksForAllHasThemWhenLinesHaveGone()
    {
        OpeningHost host;
        giveAllButTheLast(host);
        QTextCursor cursor(host.box().document());
        cursor.setPosition(host.box().document()->findBlockByNumber(3000).position(),
                           QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        QVERIFY(!host.hasColours(995));
        host.box().TextRTF();
        QVERIFY(host.hasColours(995));
        QVERIFY(host.hasColours(905));
    }

    // As many lines go as come, so that their number stays.
    void linesThatMoveAwayAreStillFound()
    {
        OpeningHost host;
        giveAllButTheLast(host);
        QTextCursor cursor(host.box().document());
        cursor.insertText(QString(50, u'\n'));
        cursor.setPosition(host.box().document()->findBlockByNumber(1000).position());
        cursor.setPosition(host.box().document()->findBlockByNumber(1050).position(),
                           QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        host.finish();
        QVERIFY(host.hasColours(3995));
    }

    void anotherProgramOpenedInChangeIsOpenedAtOnce()
    {
        OpeningHost host;
        bool isFirst = true;
        connect(&host.box(), &RichTextBox::Change, &host.form, [&] {
            if (!std::exchange(isFirst, false))
                return;
            host.list->openProgram(longProgram().replace(u"fan1"_s, u"temp2"_s));
            QVERIFY(!host.colours().areWaiting());
            QVERIFY(host.hasColours(3000));
        });
        host.open();
        QVERIFY(!isFirst);
        QVERIFY(!host.view().isOpening());
        QVERIFY(!host.list->CodeText().contains(u"Fan1"_s));
    }

    void anotherProgramOpenedLateInChangeIsTheOneThatIsToldOf()
    {
        OpeningHost host;
        bool isFirst = true;
        connect(&host.box(), &RichTextBox::Change, &host.form, [&] {
            if (std::exchange(isFirst, false))
                host.open(longProgram().replace(u"fan1"_s, u"temp2"_s));
        });
        host.open();
        QVERIFY(host.view().isOpening());
        host.finish();
        QVERIFY(!host.list->CodeText().contains(u"Fan1"_s));
        QVERIFY(host.hasColours(3000));
    }

    void theHostMayThrowInChange()
    {
        OpeningHost host;
        connect(&host.box(), &RichTextBox::Change, &host.form,
                [] { throw std::runtime_error("the host"); });
        QTest::ignoreMessage(QtWarningMsg, "An event handler failed: the host");
        host.open();
        QVERIFY(host.view().isOpening());
        host.finish();
        QVERIFY(host.hasColours(3000));
    }

    // What goes past the box stays as it was set, its letter case, too.
    void theDocumentChangedDirectlyToTheSameLength()
    {
        OpeningHost host;
        host.open();
        const QString lower = host.box().lineText(3000).toLower();
        QVERIFY(lower != host.box().lineText(3000));
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        wholeLine(host.box(), 3000).insertText(lower, bold);
        const QString other(host.box().lineText(3005).size(), u'x');
        wholeLine(host.box(), 3005).insertText(other);
        host.finish();
        QCOMPARE(host.box().document()->findBlockByNumber(3000).text(), lower);
        QCOMPARE(host.box().lineText(3005), other);
        QVERIFY(!host.hasColours(3005));
        QVERIFY(host.box().Text() == host.box().textRange(0, host.box().TextLength()));
    }

    void linesFoldedAwayWait()
    {
        OpeningHost host;
        host.view().setFoldingEnabled(true);
        host.open(longProgram().replace(u" and var1"_s, u" then var1"_s));
        host.view().foldAll();
        host.box().viewport()->repaint();
        QVERIFY(host.hasColours(0));
        QVERIFY(host.hasColours(5));
        QVERIFY(!host.box().document()->findBlockByNumber(2).isVisible());
        QVERIFY(!host.hasColours(2));
        host.finish();
        QVERIFY(host.hasColours(2));
    }

    void textsWithOtherLineEndsGoInAsEver_data()
    {
        QTest::addColumn<QString>("other");
        QTest::newRow("LF") << u"\n"_s;
        QTest::newRow("CR") << u"\r"_s;
        QTest::newRow("a paragraph separator") << QString(QChar(0x2029));
        QTest::newRow("NUL") << QString(QChar(u'\0'));
    }

    void textsWithOtherLineEndsGoInAsEver()
    {
        QFETCH(QString, other);
        ColouredText text = stripes();
        text.text.replace(100, 1, other);
        RichTextBox box;
        setLate(box, text, Lines::Former);
        QVERIFY(!LateColours::of(*box.document()).areWaiting());
        compareWithAtOnce(box, text);
    }

    // Lines that look otherwise go, with all that hangs on them; those that do not, stay.
    void openingKeepsTheLinesThatOpeningInOneGoKeeps_data()
    {
        QTest::addColumn<bool>("isPlain");
        QTest::newRow("plain") << true;
        QTest::newRow("in its colours") << false;
    }

    void openingKeepsTheLinesThatOpeningInOneGoKeeps()
    {
        QFETCH(bool, isPlain);
        const ColouredText text = stripes();
        const auto placeAfter = [&](const std::function<void(RichTextBox &)> &open) {
            RichTextBox box;
            box.setColoured(isPlain ? ColouredText{text.text, {}} : text);
            const QTextCursor mark(box.document()->findBlockByNumber(1000));
            open(box);
            return mark.blockNumber();
        };
        const int atOnce = placeAfter([&](RichTextBox &box) { box.setColoured(text); });
        const int late = placeAfter([&](RichTextBox &box) { setLate(box, text, Lines::New); });
        QCOMPARE(late, atOnce);
        QCOMPARE(late == 1000, !isPlain);
    }

    // With characters that the document keeps in formats of their own.
    void keptLinesLoseWhatElseWasSet_data()
    {
        QTest::addColumn<QString>("piece");
        QTest::newRow("ordinary") << u"word"_s;
        QTest::newRow("a frame mark") << QString(QChar(0xFDD0));
        QTest::newRow("soft hyphens") << QString(40, QChar(QChar::SoftHyphen));
    }

    void keptLinesLoseWhatElseWasSet()
    {
        QFETCH(QString, piece);
        const ColouredText text = stripes(u"te word "_s + piece);
        RichTextBox box;
        box.setColoured(text);
        QTextCharFormat format;
        format.setFontWeight(QFont::Bold);
        format.setFontUnderline(true);
        wholeLine(box, 1000).mergeCharFormat(format);
        const QTextCursor mark(box.document()->findBlockByNumber(2000));
        setLate(box, text, Lines::Former);
        QCOMPARE(mark.blockNumber(), 2000);
        finish(box);
        compareWithAtOnce(box, text);
    }

    void theScrollBarFollowsWhatGetsNarrower()
    {
        const ColouredText text = stripes(QString(200, u'w'));
        RichTextBox box;
        box.resize(300, 200);
        box.setColoured(text);
        box.show();
        box.viewport()->repaint();
        const int width = box.horizontalScrollBar()->maximum();
        QTextCharFormat format;
        format.setFontWeight(QFont::Bold);
        format.setFontLetterSpacing(200);
        wholeLine(box, 0).mergeCharFormat(format);
        box.viewport()->repaint();
        QVERIFY(box.horizontalScrollBar()->maximum() > width);
        setLate(box, text, Lines::Former);
        finish(box);
        box.viewport()->repaint();
        QCOMPARE(box.horizontalScrollBar()->maximum(), width);
    }

    // A state that is shown again has its text in common with the one before.
    void statesShareTheirTexts()
    {
        ColouredText text = stripes();
        RichTextBox box;
        box.setColoured(text);
        const SharedText before = BoxText::of(*box.document()).sharedText();
        text.text.replace(text.text.indexOf(u"temp", 40000), 4, u"TEMP"_s);
        setLate(box, text, Lines::Former);
        const SharedText after = BoxText::of(*box.document()).sharedText();
        QVERIFY(after.toString() == text.text);
        SharedText::CountedStrings counted;
        const qsizetype first = before.bytes(counted);
        QVERIFY(after.bytes(counted) < first / 10);
    }
};

ORVT_TEST(OpeningLateTest)
#include "OpeningLateTest.moc"
