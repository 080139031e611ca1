#include "widgets/box/BoxText.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class BoxTextTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyDocumentHasOneLine();
    void positionsGoBothWays();
    void askingTwiceGivesTheSameText();
    void aChangeIsReadInPlace();
    void theTextFollowsWholeDocumentChanges();
    void theTextFollowsRandomEdits_data();
    void theTextFollowsRandomEdits();
    void statesOfATextShareIt();
    void changesFarApartLeaveWhatLiesBetween();
    void changesAreCounted();

private:
    void edit(QTextCursor &cursor);
    unsigned below(unsigned limit) { return static_cast<unsigned>(m_random() % limit); }

    std::mt19937 m_random;
};

void BoxTextTest::anEmptyDocumentHasOneLine()
{
    QTextDocument document;
    BoxText text(document);
    QCOMPARE(text.length(), 0);
    QCOMPARE(text.lineCount(), 1);
    QCOMPARE(text.lineText(0), QString());
    QCOMPARE(text.lineStart(0), 0);
    QCOMPARE(text.text(), QString());
    QCOMPARE(text.toBox(0), 0);
    QCOMPARE(text.toDocument(0), 0);
    QCOMPARE(text.toDocument(7), 0);
}

void BoxTextTest::positionsGoBothWays()
{
    QTextDocument document;
    BoxText text(document);
    document.setPlainText(u"ab\n\ncde\n"_s);
    QCOMPARE(text.text(), u"ab\r\n\r\ncde\r\n"_s);
    QCOMPARE(text.length(), 11);
    for (int place = 0; place < document.characterCount(); ++place)
        QCOMPARE(text.toDocument(text.toBox(place)), place);
    const QList<int> places{0, 1, 2, 2, 3, 3, 4, 5, 6, 7, 7, 8, 8, 8};
    for (qint32 position = 0; position < places.size(); ++position)
        QCOMPARE(text.toDocument(position), places.at(position));
    QCOMPARE(text.toDocument(-3), 0);
}

void BoxTextTest::askingTwiceGivesTheSameText()
{
    QTextDocument document;
    BoxText text(document);
    document.setPlainText(u"one\ntwo"_s);
    const QString first = text.text();
    QVERIFY(first.isSharedWith(text.text()));
}

void BoxTextTest::aChangeIsReadInPlace()
{
    QTextDocument document;
    BoxText text(document);
    document.setPlainText(QString(1000, u'x') + u'\n' + QString(1000, u'y'));
    QTextCursor cursor(&document);
    cursor.setPosition(500);
    cursor.insertText(u"a"_s);
    QCOMPARE(text.text().size(), 2003);
    const QChar *before = text.text().constData();
    for (int i = 0; i < 1000; ++i) {
        cursor.deletePreviousChar();
        cursor.insertText(QString(QChar(u'a' + i % 26)));
        QCOMPARE(text.text().at(500), QChar(u'a' + i % 26));
    }
    QCOMPARE(text.text().constData(), before);
}

void BoxTextTest::theTextFollowsWholeDocumentChanges()
{
    QTextDocument document;
    BoxText text(document);
    QCOMPARE(text.text(), QString());
    document.setPlainText(u"one\ntwo"_s);
    QCOMPARE(text.text(), u"one\r\ntwo"_s);
    document.setPlainText(u"three"_s);
    QCOMPARE(text.text(), u"three"_s);
    document.setPlainText(u"three\nthree"_s);
    document.clear();
    QCOMPARE(text.text(), QString());
    document.setHtml(u"<p>a</p><p>b</p>"_s);
    QCOMPARE(text.text(), u"a\r\nb"_s);
    document.clear();
    document.setPlainText(u"a\nb"_s);
    QCOMPARE(text.text(), u"a\r\nb"_s);
}

void BoxTextTest::edit(QTextCursor &cursor)
{
    static const QStringList pieces{u"x"_s,        u"y"_s,          u"\n"_s,
                                    u"ab\ncd\n"_s, u"\U0001F600"_s, QString()};
    const int length = cursor.document()->characterCount();
    cursor.setPosition(int(below(unsigned(length))));
    if (below(2) == 0)
        cursor.setPosition(std::min(length - 1, cursor.position() + int(below(9))),
                           QTextCursor::KeepAnchor);
    switch (below(4)) {
    case 0:
        cursor.removeSelectedText();
        break;
    case 1: {
        QTextCharFormat format;
        format.setFontItalic(below(2) == 0);
        cursor.setCharFormat(format);
        break;
    }
    default:
        cursor.insertText(pieces.at(qsizetype(below(unsigned(pieces.size())))));
    }
}

void BoxTextTest::theTextFollowsRandomEdits_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : randomSeeds(6))
        QTest::addRow("seed %u", seed) << seed;
}

void BoxTextTest::theTextFollowsRandomEdits()
{
    QFETCH(unsigned, seed);
    m_random.seed(seed);
    QTextDocument document;
    BoxText text(document);
    QTextCursor cursor(&document);
    for (int step = 0; step < 4000; ++step) {
        const bool grouped = below(3) == 0;
        if (grouped)
            cursor.beginEditBlock();
        for (unsigned edits = grouped ? below(5) : 1; edits > 0; --edits)
            edit(cursor);
        if (grouped)
            cursor.endEditBlock();
        if (below(50) == 0)
            document.setPlainText(u"start\nagain"_s);
        if (below(3) != 0)
            continue;
        const BoxText fresh(document);
        QCOMPARE(text.text(), fresh.text());
        QCOMPARE(text.text(), document.toRawText().replace(QChar(0x2029), u"\r\n"_s));
        QCOMPARE(text.length(), text.text().size());
        if (below(2) == 0) // so that it is older than the other at times
            QCOMPARE(text.sharedText().toString(), fresh.text());
    }
}

void BoxTextTest::statesOfATextShareIt()
{
    QTextDocument document;
    BoxText text(document);
    document.setPlainText(u"0123456789\n"_s.repeated(10'000));
    const SharedText before = text.sharedText();
    QCOMPARE(before.toString().constData(), text.text().constData());
    QTextCursor cursor(&document);
    cursor.setPosition(50'000);
    cursor.insertText(u"a\nb"_s);
    const SharedText after = text.sharedText();
    QCOMPARE(after.toString(), text.text());
    QVERIFY(!after.equals(before));
    SharedText::CountedStrings counted;
    before.bytes(counted);
    QCOMPARE(after.bytes(counted), 2 * 4);
    const BoxText other(document);
    QCOMPARE(other.sharedText().toString(), after.toString());
}

void BoxTextTest::changesFarApartLeaveWhatLiesBetween()
{
    QTextDocument document;
    BoxText text(document);
    document.setPlainText(u"0123456789\n"_s.repeated(10'000));
    const SharedText before = text.sharedText();
    QTextCursor cursor(&document);
    for (const int place : {90'000, 10, 50'000}) {
        cursor.setPosition(place);
        cursor.insertText(u"a\nb"_s);
    }
    cursor.setPosition(70'000);
    cursor.setPosition(70'100, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    const SharedText after = text.sharedText();
    QCOMPARE(after.toString(), BoxText(document).text());
    QCOMPARE(text.text(), after.toString());
    QCOMPARE(before.differences(after).size(), 4);
}

void BoxTextTest::changesAreCounted()
{
    QTextDocument document;
    BoxText text(document);
    const quint64 before = text.changeCount();
    document.setPlainText(u"x"_s);
    QVERIFY(text.changeCount() > before);
}

ORVT_TEST(BoxTextTest)
#include "BoxTextTest.moc"
