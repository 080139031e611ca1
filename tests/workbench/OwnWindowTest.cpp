// A view in a window of its own: it goes with its project, comes back the next time, and has
// the keys and the focus that it has in the main window.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/renaming/RenameDialog.h"
#include "workbench/settings/KeptWindow.h"
#include "workbench/views/TableViews.h"
#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtGui/QDropEvent>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// With the inputs in a window of their own, which has the focus.
struct Floating : WorkbenchWindow
{
    Floating()
        : WorkbenchWindow("Fan1 = Temp1")
    {
        views().enterType(dsInput);
        choose(u"Own Window"_s);
        inputs().activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &inputs());
    }

    ViewDock &inputs() { return views().tables().dock(dsInput); }
    ReportList &list() { return *inputs().view().listView(); }
    QString name() { return inputs().view().ListItems()->Item(1)->SubItem(1); }
    bool isOut() { return inputs().isVisible() && inputs().isFloating(); }
};

} // namespace

class OwnWindowTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void itDoesNotCoverThePlaceThatItLeaves()
    {
        WorkbenchWindow work("Fan1 = Temp1");
        work.views().enterType(dsInput);
        const ViewDock &inputs = work.views().tables().dock(dsInput);
        const QPoint place = inputs.mapToGlobal(QPoint());
        work.choose(u"Own Window"_s);
        QVERIFY(inputs.isFloating());
        QVERIFY(inputs.pos().x() > place.x());
        QVERIFY(inputs.pos().y() > place.y());
    }

    void itGoesWithItsProjectAndComesWithTheNext()
    {
        Floating work;
        const QString first = work.folder.filePath(u"one.json"_s);
        const QString second = work.writeProject(u"two"_s, "Fan1 = 2");
        for (const QString &next : {first, second, first}) {
            QVERIFY(work.isOut());
            work.choose(u"Close Project"_s);
            QVERIFY(!work.inputs().isVisible());
            work.window.openForUser(next);
            QVERIFY(work.isOut());
            QCOMPARE(work.name(), u"Temp1"_s);
            QVERIFY(work.views().tables().opened().contains(u"Inputs"_s));
        }
    }

    void oneThatWasClosedDoesNotComeWithAProject()
    {
        Floating work;
        work.inputs().close();
        work.choose(u"Close Project"_s);
        work.window.openForUser(work.folder.filePath(u"one.json"_s));
        QVERIFY(!work.inputs().isVisible());
    }

    void aNameForNoProjectIsLeftOut()
    {
        Floating work;
        work.choose(u"Close Project"_s);
        Q_EMIT work.views().tables().pointWanted(dsInput, u"Ghost"_s, 1);
        QVERIFY(!work.window.isWindowModified());
    }

    void itIsThereTheNextTime()
    {
        QTemporaryDir folder;
        QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
        QRect place;
        {
            Floating work;
            place = QRect(120, 90, 410, 260);
            work.inputs().setGeometry(place);
            connect(&work.window, &MainWindow::leaving, &work.window,
                    [&] { writeWindow(store, work.window, *work.code().codeView()); });
            work.choose(u"Quit"_s);
            QVERIFY(!work.window.isVisible());
        }
        WorkbenchWindow files;
        MainWindow window(files.languages);
        const ProjectView &views = *window.findChild<ProjectView *>();
        readWindow(store, window, *views.program().codeView());
        window.show();
        window.openProject(files.folder.filePath(u"one.json"_s));
        const ViewDock &inputs = views.tables().dock(dsInput);
        QVERIFY(inputs.isFloating());
        QTRY_VERIFY(inputs.isVisible());
        QCOMPARE(inputs.size(), place.size());
    }

    void nothingIsTakenOutOfAPageThatIsNotShown()
    {
        WorkbenchWindow work("Fan1 = Temp1");
        work.choose(u"Close Project"_s);
        work.choose(u"Own Window"_s);
        const auto *program = work.window.findChild<ViewDock *>(u"ProgramDock"_s);
        QVERIFY(!program->isFloating());
        QVERIFY(!program->isVisible());
    }

    // What the toolkit calls them has none.
    void everyAnswerAtQuittingHasAKeyOfItsOwn()
    {
        WorkbenchWindow work("Fan1 = Temp1");
        work.type(u"x "_s);
        QStringList keys;
        NextDialog<QMessageBox> question([&keys](QMessageBox &box) {
            for (const QAbstractButton *button : box.buttons())
                keys.append(button->shortcut().toString());
            box.button(QMessageBox::Cancel)->click();
        });
        work.choose(u"Quit"_s);
        QVERIFY(question.wasThere());
        QCOMPARE(keys.size(), 3);
        QVERIFY(!keys.contains(QString()));
        QCOMPARE(keys.removeDuplicates(), 0);
        QVERIFY(work.window.isVisible()); // cancelled
    }

    void whoDropsANameGoesOnInTheProgram()
    {
        WorkbenchWindow work("Fan1 = ");
        work.views().tree().setFocus();
        QVERIFY(!work.box().hasFocus());
        QMimeData name;
        name.setText(u"Temp1"_s);
        QDragEnterEvent come(QPoint(5, 5), Qt::CopyAction, &name, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(work.box().viewport(), &come);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &name, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(work.box().viewport(), &drop);
        QVERIFY(work.code().CodeText().contains(u"Temp1"_s));
        QTRY_VERIFY(work.box().hasFocus());
        work.views().tree().setFocus();
        work.box().setReadOnly(true);
        QDropEvent refused(QPointF(5, 5), Qt::CopyAction, &name, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(work.box().viewport(), &refused);
        QCoreApplication::processEvents();
        QVERIFY(!work.box().hasFocus());
    }

    void whoStaysHasItStill()
    {
        Floating work;
        work.box().setFocus();
        work.type(u"x"_s);
        int told = 0;
        connect(&work.window, &MainWindow::leaving, &work.window, [&] { ++told; });
        NextMessage question(QMessageBox::Cancel);
        work.choose(u"Quit"_s);
        QVERIFY(question.wasThere());
        QCOMPARE(told, 0);
        QVERIFY(work.isOut());
    }

    void renamingThereGivesTheFocusBack()
    {
        Floating work;
        QWidget *parent = nullptr;
        NextDialog<RenameDialog> places([&](RenameDialog &dialog) {
            parent = dialog.parentWidget();
            dialog.accept();
        });
        work.window.findChild<PointRenaming *>()->rename(dsInput, 0, u"Room"_s);
        QVERIFY(places.wasThere());
        QCOMPARE(parent, &work.inputs());
        work.inputs().activateWindow(); // as desktops do with a dialog's parent
        QTRY_COMPARE(QApplication::activeWindow(), &work.inputs());
        QVERIFY(work.list().hasFocus());
        QCOMPARE(work.name(), u"Room"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(work.name(), u"Temp1"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(work.name(), u"Room"_s);
    }
};

ORVT_TEST(OwnWindowTest)
#include "OwnWindowTest.moc"
