#include "base/ColouredText.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/box/LateColours.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QScrollBar>

#include <new>
#include <optional>
#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class BoxColoursTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void selColorReadsAndSets();
    void selColorOfNothingColoursWhatComesNext();
    void insertedTextTakesTheFormatOfTheSelectionsStart();
    void colouredTextGoesInAndComesOut();
    void recolourTouchesOnlyWhatDiffers();
    void recolourKeepsCaretSelectionAndScroll();
    void theDocumentKeepsFewFormats();
    void theWholeTextChangesWhereItDiffers();
    void whatWasThereBeforeDoesNotShow();
    void longTextKeepsItsPlaceAndItsColours();
    void partsThatFailLeaveNoHalfText();
};

namespace {

// Lines of few words, so that texts have lines in common.
ColouredText randomProgram(std::mt19937 &random, int lines)
{
    static const QStringList words{u"if"_s, u" "_s, u"x"_s, u"\tT1"_s, u"\u00e4"_s, QString()};
    const auto below = [&random](auto limit) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(limit));
    };
    ColouredText program;
    for (int line = 0; line < lines; ++line) {
        if (line > 0) {
            program.text += u"\r\n"_s;
            program.appendRun(2, below(2) == 0 ? 7 : -1);
        }
        for (auto word = below(3); word > 0; --word) {
            const QString &text = words[below(words.size())];
            program.text += text;
            program.appendRun(text.size(), below(3) == 0 ? 7 : -1);
        }
    }
    return program;
}

// Every piece of a document's text with its format, line ends included.
QStringList piecesOf(const QTextDocument &document)
{
    QStringList pieces;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QStringList line{u"%1"_s.arg(block.charFormat().foreground().color().name())};
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            line.append(u"%1 %2 %3"_s.arg(it.fragment().text(), format.foreground().color().name(),
                                          QString::number(format.properties().size())));
        }
        pieces.append(line.join(u'|'));
    }
    return pieces;
}

} // namespace

void BoxColoursTest::theWholeTextChangesWhereItDiffers()
{
    const QString line = u"if T1 > 5 then\r\n"_s;
    ColouredText text{line.repeated(300), {}};
    for (int i = 0; i < 300; ++i) {
        text.appendRun(2, 7);
        text.appendRun(line.size() - 2, -1);
    }
    RichTextBox box;
    box.setColoured(text);
    const QSignalSpy edits(box.document(), &QTextDocument::contentsChange);
    const QSignalSpy changes(&box, &RichTextBox::Change);
    box.setColoured(text);
    QCOMPARE(edits.count(), 0);
    QCOMPARE(changes.count(), 1);

    text.text.replace(100 * line.size(), line.size(), u"IF t1 > 5 then\r\nx\r\n"_s);
    text.runs.insert(200, {3, 9});
    box.setColoured(text);
    QCOMPARE(edits.count(), 1);
    QVERIFY(edits.first().at(1).toInt() <= 2 * line.size());
    QVERIFY(edits.first().at(2).toInt() <= 3 * line.size());
    QCOMPARE(changes.count(), 2);
    QVERIFY(box.coloured(0, box.TextLength()) == text);
    QCOMPARE(box.SelStart(), 0);
}

void BoxColoursTest::whatWasThereBeforeDoesNotShow()
{
    std::mt19937 random(5);
    RichTextBox box;
    for (int round = 0; round < 400; ++round) {
        ColouredText text = randomProgram(random, 1 + static_cast<int>(random() % 12));
        box.setColoured(text);
        box.setSelStart(static_cast<qint32>(random() % 40));
        box.setSelLength(static_cast<qint32>(random() % 6));
        if (round % 3 == 0)
            box.setSelText(u"a\r\nb"_s);
        else if (round % 3 == 1)
            box.setSelColor(7);
        else
            box.setSelRTF(uR"({\rtf1\b bold\b0\par\highlight1 x})"_s);
        if (round % 5 != 0) // most of it stays
            text = box.coloured(0, box.TextLength());
        box.setColoured(text);
        RichTextBox fresh;
        fresh.setColoured(text);
        QCOMPARE(box.Text(), text.text);
        QCOMPARE(piecesOf(*box.document()), piecesOf(*fresh.document()));
        QCOMPARE(box.TextRTF(), fresh.TextRTF());
    }
}

// More than goes into the document at a time.
void BoxColoursTest::longTextKeepsItsPlaceAndItsColours()
{
    std::mt19937 random(7);
    ColouredText text = randomProgram(random, 40'000);
    RichTextBox box;
    box.setText(u"before after"_s);
    QTextCursor host(box.document());
    host.setPosition(7); // where the text goes in
    QTextCursor behind(box.document());
    behind.setPosition(9);
    box.setSelStart(7);
    box.setSelColoured(text);
    QCOMPARE(box.Text(), u"before "_s + text.text + u"after"_s);
    QCOMPARE(box.SelStart(), 7 + text.text.size());
    QCOMPARE(host.position(), box.document()->characterCount() - 1 - 5);
    QCOMPARE(behind.position(), host.position() + 2);
    RichTextBox fresh;
    fresh.setColoured(text);
    QCOMPARE(box.coloured(7, static_cast<qint32>(text.text.size())),
             fresh.coloured(0, fresh.TextLength()));
}

void BoxColoursTest::partsThatFailLeaveNoHalfText()
{
    for (const bool isLate : {false, true}) {
        RichTextBox box;
        box.setText(u"former"_s);
        std::optional<LateColours::Allowed> late;
        if (isLate)
            late.emplace(LateColours::of(*box.document()), LateColours::Lines::New);
        QSignalSpy changes(&box, &RichTextBox::Change);
        int parts = 0;
        const auto next = [&parts]() -> std::optional<ColouredText> {
            if (++parts == 3)
                throw std::bad_alloc();
            return ColouredText{u"part"_s, {{4, 0xFF}}};
        };
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, box.setColoured(next));
        QCOMPARE(box.Text(), QString());
        QCOMPARE(box.TextLength(), 0);
        QCOMPARE(changes.count(), 1);
        box.setSelText(u"typed"_s);
        QCOMPARE(box.Text(), u"typed"_s);
    }
}

void BoxColoursTest::selColorReadsAndSets()
{
    RichTextBox box;
    box.setText(u"one two"_s);
    QCOMPARE(box.SelColor(), 0);
    box.setSelStart(4);
    box.setSelLength(3);
    box.setSelColor(0x00ff8001);
    QCOMPARE(box.SelColor(), 0x00ff8001);
    QCOMPARE(box.SelText(), u"two"_s);
    const ColouredText expected{u"one two"_s, {{4, ColouredText::automatic}, {3, 0x00ff8001}}};
    QVERIFY(box.coloured(0, 7) == expected);

    box.setSelStart(3);
    box.setSelLength(3);
    QCOMPARE(box.SelColor(), 0);
    box.setSelStart(5);
    box.setSelLength(2);
    box.setSelColor(ColouredText::automatic);
    const ColouredText mixed{u"one two"_s,
                             {{4, ColouredText::automatic}, {1, 0x00ff8001}, {2, -1}}};
    QVERIFY(box.coloured(0, 7) == mixed);
    box.setSelColor(static_cast<qint32>(0x80000008));
    const QColor text = box.palette().color(QPalette::Text);
    QCOMPARE(box.SelColor(), text.red() | text.green() << 8 | text.blue() << 16);
}

void BoxColoursTest::selColorOfNothingColoursWhatComesNext()
{
    RichTextBox box;
    box.setText(u"ab"_s);
    box.setSelStart(2);
    box.setSelColor(0xff);
    QCOMPARE(box.SelColor(), 0xff);
    box.setSelText(u"x\r\n"_s);
    box.setSelText(u"y"_s);
    QCOMPARE(box.SelColor(), 0xff);
    QTest::keyClicks(&box, u"z"_s);
    const ColouredText expected{u"abx\r\nyz"_s, {{2, -1}, {5, 0xff}}};
    QVERIFY(box.coloured(0, 99) == expected);

    box.setSelStart(1);
    box.setSelColor(0xff0000);
    QTest::keyClicks(&box, u"k"_s);
    QCOMPARE(box.coloured(1, 1).runs.constFirst().colour, 0xff0000);
}

void BoxColoursTest::insertedTextTakesTheFormatOfTheSelectionsStart()
{
    RichTextBox box;
    box.setColoured({u"redblue"_s, {{3, 0xff}, {4, 0xff0000}}});
    box.setSelStart(0);
    box.setSelLength(7);
    box.setSelText(u"x"_s);
    QVERIFY(box.coloured(0, 9) == (ColouredText{u"x"_s, {{1, 0xff}}}));
}

void BoxColoursTest::colouredTextGoesInAndComesOut()
{
    RichTextBox box;
    const ColouredText text{u"IF x\r\n\r\nREM\ufdd0 y\r\n"_s, {{2, 0xff}, {1, -1}, {5, 1}, {8, 2}}};
    box.setColoured(text);
    QCOMPARE(box.SelStart(), 0);
    QVERIFY(box.coloured(0, 99) == text);
    const ColouredText part{u"x\r\n\r\nRE"_s, {{5, 1}, {2, 2}}};
    QVERIFY(box.coloured(3, 7) == part);

    // Runs that are too short, too long or cut a line end in two.
    box.setColoured({u"abc\r\nd"_s, {{4, 7}, {-1, 3}, {1, 8}}});
    QVERIFY(box.coloured(0, 99) == (ColouredText{u"abc\r\nd"_s, {{5, 7}, {1, -1}}}));
    box.setColoured({u"ab"_s, {{100, 7}}});
    QVERIFY(box.coloured(0, 99) == (ColouredText{u"ab"_s, {{2, 7}}}));
}

void BoxColoursTest::recolourTouchesOnlyWhatDiffers()
{
    RichTextBox box;
    const ColouredText text{u"if x\r\nREM y"_s, {{2, 0xff}, {2, -1}, {2, -1}, {5, 2}}};
    box.setColoured(text);
    QSignalSpy spy(box.document(), &QTextDocument::contentsChange);
    box.recolour(0, text);
    QCOMPARE(spy.count(), 0);

    box.recolour(0, {u"IF y\r\nREM"_s, {{2, 0xff}, {4, 9}, {3, 2}}});
    QCOMPARE(box.Text(), u"IF x\r\nREM y"_s);
    const ColouredText expected{u"IF x\r\nREM y"_s, {{2, 0xff}, {4, 9}, {5, 2}}};
    QVERIFY(box.coloured(0, 99) == expected);
}

void BoxColoursTest::recolourKeepsCaretSelectionAndScroll()
{
    RichTextBox box;
    box.resize(200, 100);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QString text;
    for (int i = 0; i < 200; ++i)
        text += u"if temp1\r\n"_s;
    box.setText(text);
    box.verticalScrollBar()->setValue(20);
    const ColouredText coloured{text.toUpper(), {{text.size(), 0xff}}};
    for (qint32 place = 0; place < 24; ++place) {
        QTextCursor cursor(box.document());
        cursor.setPosition(place);
        cursor.setPosition(7, QTextCursor::KeepAnchor);
        box.setText(text);
        cursor = QTextCursor(box.document());
        cursor.setPosition(place);
        cursor.setPosition(7, QTextCursor::KeepAnchor);
        box.setTextCursor(cursor);
        box.verticalScrollBar()->setValue(20);
        const int anchor = cursor.anchor();
        box.recolour(0, coloured);
        QCOMPARE(box.textCursor().anchor(), anchor);
        QCOMPARE(box.textCursor().position(), 7);
        QCOMPARE(box.verticalScrollBar()->value(), 20);
    }
    QCOMPARE(box.Text(), text.toUpper());
}

void BoxColoursTest::theDocumentKeepsFewFormats()
{
    RichTextBox box;
    box.setFontSize(11);
    ColouredText text;
    for (qint32 i = 0; i < 1000; ++i) {
        text.text += u"IF temp\r\n"_s;
        text.runs << ColouredText::Run{2, i % 8} << ColouredText::Run{7, -1};
    }
    for (int round = 0; round < 3; ++round) {
        box.setColoured(text);
        box.recolour(0, text);
        box.setTextRTF(box.TextRTF());
        box.setSelStart(0);
        box.setSelLength(100);
        box.setSelColor(round);
    }
    QVERIFY2(box.document()->allFormats().size() < 20,
             qPrintable(QString::number(box.document()->allFormats().size())));
}

ORVT_TEST(BoxColoursTest)
#include "BoxColoursTest.moc"
