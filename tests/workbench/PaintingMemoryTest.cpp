// What is painted again as it was takes no more memory. The toolkit keeps a name for every
// pixmap that a style has ever drawn, so it has to be the same one each time.

#include "support/MemoryInUse.h"
#include "support/TestProgram.h"
#include "workbench/WorkbenchTest.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class PaintingMemoryTest : public WidgetTest
{
    Q_OBJECT

private:
    static void paint(MainWindow &window, int times)
    {
        for (int i = 0; i < times; ++i) {
            for (QWidget *widget : window.findChildren<QWidget *>())
                widget->update();
            QCoreApplication::processEvents();
        }
    }

private Q_SLOTS:
    void aWindowIsPaintedAgain_data()
    {
        QTest::addColumn<LwType>("type");
        QTest::addColumn<Theme>("theme");
        QTest::newRow("program") << dsCode << Theme::Light;
        QTest::newRow("program in the dark") << dsCode << Theme::Dark;
        QTest::newRow("table") << dsInput << Theme::Light;
        QTest::newRow("table in the dark") << dsInput << Theme::Dark;
    }
    void aWindowIsPaintedAgain()
    {
        QFETCH(const LwType, type);
        QFETCH(const Theme, theme);
        WorkbenchWindow workbench("IF Temp1 > 20\r\n    Fan1 = ON\r\nENDIF\r\n");
        Settings settings = workbench.window.settings();
        settings.theme = theme;
        workbench.window.setSettings(settings);
        workbench.window.showType(type);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        paint(workbench.window, 50);
        const qint64 before = memoryInUse();
        paint(workbench.window, 100);
        const qint64 grown = memoryInUse() - before;
        QVERIFY2(grown < 20'000, qPrintable(QString::number(grown)));
    }
};

ORVT_TEST(PaintingMemoryTest)
#include "PaintingMemoryTest.moc"
