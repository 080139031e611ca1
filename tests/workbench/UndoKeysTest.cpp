// The keys of Undo and Redo wherever the focus is.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/renaming/RenameDialog.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/ReportList.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Typed : WorkbenchWindow
{
    Typed()
        : WorkbenchWindow("Fan1 = Temp1")
    {
        type(u"x "_s);
    }

    static void press(Qt::Key key)
    {
        QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
        QCoreApplication::processEvents();
    }
    bool hasTyped() { return box().Text().startsWith(u"x "_s); }
    QString told() { return window.statusBar()->currentMessage(); }
};

} // namespace

class UndoKeysTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theyActInTreeResultsAndPoints()
    {
        Typed work;
        work.choose(u"Analyse"_s);
        auto &points = *work.window.findChild<ORVDataCombo *>();
        for (QWidget *part : QList<QWidget *>{&work.views().tree(), &work.results(), &points}) {
            part->setFocus();
            QVERIFY(!work.box().hasFocus());
            const QString before = work.code().CodeText();
            work.press(Qt::Key_Z);
            const QString undone = work.code().CodeText();
            QVERIFY2(undone != before, part->metaObject()->className());
            work.press(Qt::Key_Y);
            QVERIFY2(work.code().CodeText() != undone, part->metaObject()->className());
        }
    }

    void aStepIsTakenBackFromTheTree()
    {
        Typed work;
        work.window.showType(dsInput);
        work.window.findChild<PointRenaming *>()->append(dsInput, u"Room"_s);
        work.views().tree().setFocus();
        work.press(Qt::Key_Z);
        QVERIFY(work.told().startsWith(u"Undone"_s));
        work.press(Qt::Key_Y);
        QVERIFY(work.told().startsWith(u"Redone"_s));
        QVERIFY(work.hasTyped());
    }

    void fieldsHaveTheirOwn()
    {
        Typed work;
        work.code().codeView()->showFindBar();
        QTest::keyClicks(QApplication::focusWidget(), u"Te"_s);
        work.press(Qt::Key_Z);
        work.press(Qt::Key_Z); // with nothing more to take back
        QVERIFY(work.hasTyped());
        work.box().setFocus();
        work.press(Qt::Key_Z);
        QVERIFY(!work.hasTyped());
        work.code().codeView()->showFindBar();
        work.press(Qt::Key_Y);
        QVERIFY(!work.hasTyped());
    }

    void aNameBeingEditedHasItsOwn()
    {
        Typed work;
        work.views().enterType(dsInput);
        work.shown().setSelectedItem(work.shown().ListItems()->Item(1));
        work.shown().StartLabelEdit();
        auto *field = work.shown().listView()->viewport()->findChild<QLineEdit *>();
        QVERIFY(field && field->hasFocus());
        QTest::keyClicks(field, u"Room"_s);
        work.press(Qt::Key_Z);
        QCOMPARE(field->text(), u"Temp1"_s);
        work.press(Qt::Key_Y);
        QVERIFY(field->isVisible());
        QCOMPARE(work.told(), QString());
    }

    // What was told of one step is not left beside another one.
    void whatWasTakenBackIsToldTillTheNextStep()
    {
        Typed work;
        const auto rename = [&] {
            NextDialog<RenameDialog> places([](RenameDialog &dialog) { dialog.accept(); });
            work.window.findChild<PointRenaming *>()->rename(dsInput, 0, u"Room"_s);
        };
        rename();
        work.key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(work.told().startsWith(u"Undone"_s));
        work.key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!work.hasTyped());
        QCOMPARE(work.told(), QString());
        rename();
        work.key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(work.told().startsWith(u"Undone"_s));
        work.type(u"y"_s);
        QCOMPARE(work.told(), QString());
    }
};

ORVT_TEST(UndoKeysTest)
#include "UndoKeysTest.moc"
