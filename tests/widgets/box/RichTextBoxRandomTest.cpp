#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/box/BoxModel.h"
#include <ORVTListview/RichTextBox.h>

#include <QtTest/QSignalSpy>

#include <algorithm>
#include <array>
#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// QString::toUpper would replace lone surrogates.
QChar upper(QChar character)
{
    return character.toUpper();
}

} // namespace

// Thousands of random operations, each followed by a comparison with the model.
class RichTextBoxRandomTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void behavesLikeTheModel_data();
    void behavesLikeTheModel();

private:
    using Step = void (RichTextBoxRandomTest::*)();

    unsigned below(unsigned limit) { return static_cast<unsigned>(m_random() % limit); }
    qint32 place() { return static_cast<qint32>(below(unsigned(m_model.text.size()) + 8)) - 4; }
    QString randomText(unsigned pieces);
    ColouredText randomColours(const QString &text);

    void setText();
    void setColoured();
    void setSelection();
    void setSelText();
    void setSelColoured();
    void setSelColor();
    void recolour();
    void recolourWithWhatIsThere();
    void find();
    void typeCharacter();
    void pressEnter();
    void pressBackspace();
    void pressDelete();
    void compare();
    void compareColours();
    void compareLines();

    std::mt19937 m_random;
    RichTextBox *m_box = nullptr;
    BoxModel m_model;
};

QString RichTextBoxRandomTest::randomText(unsigned pieces)
{
    static const QStringList table{u"a"_s,
                                   u"B"_s,
                                   u"if temp1"_s,
                                   u" "_s,
                                   u"\t"_s,
                                   u"\r\n"_s,
                                   u"\n"_s,
                                   u"\r"_s,
                                   u"\u2029"_s,
                                   u"\u2028"_s,
                                   u"\u00a0"_s,
                                   u"\ufffc"_s,
                                   u"\ufdd0"_s,
                                   u"\ufdd1"_s,
                                   u"\ufdef"_s,
                                   u"\U0001F600"_s,
                                   QString(QChar(0xd83d)),
                                   QString(QChar(0xde00)),
                                   QString(QChar(u'\0')),
                                   u"\u00e4"_s,
                                   u"\u00df"_s,
                                   u"{\\b"_s};
    QString text;
    for (unsigned i = 0; i < pieces; ++i)
        text += table.at(below(unsigned(table.size())));
    return text;
}

ColouredText RichTextBoxRandomTest::randomColours(const QString &text)
{
    ColouredText result{text, {}};
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype length = std::min<qsizetype>(1 + below(6), text.size() - at);
        result.runs.append({length, static_cast<qint32>(below(4)) - 1});
        at += length;
    }
    return result;
}

void RichTextBoxRandomTest::setText()
{
    const QString text = randomText(below(30));
    m_box->setText(text);
    m_model.select(0, m_model.text.size());
    m_model.replaceSelection(BoxModel::normalised(text), ColouredText::automatic);
    m_model.select(0, 0);
}

// Colours of text as it is after normalising, for one colour all over.
void RichTextBoxRandomTest::setColoured()
{
    const QString text = randomText(below(30));
    const auto colour = static_cast<qint32>(below(4)) - 1;
    m_box->setColoured({text, {{text.size(), colour}}});
    m_model.select(0, m_model.text.size());
    m_model.replaceSelection(BoxModel::normalised(text), colour);
    m_model.select(0, 0);
}

void RichTextBoxRandomTest::setSelection()
{
    const qint32 start = place();
    m_box->setSelStart(start);
    m_model.select(start, start);
    if (below(2) == 0)
        return;
    const qint32 length = static_cast<qint32>(below(12)) - 2;
    m_box->setSelLength(length);
    m_model.select(m_model.anchor, m_model.anchor + std::max(length, 0));
}

void RichTextBoxRandomTest::setSelText()
{
    const QString text = randomText(below(5));
    m_box->setSelText(text);
    m_model.replaceSelection(BoxModel::normalised(text));
}

void RichTextBoxRandomTest::setSelColoured()
{
    const QString text = randomText(below(5));
    m_box->setSelColoured(randomColours(text));
    m_model.replaceSelection(BoxModel::normalised(text));
}

void RichTextBoxRandomTest::setSelColor()
{
    const auto colour = static_cast<qint32>(below(3));
    m_box->setSelColor(colour);
    std::fill(m_model.colours.begin() + m_model.selStart(),
              m_model.colours.begin() + m_model.selEnd(), colour);
}

void RichTextBoxRandomTest::recolour()
{
    const qsizetype start = m_model.whole(place());
    const qsizetype end = m_model.whole(qint64(start) + below(30));
    QString text = m_model.text.mid(start, end - start);
    if (below(2) == 0)
        std::transform(text.begin(), text.end(), text.begin(), upper);
    const ColouredText colours = randomColours(text);
    QSignalSpy changes(m_box, &RichTextBox::Change);
    m_box->recolour(static_cast<qint32>(start), colours);
    QCOMPARE(changes.count(), 0);
    m_model.text.replace(start, text.size(), text);
    qsizetype at = start;
    for (const ColouredText::Run &run : colours.runs) {
        std::fill_n(m_model.colours.begin() + at, run.length, run.colour);
        at += run.length;
    }
}

void RichTextBoxRandomTest::recolourWithWhatIsThere()
{
    const auto start = static_cast<qint32>(m_model.whole(place()));
    const ColouredText shown = m_box->coloured(start, 40);
    QSignalSpy spy(m_box->document(), &QTextDocument::contentsChange);
    m_box->recolour(start, shown);
    QCOMPARE(spy.count(), 0);
}

void RichTextBoxRandomTest::find()
{
    const QString wanted = randomText(1);
    const qint32 at = m_box->Find(wanted, place(), -1, RichTextBox::FindMatchCase);
    if (at < 0)
        return;
    QCOMPARE(m_model.text.mid(at, wanted.size()), wanted);
    m_model.select(at, at + wanted.size());
}

void RichTextBoxRandomTest::typeCharacter()
{
    static constexpr std::array keys{'a', 'B', ' ', '(', '7'};
    const char key = keys.at(below(keys.size()));
    QTest::keyClick(m_box, key);
    m_model.replaceSelection(QString(QLatin1Char(key)));
}

void RichTextBoxRandomTest::pressEnter()
{
    QTest::keyClick(m_box, Qt::Key_Return, below(2) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
    m_model.replaceSelection(u"\r\n"_s);
}

void RichTextBoxRandomTest::pressBackspace()
{
    QTest::keyClick(m_box, Qt::Key_Backspace);
    m_model.backspace();
}

void RichTextBoxRandomTest::pressDelete()
{
    QTest::keyClick(m_box, Qt::Key_Delete);
    m_model.deleteNext();
}

void RichTextBoxRandomTest::compare()
{
    QCOMPARE(m_box->TextLength(), m_model.text.size());
    QCOMPARE(m_box->SelStart(), m_model.selStart());
    QCOMPARE(m_box->SelLength(), m_model.selEnd() - m_model.selStart());
    QCOMPARE(m_box->SelText(),
             m_model.text.mid(m_model.selStart(), m_model.selEnd() - m_model.selStart()));
    if (below(3) == 0)
        QCOMPARE(m_box->Text(), m_model.text);
    compareLines();
    if (below(10) == 0)
        compareColours();
}

void RichTextBoxRandomTest::compareLines()
{
    const qsizetype at = m_model.whole(place());
    const qsizetype line = m_model.lineOf(at);
    const QStringList lines = m_model.lines();
    QCOMPARE(m_box->lineCount(), lines.size());
    QCOMPARE(m_box->GetLineFromChar(static_cast<qint32>(at)), line);
    QCOMPARE(m_box->lineText(static_cast<qint32>(line)), lines.at(line));
    const qsizetype to = m_model.whole(qint64(at) + below(10));
    QCOMPARE(m_box->textRange(static_cast<qint32>(at), static_cast<qint32>(to - at)),
             m_model.text.mid(at, to - at));
}

void RichTextBoxRandomTest::compareColours()
{
    const ColouredText shown = m_box->coloured(0, m_box->TextLength());
    QCOMPARE(shown.text, m_model.text);
    qsizetype at = 0;
    for (const ColouredText::Run &run : shown.runs) {
        for (qsizetype i = 0; i < run.length; ++i, ++at) {
            const QChar character = m_model.text.at(at);
            if (m_model.colours.at(at) != BoxModel::unknown && character != u'\r' &&
                character != u'\n')
                QCOMPARE(run.colour, m_model.colours.at(at));
        }
    }
    QCOMPARE(at, m_model.text.size());
}

void RichTextBoxRandomTest::behavesLikeTheModel_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : randomSeeds(8))
        QTest::addRow("seed %u", seed) << seed;
}

void RichTextBoxRandomTest::behavesLikeTheModel()
{
    static constexpr std::array<Step, 18> steps{
        &RichTextBoxRandomTest::setText,        &RichTextBoxRandomTest::setColoured,
        &RichTextBoxRandomTest::setSelection,   &RichTextBoxRandomTest::setSelection,
        &RichTextBoxRandomTest::setSelection,   &RichTextBoxRandomTest::setSelText,
        &RichTextBoxRandomTest::setSelText,     &RichTextBoxRandomTest::setSelColoured,
        &RichTextBoxRandomTest::setSelColor,    &RichTextBoxRandomTest::recolour,
        &RichTextBoxRandomTest::recolour,       &RichTextBoxRandomTest::recolourWithWhatIsThere,
        &RichTextBoxRandomTest::find,           &RichTextBoxRandomTest::typeCharacter,
        &RichTextBoxRandomTest::typeCharacter,  &RichTextBoxRandomTest::pressEnter,
        &RichTextBoxRandomTest::pressBackspace, &RichTextBoxRandomTest::pressDelete,
    };
    QFETCH(unsigned, seed);
    m_random.seed(seed);
    m_model = {};
    RichTextBox box;
    m_box = &box;
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    for (int step = 0; step < 3000; ++step) {
        const unsigned choice = below(steps.size());
        (this->*steps.at(choice))();
        compare();
        if (QTest::currentTestFailed()) {
            qInfo("seed %u, step %d, operation %u", seed, step, choice);
            return;
        }
    }
}

ORVT_TEST(RichTextBoxRandomTest)
#include "RichTextBoxRandomTest.moc"
