// What the editor shows of a long program after undo, redo, finding and selecting: the
// same lines as before, as far as the place in question is among them.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr int lineCount = 300;
constexpr int longLine = 150;

QString longProgram()
{
    QStringList lines;
    for (int i = 0; i < lineCount; ++i)
        lines << u"x%1 = %1"_s.arg(i);
    lines[longLine] = u"REM "_s + u"abcdefghi "_s.repeated(40) + u"wanted"_s;
    return lines.join(u"\r\n"_s);
}

} // namespace

class EditorViewTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<EditorHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    QScrollBar &vertical() { return *box().verticalScrollBar(); }
    QScrollBar &horizontal() { return *box().horizontalScrollBar(); }
    QString selected() { return box().SelText(); }
    int caretTop() { return box().cursorRect().top(); }

    void caretTo(qint32 line, qint32 offset = 0)
    {
        box().setSelStart(box().lineStart(line) + offset);
    }
    // The caret stands in the middle of what is shown.
    void lookAt(qint32 line, qint32 offset = 0)
    {
        caretTo(line, offset);
        box().centerCursor();
    }
    void undo()
    {
        QString errMsg;
        m_host->list->Undo(errMsg);
        QCOMPARE(errMsg, QString());
    }
    void redo()
    {
        QString errMsg;
        m_host->list->Redo(errMsg);
        QCOMPARE(errMsg, QString());
    }
    bool isInTheMiddle()
    {
        const QRect caret = box().cursorRect();
        const int middle = box().viewport()->height() / 2;
        return std::abs(caret.center().y() - middle) <= caret.height() + 1;
    }
    bool isCaretInView() { return box().viewport()->rect().contains(box().cursorRect()); }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        m_host = std::make_unique<EditorHost>();
        m_host->list->setCodeText(longProgram());
        QCoreApplication::processEvents();
        QVERIFY(vertical().maximum() > 200);
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void undoAndRedoKeepTheViewThatHasTheCaret()
    {
        lookAt(100);
        m_host->type(u"a b c "_s);
        const int top = vertical().value();
        QVERIFY(top > 0);
        for (int i = 0; i < 3; ++i) {
            undo();
            QCOMPARE(vertical().value(), top);
            undo();
            QCOMPARE(vertical().value(), top);
            redo();
            QCOMPARE(vertical().value(), top);
            QVERIFY(isCaretInView());
            redo();
            QCOMPARE(vertical().value(), top);
        }
    }

    void undoBringsALineThatIsNotShownToTheMiddle_data()
    {
        QTest::addColumn<int>("top");
        QTest::newRow("scrolled up") << 0;
        QTest::newRow("scrolled down") << 250;
    }
    void undoBringsALineThatIsNotShownToTheMiddle()
    {
        QFETCH(const int, top);
        lookAt(100);
        m_host->type(u"a b c "_s);
        for (int i = 0; i < 2; ++i) {
            vertical().setValue(top);
            undo();
            QVERIFY(isCaretInView());
            QVERIFY(isInTheMiddle());
            vertical().setValue(top);
            redo();
            QVERIFY(isInTheMiddle());
        }
    }

    void undoKeepsTheHorizontalView()
    {
        lookAt(longLine, 300);
        m_host->type(u"a b c "_s);
        const int left = horizontal().value();
        const int top = vertical().value();
        QVERIFY(left > 0);
        for (int i = 0; i < 3; ++i) {
            undo();
            QCOMPARE(horizontal().value(), left);
            undo();
            QCOMPARE(horizontal().value(), left);
            redo();
            QCOMPARE(horizontal().value(), left);
            redo();
            QCOMPARE(horizontal().value(), left);
            QCOMPARE(vertical().value(), top);
        }
        horizontal().setValue(0);
        undo();
        QVERIFY(isCaretInView());
    }

    // The longest line, which lets one scroll so far, is not among those shown.
    void undoKeepsTheHorizontalViewOfOtherLines()
    {
        const QString line = u"REM "_s + u"abcdefghi "_s.repeated(12);
        caretTo(170);
        box().setSelText(line);
        lookAt(longLine, 300);
        lookAt(170, 110);
        m_host->type(u"a b c "_s);
        horizontal().setValue(box().cursorRect().right() + horizontal().value() - 60);
        QVERIFY(isCaretInView());
        const int left = horizontal().value();
        undo();
        QCOMPARE(horizontal().value(), left);
    }

    void undoOfAReplacedSelectionShowsTheLinesOfBefore()
    {
        lookAt(100);
        const int top = vertical().value();
        m_host->key('A', Qt::ControlModifier);
        m_host->key('X', Qt::ControlModifier);
        QCOMPARE(box().Text(), QString());
        m_host->type(u"a "_s);
        undo();
        QCOMPARE(selected(), longProgram());
        QCOMPARE(vertical().value(), 0); // what was shown, as far as it can be
        vertical().setValue(top);
        redo();
        undo();
        QCOMPARE(vertical().value(), 0);
    }

    void selectingAllDoesNotScroll()
    {
        lookAt(100);
        horizontal().setValue(0);
        const int top = vertical().value();
        m_host->key('A', Qt::ControlModifier);
        QCOMPARE(vertical().value(), top);
        QCOMPARE(box().SelLength(), box().TextLength());
        box().setSelStart(0);
        lookAt(100);
        m_host->list->RTextSelectAll();
        QCOMPARE(box().SelLength(), box().TextLength());
        QCOMPARE(vertical().value(), top);
    }

    void readingTheRtfDoesNotScroll()
    {
        lookAt(longLine, 300);
        const int top = vertical().value();
        const int left = horizontal().value();
        QVERIFY(top > 0 && left > 0);
        QSignalSpy scrolled(&vertical(), &QScrollBar::valueChanged);
        for (int i = 0; i < 2; ++i) {
            QVERIFY(m_host->list->CodeTextRTF().contains(u"x299 = 299"_s));
            QCOMPARE(box().SelLength(), box().TextLength());
            QCOMPARE(vertical().value(), top);
            QCOMPARE(horizontal().value(), left);
        }
        QCOMPARE(scrolled.size(), 0);
    }

    void aHighlightedLineComesToTheMiddle()
    {
        QString wanted = u"x200"_s;
        qint16 line = 201;
        m_host->list->HighLightText(wanted, line);
        QCOMPARE(selected(), wanted);
        QVERIFY(isInTheMiddle());
        const int top = vertical().value();
        wanted = u"x203"_s;
        line = 204;
        m_host->list->HighLightText(wanted, line);
        QCOMPARE(selected(), wanted);
        QCOMPARE(vertical().value(), top);
        wanted = u"wanted"_s;
        line = longLine + 1;
        m_host->list->HighLightText(wanted, line);
        QVERIFY(isInTheMiddle());
        QVERIFY(isCaretInView());
        wanted = u"not there"_s;
        line = 1;
        m_host->list->HighLightText(wanted, line);
        QCOMPARE(selected(), u"0 = 0"_s); // behind the first character, as published
        QCOMPARE(vertical().value(), 0);
        QCOMPARE(horizontal().value(), 0);
    }

    void aMatchComesToTheMiddle()
    {
        QVERIFY(box().Find(u"x200"_s) > 0);
        QVERIFY(isInTheMiddle());
        const int top = vertical().value();
        QVERIFY(box().Find(u"x203"_s) > 0);
        QCOMPARE(vertical().value(), top);
        QVERIFY(box().Find(u"x20 "_s) > 0);
        QVERIFY(isInTheMiddle());
        QVERIFY(box().Find(u"wanted"_s) > 0);
        QVERIFY(isInTheMiddle());
        QVERIFY(isCaretInView());
        const int left = horizontal().value();
        QVERIFY(left > 0);
        QVERIFY(box().Find(u"REM abc"_s) > 0);
        QCOMPARE(horizontal().value(), 0);
    }

    void indentingKeepsTheView()
    {
        caretTo(100);
        box().setSelLength(box().lineStart(140) - box().SelStart());
        vertical().setValue(110);
        m_host->key(Qt::Key_Tab);
        QCOMPARE(vertical().value(), 110);
        m_host->key(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(vertical().value(), 110);
        undo();
        QCOMPARE(vertical().value(), 110);
    }

    void aReplacedWordThatIsShownDoesNotScroll()
    {
        lookAt(100);
        const int top = vertical().value();
        QString errMsg;
        m_host->list->ReplaceRichTextBox(u"x103"_s, u"y"_s, errMsg, true);
        QCOMPARE(vertical().value(), top);
    }
};

ORVT_TEST(EditorViewTest)
#include "EditorViewTest.moc"
