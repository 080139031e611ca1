// Words of a program have the colours of the points that there are, also of those that come
// and go while it stands there.

#include "WorkbenchTest.h"

#include "base/ColouredText.h"
#include "project/Project.h"
#include "support/TestProgram.h"
#include "workbench/renaming/PointRenaming.h"

#include <ORVTListview/ListItems.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

Colour colourAt(WorkbenchWindow &workbench, int line, const QString &word)
{
    RichTextBox &box = workbench.box();
    const auto place = static_cast<qint32>(box.lineText(line).indexOf(word));
    return box.coloured(box.lineStart(line) + place, 1).runs.constFirst().colour;
}

} // namespace

class WordColoursTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aPointThatIsAddedColoursItsName()
    {
        WorkbenchWindow workbench("Fan1 = Temp1 + Later\nREM Later\nFan1 = (later)\n");
        const Colour input = colourAt(workbench, 0, u"Temp1"_s);
        const Colour plain = colourAt(workbench, 0, u"Later"_s);
        const Colour comment = colourAt(workbench, 1, u"Later"_s);
        QVERIFY(input != plain);
        const QString text = workbench.box().Text();
        workbench.window.findChild<PointRenaming *>()->append(dsInput, u"Later"_s);
        QTRY_COMPARE(colourAt(workbench, 0, u"Later"_s), input);
        QTRY_COMPARE(colourAt(workbench, 2, u"later"_s), input);
        QCOMPARE(colourAt(workbench, 1, u"Later"_s), comment);
        QCOMPARE(workbench.box().Text(), text); // not a letter
        QCOMPARE(workbench.box().SelStart(), 0);
        workbench.choose(u"Undo"_s);
        QTRY_COMPARE(colourAt(workbench, 0, u"Later"_s), plain);
    }

    void aNameThatStaysBehindIsPlain()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\nFan1 = nobody");
        const Colour plain = colourAt(workbench, 1, u"nobody"_s);
        QVERIFY(colourAt(workbench, 0, u"Temp1"_s) != plain);
        NextMessage asked(QMessageBox::Yes);
        workbench.window.findChild<PointRenaming *>()->remove(dsInput, 0);
        QVERIFY(asked.wasThere());
        QTRY_COMPARE(colourAt(workbench, 0, u"Temp1"_s), plain);
    }
};

ORVT_TEST(WordColoursTest)
#include "WordColoursTest.moc"
