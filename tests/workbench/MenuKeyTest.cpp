// Shift+F10, which opens the menu of what has the focus.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "workbench/MenuKey.h"

#include <ORVTListview/ListItems.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>

#include <QtWidgets/QLineEdit>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QMenu *openMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

void press(QWidget &widget)
{
    QTest::keyClick(&widget, Qt::Key_F10, Qt::ShiftModifier);
    QCoreApplication::processEvents();
}

} // namespace

class MenuKeyTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        while (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
    }

    void nothingOpensWithoutIt()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\n");
        press(workbench.box());
        QVERIFY(!openMenu());
    }

    void theProgramHasItsMenuAtTheCaret()
    {
        const MenuKey key;
        WorkbenchWindow workbench("Fan1 = Temp1\nFan1 = 2\n");
        workbench.key(Qt::Key_Down);
        press(workbench.box());
        QVERIFY(openMenu());
        const QPoint caret =
            workbench.box().viewport()->mapToGlobal(workbench.box().cursorRect().center());
        QVERIFY((openMenu()->pos() - caret).manhattanLength() < 60);
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = Temp1\r\nFan1 = 2\r\n"_s);
    }

    void aTableHasTheMenuOfItsRow()
    {
        const MenuKey key;
        WorkbenchWindow workbench("Fan1 = Temp1\n");
        workbench.views().enterType(dsInput);
        workbench.shown().setSelectedItem(workbench.shown().ListItems()->Item(1));
        press(*workbench.shown().listView());
        QVERIFY(openMenu());
        QVERIFY(openMenu()->actions().size() > 5);
    }

    void theProjectsTreeHasOne()
    {
        const MenuKey key;
        WorkbenchWindow workbench("Fan1 = Temp1\n");
        auto *tree = workbench.window.findChild<QTreeView *>();
        tree->setFocus();
        press(*tree);
        QVERIFY(openMenu());
    }

    void aFieldOfADialogHasOne()
    {
        const MenuKey key;
        QLineEdit field;
        field.show();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        press(field);
        QVERIFY(openMenu());
        press(*openMenu()); // stays
        QVERIFY(openMenu());
    }
};

ORVT_TEST(MenuKeyTest)
#include "MenuKeyTest.moc"
