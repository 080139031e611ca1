#include "workbench/WindowIcon.h"

#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QImage>
#include <QtGui/QPixmap>

using namespace ORVTListview;

class WindowIconTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void isDrawnForTheFrameOfEachSize_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {16, 24, 32, 48, 64, 128})
            QTest::addRow("%d", size) << size;
    }

    // Its corners are clear, its middle is not.
    void isDrawnForTheFrameOfEachSize()
    {
        QFETCH(const int, size);
        const QImage picture = windowIcon().pixmap(QSize(size, size)).toImage();
        QCOMPARE(picture.size(), QSize(size, size));
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(picture.pixelColor(size / 2, size / 2).alpha(), 255);
    }
};

ORVT_TEST(WindowIconTest)
#include "WindowIconTest.moc"
