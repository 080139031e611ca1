// What assistive programs are told of a box's text, and what they do to it.

#include "support/TestProgram.h"
#include "widgets/box/ShownBoxTest.h"

#include "base/ColouredText.h"
#include "widgets/box/BoxLayers.h"
#include "widgets/box/BoxLayout.h"

#include <QtGui/QAccessible>
#include <QtGui/QTextBlock>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ScreenReaderTextTest : public ShownBoxTest
{
    Q_OBJECT

    QAccessibleInterface &seen() { return *QAccessible::queryAccessibleInterface(m_box); }
    QAccessibleTextInterface &text() { return *seen().textInterface(); }
    QAccessibleEditableTextInterface &editing() { return *seen().editableTextInterface(); }

    void fill()
    {
        QStringList lines;
        for (int i = 0; i < 100; ++i)
            lines << u"line %1 with \tsome words Ж"_s.arg(i);
        m_box->setText(lines.join(u"\r\n"_s));
    }

    // Where the caret stands before a character, on the screen.
    QRect caretAt(int position)
    {
        QTextCursor cursor(m_box->document());
        cursor.setPosition(position);
        const QRect caret = m_box->cursorRect(cursor);
        return caret.translated(m_box->viewport()->mapToGlobal(QPoint()));
    }
    int placeIn(int line, int column)
    {
        return m_box->document()->findBlockByNumber(line).position() + column;
    }
    void compareLine(int line)
    {
        const QTextBlock block = m_box->document()->findBlockByNumber(line);
        for (int i = 0; i < block.length(); ++i) {
            const QRect place = text().characterRect(block.position() + i);
            const QRect caret = caretAt(block.position() + i);
            QVERIFY2(std::abs(place.left() - caret.left()) <= 1, "the left side");
            QVERIFY2(std::abs(place.top() - caret.top()) <= 1, "the top");
            QVERIFY2(std::abs(place.height() - caret.height()) <= 1, "the height");
            if (i + 2 < block.length())
                QVERIFY2(std::abs(place.right() + 1 - caretAt(block.position() + i + 1).left()) <=
                             2,
                         "the right side");
        }
    }
    // From the middle of a character back to it.
    void compareBack(int line, int first, int last)
    {
        for (int column = first; column < last; ++column) {
            const QPoint middle = text().characterRect(placeIn(line, column)).center();
            QCOMPARE(text().offsetAtPoint(middle), placeIn(line, column));
        }
    }

private Q_SLOTS:
    void everyCharacterHasItsPlace()
    {
        fill();
        for (const int line : {0, 1, 5})
            compareLine(line);
        QVERIFY(text().characterRect(placeIn(1, 0)).top() >
                text().characterRect(placeIn(0, 0)).top());
        compareBack(0, 0, 20);
        compareBack(4, 0, 20);
    }

    void alsoWhereTheViewIsScrolled()
    {
        m_box->resize(150, 200);
        fill();
        m_box->verticalScrollBar()->setValue(50);
        m_box->horizontalScrollBar()->setValue(30);
        for (const int line : {50, 51, 55})
            compareLine(line);
        compareBack(52, 8, 14);
    }

    void alsoInAZoomedView()
    {
        fill();
        BoxLayers::of(*m_box).setZoom(175);
        for (const int line : {0, 1, 3})
            compareLine(line);
        compareBack(2, 0, 12);
    }

    // By rows as high as those in view.
    void linesOutOfViewAreToldBeyondIt()
    {
        fill();
        m_box->verticalScrollBar()->setValue(50);
        const QRect first = text().characterRect(placeIn(50, 0));
        QCOMPARE(text().characterRect(placeIn(48, 0)), first.translated(0, -2 * first.height()));
        QCOMPARE(text().characterRect(placeIn(90, 0)), first.translated(0, 40 * first.height()));
    }

    void foldedLinesHaveNoPlace()
    {
        fill();
        const QRect below = text().characterRect(placeIn(4, 0));
        const QTextDocument &document = *m_box->document();
        qobject_cast<BoxLayout *>(document.documentLayout())
            ->showLines(document.findBlockByNumber(2), document.findBlockByNumber(5), false);
        QVERIFY(text().characterRect(placeIn(3, 2)).isEmpty());
        compareLine(6);
        compareBack(6, 0, 10);
        QCOMPARE(text().characterRect(placeIn(8, 0)), below);
    }

    void whereNoCharacterStandsNoneIsTold()
    {
        m_box->setText(u"one\r\n\r\ntwo"_s);
        const QRect end = text().characterRect(3);
        QVERIFY(end.width() > 0);
        QCOMPARE(text().offsetAtPoint(end.center() + QPoint(50, 0)), -1);
        QCOMPARE(text().offsetAtPoint(m_box->mapToGlobal(QPoint(-5, 5))), -1);
        QVERIFY(text().characterRect(-1).isEmpty());
        QVERIFY(text().characterRect(9).isEmpty());
        QVERIFY(!text().characterRect(8).isEmpty()); // behind the last
        QVERIFY(!text().characterRect(4).isEmpty()); // in an empty line
    }

    void isScrolledToWithoutMovingTheCaret()
    {
        m_box->resize(150, 200);
        fill();
        m_box->setSelStart(3);
        const auto isInView = [this](int position) {
            const QRect view(m_box->viewport()->mapToGlobal(QPoint()), m_box->viewport()->size());
            return view.contains(text().characterRect(position));
        };
        for (const int line : {70, 5, 99, 60, 0}) {
            const int place = placeIn(line, 14);
            QVERIFY(!isInView(place));
            text().scrollToSubstring(place, place + 4);
            QVERIFY(isInView(place));
            QVERIFY(isInView(place + 3));
        }
        QCOMPARE(m_box->SelStart(), 3);
        QCOMPARE(m_box->SelLength(), 0);
    }

    void unitsOfTheText_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("at");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("here");
        QTest::addColumn<QString>("after");
        QTest::newRow("letter") << int(QAccessible::CharBoundary) << 6 << u"w"_s << u"o"_s
                                << u"\n"_s;
        QTest::newRow("line end") << int(QAccessible::CharBoundary) << 7 << u"o"_s << u"\n"_s
                                  << u"\n"_s;
        QTest::newRow("word") << int(QAccessible::WordBoundary) << 1 << u""_s << u"one"_s
                              << u"two"_s;
        QTest::newRow("word before")
            << int(QAccessible::WordBoundary) << 4 << u"one"_s << u"two"_s << u"three"_s;
        QTest::newRow("line") << int(QAccessible::LineBoundary) << 9 << u""_s << u"three four"_s
                              << u""_s;
        QTest::newRow("empty line")
            << int(QAccessible::LineBoundary) << 8 << u"one two"_s << u""_s << u"three four"_s;
        QTest::newRow("all") << int(QAccessible::NoBoundary) << 3 << u""_s
                             << u"one two\n\nthree four"_s << u""_s;
    }
    void unitsOfTheText()
    {
        QFETCH(const int, kind);
        QFETCH(const int, at);
        m_box->setText(u"one two\r\n\r\nthree four"_s);
        const auto type = static_cast<QAccessible::TextBoundaryType>(kind);
        int start = -1;
        int end = -1;
        QTEST(text().textBeforeOffset(at, type, &start, &end), "before");
        QTEST(text().textAtOffset(at, type, &start, &end), "here");
        QCOMPARE(text().text(start, end), text().textAtOffset(at, type, &start, &end));
        QTEST(text().textAfterOffset(at, type, &start, &end), "after");
    }

    void caretAndSelection()
    {
        m_box->setText(u"one\r\ntwo"_s);
        text().setCursorPosition(5);
        QCOMPARE(text().cursorPosition(), 5);
        QCOMPARE(m_box->SelStart(), 6);
        text().setSelection(0, 1, 5);
        QCOMPARE(text().selectionCount(), 1);
        int start = 0;
        int end = 0;
        text().selection(0, &start, &end);
        QCOMPARE(start, 1);
        QCOMPARE(end, 5);
        QCOMPARE(m_box->SelText(), u"ne\r\nt"_s);
        text().removeSelection(0);
        QCOMPARE(text().selectionCount(), 0);
    }

    void isToldHowTheTextLooks()
    {
        m_box->setColoured(ColouredText{u"red blue"_s, {{4, 0x0000ff}, {4, 0xff0000}}});
        int start = -1;
        int end = -1;
        QVERIFY(text().attributes(1, &start, &end).contains(u"color:rgb(255,0,0);"_s));
        QCOMPARE(start, 0);
        QCOMPARE(end, 4);
        QVERIFY(text().attributes(5, &start, &end).contains(u"color:rgb(0,0,255);"_s));
    }

    void theColoursAreThosePainted()
    {
        BoxLayers::of(*m_box).setTextColours([](const QColor &text, const QColor &ground) {
            return ground.isValid() ? QColor(Qt::white) : QColor(text.green(), text.blue(), 7);
        });
        m_box->setColoured(ColouredText{u"red plain"_s, {{4, 0x0000ff}, {5, -1}}});
        QPalette palette = m_box->palette();
        palette.setColor(QPalette::Text, QColor(1, 2, 3));
        m_box->setPalette(palette);
        int start = -1;
        int end = -1;
        QVERIFY(text().attributes(1, &start, &end).contains(u";color:rgb(0,0,7);"_s));
        QVERIFY(text().attributes(5, &start, &end).contains(u";color:rgb(2,3,7);"_s));
        QTextCursor cursor(m_box->document());
        cursor.setPosition(3, QTextCursor::KeepAnchor);
        QTextCharFormat marked;
        marked.setBackground(Qt::yellow);
        cursor.mergeCharFormat(marked);
        QVERIFY(text().attributes(1, &start, &end).contains(u";color:rgb(255,255,255);"_s));
    }

    void typesAsTheUserDoes()
    {
        m_box->setText(u"one\r\ntwo"_s);
        m_box->setSelStart(5);
        QSignalSpy changes(m_box, &RichTextBox::Change);
        editing().insertText(1, u"xy"_s);
        QCOMPARE(m_box->Text(), u"oxyne\r\ntwo"_s);
        QCOMPARE(m_box->SelStart(), 7); // before "two", as it was
        editing().deleteText(1, 3);
        QCOMPARE(m_box->Text(), u"one\r\ntwo"_s);
        editing().replaceText(0, 3, u"1"_s);
        QCOMPARE(m_box->Text(), u"1\r\ntwo"_s);
        QCOMPARE(changes.count(), 3);
        seen().setText(QAccessible::Value, u"all\nanew"_s);
        QCOMPARE(m_box->Text(), u"all\r\nanew"_s);
        QCOMPARE(seen().text(QAccessible::Value), u"all\nanew"_s);
    }

    void changesNothingThatIsReadOnly()
    {
        m_box->setText(u"one"_s);
        m_box->setReadOnly(true);
        editing().insertText(0, u"x"_s);
        editing().deleteText(0, 2);
        seen().setText(QAccessible::Value, u"x"_s);
        QCOMPARE(m_box->Text(), u"one"_s);
        QVERIFY(seen().state().readOnly);
        QVERIFY(!seen().state().editable);
    }

    void aReceiverMayDestroyTheBox()
    {
        m_box->setText(u"one"_s);
        QObject::connect(m_box, &RichTextBox::Change, m_box, [this] { delete m_box; });
        editing().insertText(0, u"x"_s);
        QVERIFY(!m_box);
    }

    void aReceiverOfTheCaretMayToo()
    {
        m_box->setText(u"one"_s);
        QObject::connect(m_box, &RichTextBox::cursorPositionChanged, qApp,
                         [this] { delete m_box; });
        editing().insertText(2, u"x"_s);
        QVERIFY(!m_box);
    }

    void aReceiverMayCloseItToEditing()
    {
        m_box->setText(u"one"_s);
        QObject::connect(m_box, &RichTextBox::cursorPositionChanged, m_box,
                         [this] { m_box->setReadOnly(true); });
        editing().deleteText(1, 3);
        QCOMPARE(m_box->Text(), u"one"_s);
        QCOMPARE(m_box->textCursor().position(), 0);
    }

    void whatIsSelectedStaysSo()
    {
        m_box->setText(u"one two"_s);
        seen().textInterface()->setSelection(0, 0, 3);
        editing().insertText(3, u"x"_s);
        QCOMPARE(m_box->Text(), u"onex two"_s);
        QCOMPARE(m_box->textCursor().selectedText(), u"one"_s);
    }

    void outsideTheTextIsNothing()
    {
        m_box->setText(u"one two"_s);
        for (const int offset : {-1, 8, 9999}) {
            int start = 0;
            int end = 0;
            QCOMPARE(seen().textInterface()->textAtOffset(offset, QAccessible::WordBoundary, &start,
                                                          &end),
                     QString());
            QCOMPARE(start, -1);
            QCOMPARE(end, -1);
        }
        editing().insertText(-1, u"x"_s);
        QCOMPARE(m_box->Text(), u"xone two"_s);
        editing().deleteText(4, -1);
        QCOMPARE(m_box->Text(), u"xone"_s);
    }
};

ORVT_TEST(ScreenReaderTextTest)
#include "ScreenReaderTextTest.moc"
