// Texts as glyphs that were seen before, beside those that the toolkit shapes.

#include "widgets/view/LetterGlyphs.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QImage>
#include <QtGui/QTextLayout>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A text as the toolkit shapes it.
class ShapedText
{
public:
    ShapedText(const QString &text, const QFont &font)
        : m_layout(text, font)
    {
        m_layout.setCacheEnabled(true);
        m_layout.beginLayout();
        m_line = m_layout.createLine();
        m_layout.endLayout();
    }

    const QTextLine &line() const { return m_line; }
    QGlyphRun run() const { return m_line.glyphRuns().value(0); }

private:
    QTextLayout m_layout;
    QTextLine m_line;
};

void learn(LetterGlyphs &letters, const QString &text, const QFont &font)
{
    letters.learn(text, ShapedText(text, font).line());
}

QFont italic()
{
    QFont font;
    font.setItalic(true);
    return font;
}

QFont spaced()
{
    QFont font;
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    return font;
}

} // namespace

class LetterGlyphsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void newTextsOfSeenLettersAreAsShaped_data()
    {
        QTest::addColumn<QFont>("font");
        QTest::newRow("usual") << QFont();
        QTest::newRow("italic") << italic();
        QTest::newRow("spaced") << spaced();
        QTest::newRow("serif") << QFont(u"serif"_s, 23);
        QTest::newRow("of even widths") << QFont(u"monospace"_s, 9);
    }

    void newTextsOfSeenLettersAreAsShaped()
    {
        QFETCH(const QFont, font);
        LetterGlyphs letters;
        letters.setFont(font);
        for (const QString &text : {u"AVA Tomato"_s, u"Wäsche T."_s, u"21.5"_s, u"1.2"_s})
            learn(letters, text, font);
        for (const QString &text : {u"AVATomato"_s, u"Tom"_s, u"11"_s}) // no AT, no m at an end
            QVERIFY2(!letters.lineOf(text), qPrintable(text));
        for (const QString &text : {u"A"_s, u"a"_s, u"e"_s, u"ä"_s})
            learn(letters, text, font);
        for (const QString &text : {u"VA Toma"_s, u"AVAVA"_s, u"Tomatomato"_s, u"sche"_s, u"Wä"_s,
                                    u"2"_s, u"1.5"_s, u"21.21.2"_s}) {
            const std::optional<LetterGlyphs::Line> known = letters.lineOf(text);
            const ShapedText shaped(text, font);
            QVERIFY2(known, qPrintable(text));
            QCOMPARE(known->glyphs.glyphIndexes(), shaped.run().glyphIndexes());
            QCOMPARE(known->glyphs.positions(), shaped.run().positions());
            QVERIFY(known->glyphs.rawFont() == shaped.run().rawFont());
            QCOMPARE(known->advance, shaped.line().horizontalAdvance());
            QCOMPARE(known->naturalWidth, shaped.line().naturalTextWidth());
            QCOMPARE(known->height, shaped.line().height());
        }
    }

    void elidesAsTheToolkitDoes_data() { newTextsOfSeenLettersAreAsShaped_data(); }

    void elidesAsTheToolkitDoes()
    {
        QFETCH(const QFont, font);
        const QFontMetrics metrics(font);
        const QString text = u"Wave of AV 12, Tomato"_s;
        LetterGlyphs letters;
        letters.setFont(font);
        QVERIFY(!letters.elidedText(text, 1000));
        learn(letters, text, font);
        const int most = metrics.horizontalAdvance(text) + 3;
        int elided = 0;
        for (int width = metrics.horizontalAdvance(QChar(0x2026)) + 1; width < most; ++width) {
            const QString shown = metrics.elidedText(text, Qt::ElideRight, width);
            QCOMPARE(letters.elidedText(text, width), std::optional(shown));
            learn(letters, shown, font);
            QVERIFY(letters.lineOf(shown));
            QCOMPARE(letters.lineOf(shown)->glyphs.positions(),
                     ShapedText(shown, font).run().positions());
            elided += shown == text ? 0 : 1;
        }
        QVERIFY(elided > 20);
    }

    void nothingIsKnownOfAnotherFont()
    {
        LetterGlyphs letters;
        letters.setFont(QFont());
        learn(letters, u"abab"_s, QFont());
        QVERIFY(letters.lineOf(u"ab"_s));
        letters.setFont(QFont());
        QVERIFY(letters.lineOf(u"ab"_s));
        letters.setFont(italic());
        QVERIFY(!letters.lineOf(u"ab"_s));
        learn(letters, u"abab"_s, italic());
        QVERIFY(letters.lineOf(u"ab"_s));
        learn(letters, u"cdcd"_s, QFont());
        QVERIFY(!letters.lineOf(u"cd"_s));
    }

    // Which is the same font.
    void nothingIsKnownOfAnotherScreen()
    {
        QImage screen(1, 1, QImage::Format_RGB32);
        screen.setDotsPerMeterX(2 * screen.dotsPerMeterX());
        screen.setDotsPerMeterY(2 * screen.dotsPerMeterY());
        const QFont there(QFont(), &screen);
        QVERIFY(there == QFont());
        LetterGlyphs letters;
        letters.setFont(QFont());
        learn(letters, u"abab"_s, QFont());
        QVERIFY(letters.lineOf(u"ab"_s));
        letters.setFont(there);
        QVERIFY(!letters.lineOf(u"ab"_s));
    }

    // A letter at the beginning of a word is another one.
    void capitalsAreTheToolkits()
    {
        for (const QFont::Capitalization way :
             {QFont::Capitalize, QFont::SmallCaps, QFont::AllUppercase}) {
            QFont font;
            font.setCapitalization(way);
            LetterGlyphs letters;
            letters.setFont(font);
            learn(letters, u"abcabc"_s, font);
            QVERIFY(!letters.lineOf(u"bc"_s));
        }
    }

    // Brackets are drawn the other way round there.
    void textsFromTheRightTeachNothing()
    {
        QTextLayout layout(u"(((("_s, QFont());
        QTextOption fromTheRight;
        fromTheRight.setTextDirection(Qt::RightToLeft);
        layout.setTextOption(fromTheRight);
        layout.setCacheEnabled(true);
        layout.beginLayout();
        const QTextLine line = layout.createLine();
        layout.endLayout();
        LetterGlyphs letters;
        letters.setFont(QFont());
        learn(letters, u"."_s, QFont()); // of no script either
        letters.learn(layout.text(), line);
        QVERIFY(!letters.lineOf(u"("_s));
        learn(letters, u"("_s, QFont());
        QVERIFY(letters.lineOf(u"("_s));
    }

    // What is drawn in more than one way: from the right, as one, below a line, by another font.
    void whatIsNotPlainIsNotKnown_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("Hebrew") << u"שלום"_s;
        QTest::newRow("combined") << u"a\u0308a\u0308"_s;
        QTest::newRow("a ligature") << u"fifi"_s;
        QTest::newRow("a blank before") << u" a"_s;
        QTest::newRow("a blank behind") << u"a "_s;
        QTest::newRow("a soft hyphen") << u"a\u00ada"_s;
        QTest::newRow("a blank that does not break") << u"a\u00a0a"_s;
        QTest::newRow("isolated") << u"\u2068a\u2069"_s;
        QTest::newRow("nothing") << QString();
    }

    void whatIsNotPlainIsNotKnown()
    {
        QFETCH(const QString, text);
        LetterGlyphs letters;
        letters.setFont(QFont());
        learn(letters, u"a"_s, QFont());
        if (!text.isEmpty())
            learn(letters, text, QFont());
        QVERIFY(!letters.lineOf(text));
        QVERIFY(letters.lineOf(u"a"_s));
    }

    void linesUnderTextsAreTheToolkits()
    {
        QFont font;
        font.setUnderline(true);
        LetterGlyphs letters;
        letters.setFont(font);
        learn(letters, u"abc"_s, font);
        QVERIFY(!letters.lineOf(u"abc"_s));
    }

    // Which a font may set in another way beside words.
    void numbersAreKnownByThemselves()
    {
        LetterGlyphs letters;
        letters.setFont(QFont());
        learn(letters, u"a 1.5"_s, QFont());
        QVERIFY(!letters.lineOf(u"1.5"_s));
        learn(letters, u"1.5"_s, QFont());
        QVERIFY(letters.lineOf(u"1.5"_s));
    }

    void whatIsDrawnNowSoAndNowSoIsNotKnown()
    {
        LetterGlyphs letters;
        letters.setFont(QFont());
        learn(letters, u"ab"_s, QFont());
        QVERIFY(letters.lineOf(u"ab"_s));
        learn(letters, u"ab"_s, spaced());
        QVERIFY(!letters.lineOf(u"ab"_s));
        learn(letters, u"ab"_s, QFont());
        QVERIFY(!letters.lineOf(u"ab"_s));
    }
};

ORVT_TEST(LetterGlyphsTest)
#include "LetterGlyphsTest.moc"
