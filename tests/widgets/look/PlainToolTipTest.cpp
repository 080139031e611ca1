#include "widgets/look/PlainToolTip.h"

#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtCore/QRegularExpression>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class PlainToolTipTest : public WidgetTest
{
    Q_OBJECT

private:
    QString tip(const QString &text) { return readableTip(text, m_widget.font(), m_widget); }
    QStringList lines(const QString &text) { return tip(text).split(u'\n'); }

    void verifyThatEachFits(const QStringList &lines)
    {
        const QFontMetrics metrics(m_widget.font());
        const int widest = widestTip(m_widget, m_widget.font());
        for (const QString &line : lines)
            QVERIFY2(metrics.horizontalAdvance(line.trimmed()) <= widest, qPrintable(line));
    }

    QWidget m_widget;

private Q_SLOTS:
    void aShortTextIsALine() { QCOMPARE(tip(u"short one"_s), u"short one"_s); }

    void everyKindOfLineEndIsOne()
    {
        QCOMPARE(lines(u"a\r\nb\rc\nd"_s), QStringList({u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    }

    void aLongTextIsBrokenBetweenWords()
    {
        const QString text = u"several words "_s.repeated(30).trimmed();
        const QStringList broken = lines(text);
        QVERIFY(broken.size() > 2);
        verifyThatEachFits(broken);
        QCOMPARE(broken.join(u' ').simplified(), text);
        static const QRegularExpression part(u"(^|\\s)(several|words)$"_s);
        for (const QString &line : broken)
            QVERIFY2(part.match(line.trimmed()).hasMatch(), qPrintable(line));
    }

    void aWordThatIsWiderThanALineIsBroken()
    {
        const QString word = u"W"_s.repeated(300);
        const QStringList broken = lines(word);
        QVERIFY(broken.size() > 2);
        verifyThatEachFits(broken);
        QCOMPARE(broken.join(QString()), word);
    }

    void whatIsTooLongToBeReadIsCut()
    {
        const QStringList many = lines(u"line\n"_s.repeated(40));
        QCOMPARE(many.size(), 16);
        QCOMPARE(many.last(), u"…"_s);
        QVERIFY(tip(u"x"_s.repeated(5000)).size() < 1100);
    }
};

ORVT_TEST(PlainToolTipTest)
#include "PlainToolTipTest.moc"
