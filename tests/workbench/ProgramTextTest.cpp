#include "workbench/ProgramText.h"

#include "support/TestProgram.h"

#include <QtTest/QTest>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ProgramTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsStayApart_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("apart");
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("between words") << u"A\tB"_s << u"A B"_s;
        QTest::newRow("in a row") << u"A\tB\tC"_s << u"A B C"_s;
        QTest::newRow("one letter each") << u"A\tB\tC\tD"_s << u"A B C D"_s;
        QTest::newRow("beside a blank") << u"A\t B \tC"_s << u"A\t B \tC"_s;
        QTest::newRow("two tabs") << u"A\t\tB"_s << u"A\t\tB"_s;
        QTest::newRow("indent and end") << u"\tA\t\r\n\tB\t"_s << u"\tA\t\r\n\tB\t"_s;
        QTest::newRow("brackets") << u"(\tA\t)"_s << u"( A )"_s;
        QTest::newRow("comment") << u"REM\tA\tB"_s << u"REM\tA\tB"_s;
        QTest::newRow("lines") << u"A\tB\r\nREM A\tB\r\nC\tD"_s << u"A B\r\nREM A\tB\r\nC D"_s;
    }
    void wordsStayApart()
    {
        QFETCH(QString, program);
        QTEST(withWordsApart(program), "apart");
    }
};

ORVT_TEST_WITHOUT_APPLICATION(ProgramTextTest)
#include "ProgramTextTest.moc"
