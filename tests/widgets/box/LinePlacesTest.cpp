// Where letters are reckoned to stand is where the toolkit puts them.

#include "widgets/box/LinePlaces.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/box/BoxLayers.h"

#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextLayout>

#include <cmath>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class LinePlacesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void areThoseOfTheToolkit_data()
    {
        QTest::addColumn<QString>("font");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("areEven");
        const QString mono = u"DejaVu Sans Mono"_s;
        QTest::newRow("even") << mono << u"IF Temp1 > ( 20 ) iWiW"_s << true;
        QTest::newRow("a tab") << mono << u"\tTemp1 = 20"_s << false;
        QTest::newRow("other letters") << mono << u"x = \u4e00 y \u00e4"_s << false;
        QTest::newRow("from right to left") << mono << u"\u05d0\u05d1 x"_s << false;
        QTest::newRow("of all widths") << u"DejaVu Sans"_s << u"IF Temp1 > 20"_s << false;
        QTest::newRow("empty") << mono << QString() << false;
    }
    void areThoseOfTheToolkit()
    {
        QFETCH(const QString, font);
        QFETCH(const QString, text);
        QFETCH(const bool, areEven);
        RichTextBox box;
        box.setFontName(font);
        box.setText(text);
        box.resize(600, 200);
        box.show();
        const ShownLines lines = BoxLayers::of(box).shownLines();
        QCOMPARE(lines.size(), 1);
        const LinePlaces places(lines.first());
        const QTextLine row = lines.first().block.layout()->lineAt(0);
        QCOMPARE(places.rows().size(), 1);
        QCOMPARE(places.rows().first().areEven(), areEven);
        for (int i = 0; i <= text.size(); ++i)
            QVERIFY(std::abs(places.rows().first().at(i) - row.cursorToX(i)) < 0.02);
        for (int i = 0; areEven && i < text.size(); ++i)
            QCOMPARE(places.rows().first().letterAt(row.cursorToX(i)), i);
    }
};

ORVT_TEST(LinePlacesTest)
#include "LinePlacesTest.moc"
