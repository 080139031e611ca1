// Places that are kept while a document is edited, compared with cursors there.

#include "editor/view/KeptPlaces.h"
#include "support/RandomSeed.h"
#include "support/RandomText.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QPlainTextDocumentLayout>

#include <algorithm>
#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QTextCursor selected(QTextDocument &text, int from, int to)
{
    QTextCursor cursor(&text);
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    return cursor;
}

} // namespace

class KeptPlacesTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<QTextDocument> m_text;
    std::unique_ptr<KeptPlaces> m_places;

    void begin(const QString &text, KeptPlaces::Kind kind)
    {
        m_places.reset();
        m_text = std::make_unique<QTextDocument>();
        m_text->setDocumentLayout(new QPlainTextDocumentLayout(m_text.get()));
        m_text->setUndoRedoEnabled(false);
        m_text->setPlainText(text);
        m_places = std::make_unique<KeptPlaces>(*m_text, kind);
        connect(m_text.get(), &QTextDocument::contentsChange, this,
                [this](int from, int removed, int added) {
                    m_places->noteChange(from, removed, added);
                });
    }
    QTextBlock line(int number) { return m_text->findBlockByNumber(number); }
    void keepLines(const QList<int> &lines)
    {
        QList<KeptPlaces::Span> spans;
        for (const int each : lines)
            spans.append({line(each).position(), line(each).position()});
        m_places->set(spans);
    }
    // The text of each place, by its name, or "-" of one whose text has gone.
    QString kept()
    {
        QStringList texts(m_places->size());
        for (qsizetype i = 0; i < m_places->size(); ++i) {
            const auto [from, to] = m_places->at(i);
            QString text = selected(*m_text, from, to).selectedText();
            text.replace(QChar::ParagraphSeparator, u'|');
            texts[m_places->nameAt(i)] = m_places->isGone(i) ? u"-"_s : text;
        }
        return texts.join(u' ');
    }
    bool isSorted()
    {
        for (qsizetype i = 1; i < m_places->size(); ++i) {
            if (m_places->at(i).from < m_places->at(i - 1).from)
                return false;
        }
        return true;
    }

private Q_SLOTS:
    void cleanup() override
    {
        m_places.reset();
        m_text.reset();
        WidgetTest::cleanup();
    }

    void areWhereCursorsWouldBe()
    {
        const unsigned seed = randomSeed();
        RandomText random(seed);
        for (int round = 0; round < 40; ++round) {
            QString text;
            for (int i = 0; i < 60; ++i)
                text += u"line%1 = %2\n"_s.arg(i).arg(random.number(9));
            begin(text, KeptPlaces::Kind::Texts);
            QList<QTextCursor> cursors;
            QList<KeptPlaces::Span> spans;
            for (int i = 0; i < 50; ++i) {
                const int from = random.number(m_text->characterCount() - 20);
                const int to = from + random.number(20);
                spans.append({from, to});
                cursors.append(selected(*m_text, from, to));
            }
            m_places->set(spans);
            for (int step = 0; step < 100; ++step) {
                const int last = m_text->characterCount() - 1;
                const int from = random.number(last);
                if (random.number(3) == 0 && last > 300)
                    selected(*m_text, from, std::min(last, from + 1 + random.number(30)))
                        .removeSelectedText();
                else
                    selected(*m_text, from, from)
                        .insertText(random.number(3) == 0 ? u"new\nline"_s : u"x"_s);
                const QList<KeptPlaces::Span> now = m_places->byName();
                for (qsizetype i = 0; i < now.size(); ++i) {
                    QVERIFY2(
                        now[i].from == cursors[i].selectionStart() &&
                            now[i].to == cursors[i].selectionEnd(),
                        qPrintable(u"seed %1, round %2, step %3"_s.arg(seed).arg(round).arg(step)));
                }
                QVERIFY(isSorted());
            }
        }
    }

    // They are told of as one change of all that is between.
    void stayOverSeveralChangesAtOnce()
    {
        begin(u"one = tmep\ntwo = 2\ntwo = 2\nend"_s, KeptPlaces::Kind::Texts);
        m_places->set({{6, 10}, {11, 14}, {19, 22}, {27, 30}});
        QCOMPARE(kept(), u"tmep two two end"_s);
        QTextCursor change(m_text.get());
        change.beginEditBlock();
        for (int i = 0; i < 4; ++i)
            QTextCursor(line(i)).insertText(u"REM "_s);
        change.endEditBlock();
        QCOMPARE(kept(), u"tmep two two end"_s);
        QCOMPARE(m_places->lineAt(2).blockNumber(), 2);
        change.beginEditBlock();
        selected(*m_text, 10, 14).removeSelectedText();
        QTextCursor(line(3)).insertText(u"  "_s);
        change.endEditBlock();
        QCOMPARE(kept(), u"- two two end"_s);
    }

    void goWithTextThatIsReplaced()
    {
        begin(u"aa = bb aa"_s, KeptPlaces::Kind::Texts);
        m_places->set({{5, 7}, {8, 10}, {0, 2}});
        selected(*m_text, 4, 10).insertText(u" x"_s); // over both, removed and put in
        QCOMPARE(kept(), u"- - aa"_s);
        QCOMPARE(m_text->toPlainText(), u"aa = x"_s);
    }

    void whatStoodBesideTheChangeIsNotTheirs()
    {
        begin(u"xx abc abc"_s, KeptPlaces::Kind::Texts);
        m_places->set({{3, 6}});
        selected(*m_text, 0, 6).insertText(u"yyyyab"_s);
        QCOMPARE(m_text->toPlainText(), u"yyyyab abc"_s);
        QCOMPARE(kept(), u"-"_s);
    }

    void ofALineThatGoesElsewhere()
    {
        begin(u"top\na = 1\nb = 2\nc = 3\nend"_s, KeptPlaces::Kind::Texts);
        m_places->set({{8, 9}, {14, 15}, {0, 3}});
        selected(*m_text, 3, 21).insertText(u"\nb = 2\nc = 3\na = 1"_s);
        QCOMPARE(kept(), u"1 2 top"_s);
        QCOMPARE(m_places->lineAt(2).blockNumber(), 3);
        QVERIFY(isSorted());
    }

    void linesAreWhole()
    {
        begin(u"one\ntwo\n\nlast"_s, KeptPlaces::Kind::Lines);
        keepLines({1, 2, 3});
        QCOMPARE(kept(), u"two| | last"_s);
        QTextCursor(line(1)).insertText(u"x\ny"_s); // the line goes down with its text
        QCOMPARE(kept(), u"ytwo| | last"_s);
        QTextCursor end(line(4));
        end.movePosition(QTextCursor::EndOfBlock);
        end.insertText(u" more"_s);
        QCOMPARE(kept(), u"ytwo| | last more"_s);
        end.setPosition(line(3).position());
        end.deleteChar(); // the empty line
        QCOMPARE(kept(), u"ytwo| - last more"_s);
        QVERIFY(m_places->areGone(line(3).position(), line(3).position()));
    }

    void linesThatAreReplacedAreFound()
    {
        begin(u"a\nb\nc\nd"_s, KeptPlaces::Kind::Lines);
        keepLines({1, 3});
        selected(*m_text, 2, 7).insertText(u"d\nc\nb"_s);
        QCOMPARE(kept(), u"b d|"_s);
        selected(*m_text, 2, 3).insertText(u"D"_s); // the line is there, though changed
        QCOMPARE(kept(), u"b D|"_s);
        selected(*m_text, 0, 7).insertText(u"x\ny\nz\nu\nv"_s);
        QCOMPARE(kept(), u"- -"_s);
    }

    void lettersOfTheSameLengthChangeNothing()
    {
        begin(u"if x\nend"_s, KeptPlaces::Kind::Texts);
        m_text->disconnect(this);
        m_places->set({{3, 4}});
        QTextCursor cursor = selected(*m_text, 0, 2);
        cursor.insertText(u"IF"_s);
        m_places->noteLetters(0, 2);
        QCOMPARE(kept(), u"x"_s);
        cursor = selected(*m_text, 0, 8); // the line is found by its letters of now
        cursor.insertText(u"end\nIF x"_s);
        m_places->noteChange(0, 8, 8);
        QCOMPARE(kept(), u"x"_s);
    }

    void aLastLineWithoutALetterHasNothingToLose()
    {
        begin(u"one\n"_s, KeptPlaces::Kind::Lines);
        keepLines({1});
        QTextCursor(line(0)).insertText(u"x"_s);
        QVERIFY(!m_places->isGone(0));
        QTextCursor(line(1)).insertText(u"y"_s);
        QCOMPARE(kept(), u"y"_s);
        selected(*m_text, 4, 6).removeSelectedText(); // with the line end before it
        QVERIFY(m_places->isGone(0));
    }

    void stayInTheTextWhoseLastLineTakesAnotherForm()
    {
        begin(u"one\n"_s, KeptPlaces::Kind::Texts);
        m_places->set({{4, 4}});
        QTextCursor end(m_text.get());
        end.beginEditBlock();
        end.movePosition(QTextCursor::End);
        end.insertText(u"two"_s);
        QTextBlockFormat right;
        right.setAlignment(Qt::AlignRight);
        end.setBlockFormat(right);
        end.endEditBlock();
        QCOMPARE(m_places->at(0).from, 7);
    }
};

ORVT_TEST(KeptPlacesTest)
#include "KeptPlacesTest.moc"
