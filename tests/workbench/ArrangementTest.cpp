#include "TwoPrograms.h"

#include "support/TestProgram.h"
#include "workbench/renaming/RenameDialog.h"
#include "workbench/settings/KeptWindow.h"
#include "workbench/views/TableViews.h"
#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QSettings>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QTabBar>

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Views : WorkbenchWindow
{
    Views()
        : WorkbenchWindow("Fan1 = Temp1\nnobody = 1")
    {
    }

    Workplace &place() { return views().workplace(); }
    ViewDock &dock(LwType type)
    {
        return type == dsCode ? *window.findChild<ViewDock *>(u"ProgramDock"_s)
                              : views().tables().dock(type);
    }
    ORVTreeview &tree() { return views().tree(); }
    QTreeView &nodes() { return *tree().findChild<QTreeView *>(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QCoreApplication::processEvents();
    }
    QString firstInput() { return dock(dsInput).view().ListItems()->Item(1)->SubItem(1); }
    bool hasFocus(const QWidget &pane)
    {
        const QWidget *focus = QApplication::focusWidget();
        return focus && (focus == &pane || pane.isAncestorOf(focus));
    }
};

} // namespace

class ArrangementTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void tabsThatHaveNoRoomAreScrolledNotCut()
    {
        Views views;
        for (const LwType type : {dsInput, dsOutput, dsVariable, dsConst, dsController})
            views.views().enterType(type);
        views.window.resize(700, 500);
        views.choose(u"Show Beside"_s);
        views.views().enterType(dsVariable);
        QCoreApplication::processEvents();
        const auto bars = views.place().findChildren<QTabBar *>();
        const auto shown = std::ranges::find_if(bars, &QTabBar::isVisible);
        QVERIFY(shown != bars.cend());
        const QTabBar &tabs = **shown;
        QCOMPARE(tabs.count(), 5);
        for (int tab = 0; tab < tabs.count(); ++tab) {
            const int room = tabs.fontMetrics().horizontalAdvance(tabs.tabText(tab));
            QVERIFY2(tabs.tabRect(tab).width() > room, qPrintable(tabs.tabText(tab)));
            QCOMPARE(tabs.tabToolTip(tab), tabs.tabText(tab));
        }
        const QRect current = tabs.tabRect(tabs.currentIndex());
        QVERIFY(current.left() >= 0 && current.right() <= tabs.width());
    }

    void programAndTableStandSideBySide()
    {
        Views views;
        views.window.showType(dsInput);
        QCoreApplication::processEvents();
        QVERIFY(!views.dock(dsCode).isSeen());
        views.choose(u"Show Beside"_s);
        QCoreApplication::processEvents();
        const ViewDock &program = views.dock(dsCode);
        const ViewDock &inputs = views.dock(dsInput);
        QVERIFY(program.isSeen());
        QVERIFY(inputs.isSeen());
        QVERIFY(inputs.x() >= program.geometry().right());
        QTRY_VERIFY(inputs.titleBarWidget()->height() > views.window.fontMetrics().height());
        QTRY_VERIFY(program.titleBarWidget()->height() > views.window.fontMetrics().height());
        QVERIFY(std::abs(inputs.width() - program.width()) < views.place().width() / 4);
        views.choose(u"Show Below"_s);
        QCoreApplication::processEvents();
        QVERIFY(inputs.y() >= program.geometry().bottom());
        views.choose(u"All In Tabs"_s);
        QCoreApplication::processEvents();
        QVERIFY(inputs.isSeen());
        QVERIFY(!program.isSeen());
        QTRY_COMPARE(inputs.titleBarWidget()->height(), 0); // a tab has it
        QCOMPARE(views.place().tabifiedDockWidgets(&views.dock(dsInput)).size(), 1);
    }

    void aTableThatWasOnlyLookedAtMakesWay()
    {
        Views views;
        views.nodes().setFocus();
        QTest::keyClick(&views.nodes(), Qt::Key_Home);
        while (views.shown().CurrentType() != dsOutput)
            QTest::keyClick(&views.nodes(), Qt::Key_Down);
        QCOMPARE(views.place().shown().size(), 2);
        QVERIFY(views.hasFocus(views.tree()));
        views.press(Qt::Key_Return); // goes in, so it stays
        QVERIFY(views.hasFocus(views.dock(dsOutput)));
        views.nodes().setFocus();
        QTest::keyClick(&views.nodes(), Qt::Key_Down);
        QTest::keyClick(&views.nodes(), Qt::Key_Down);
        QCOMPARE(views.place().shown().size(), 3);
        QVERIFY(!views.dock(dsOutput).isHidden());
    }

    void theTreeFollowsTheFocus()
    {
        Views views;
        views.window.showType(dsInput);
        views.choose(u"Show Beside"_s);
        QCOMPARE(views.tree().SelectedItem()->Key(), u"Inputs"_s);
        views.box().setFocus();
        QCOMPARE(views.shown().CurrentType(), dsCode);
        QCOMPARE(views.tree().SelectedItem()->Key(), u"Code"_s);
        QVERIFY(views.command(u"Select All"_s)->isEnabled());
        views.dock(dsInput).view().setFocus();
        QCOMPARE(views.tree().SelectedItem()->Key(), u"Inputs"_s);
        QVERIFY(!views.command(u"Select All"_s)->isEnabled());
    }

    void aClosedTableGivesTheFocusBack()
    {
        Views views;
        views.views().enterType(dsInput);
        views.views().enterType(dsOutput);
        QVERIFY(views.command(u"Close Table"_s)->isEnabled());
        views.press(Qt::Key_F4, Qt::ControlModifier);
        QVERIFY(views.dock(dsOutput).isHidden());
        QCOMPARE(views.shown().CurrentType(), dsInput);
        QVERIFY(views.hasFocus(views.dock(dsInput)));
        views.press(Qt::Key_F4, Qt::ControlModifier);
        QVERIFY(views.box().hasFocus());
        QVERIFY(!views.command(u"Close Table"_s)->isEnabled()); // the program stays
        views.choose(u"Close Table"_s);
        QVERIFY(!views.dock(dsCode).isHidden());
    }

    void keysWalkThroughThePanes()
    {
        Views views;
        views.views().enterType(dsInput);
        views.choose(u"Show Beside"_s);
        views.choose(u"Analyse"_s);
        QCoreApplication::processEvents();
        views.box().setFocus();
        views.press(Qt::Key_F7);
        QVERIFY(views.hasFocus(views.dock(dsInput)));
        views.press(Qt::Key_F7);
        QVERIFY(views.results().hasFocus());
        views.press(Qt::Key_F7);
        QVERIFY(views.hasFocus(*views.window.findChild<ORVDataCombo *>()));
        views.press(Qt::Key_F7);
        QVERIFY(views.hasFocus(views.tree()));
        views.press(Qt::Key_F7);
        QVERIFY(views.box().hasFocus());
        views.press(Qt::Key_F7, Qt::ShiftModifier);
        QVERIFY(views.hasFocus(views.tree()));
    }

    void eachPaneHasAKey()
    {
        Views views;
        views.press(Qt::Key_1, Qt::ControlModifier);
        QVERIFY(views.hasFocus(views.tree()));
        views.press(Qt::Key_3, Qt::ControlModifier); // none is open yet
        QVERIFY(views.hasFocus(views.dock(dsInput)));
        views.press(Qt::Key_2, Qt::ControlModifier);
        QVERIFY(views.box().hasFocus());
        views.press(Qt::Key_4, Qt::ControlModifier);
        QVERIFY(views.results().hasFocus());
        views.press(Qt::Key_5, Qt::ControlModifier);
        auto &combo = *views.window.findChild<ORVDataCombo *>();
        QVERIFY(views.hasFocus(combo));
        QCOMPARE(combo.ListCount(), qint16(1)); // Temp1
        views.press(Qt::Key_2, Qt::AltModifier);
        QVERIFY(views.hasFocus(combo));
        views.press(Qt::Key_Down);
        QCOMPARE(combo.Text(), u"Fan1"_s);
    }

    void tabsAreChosenByKeys()
    {
        Views views;
        views.views().enterType(dsInput);
        views.views().enterType(dsOutput);
        QCoreApplication::processEvents();
        QStringList way;
        for (int i = 0; i < 3; ++i) {
            views.press(Qt::Key_PageDown, Qt::ControlModifier);
            way.append(views.shown().objectName());
        }
        QCOMPARE(way, QStringList({u"Program"_s, u"Inputs"_s, u"Outputs"_s}));
        views.press(Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(views.shown().objectName(), u"Inputs"_s);
        QVERIFY(views.hasFocus(views.dock(dsInput)));
    }

    void theWheelOverTabsChoosesTheView()
    {
        Views views;
        views.views().enterType(dsInput);
        QCoreApplication::processEvents();
        auto *tabs = views.place().findChild<QTabBar *>();
        const QPoint place = tabs->rect().center();
        QWheelEvent notch(place, tabs->mapToGlobal(place), {}, {0, 120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(tabs, &notch);
        QCoreApplication::processEvents();
        QVERIFY(views.dock(dsCode).isSeen());
        QCOMPARE(views.place().current(), &views.dock(dsCode));
        QVERIFY(views.hasFocus(views.dock(dsCode)));
        views.tree().setFocus();
        QWheelEvent back(place, tabs->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(tabs, &back);
        QCoreApplication::processEvents();
        QCOMPARE(views.place().current(), &views.dock(dsInput));
        QVERIFY(views.hasFocus(views.tree()));
        QTest::keyClick(tabs, Qt::Key_Left); // as one without the focus may get it, too
        QCoreApplication::processEvents();
        QCOMPARE(views.place().current(), &views.dock(dsCode));
        QVERIFY(views.hasFocus(views.tree()));
    }

    void onlyTablesHaveAButtonThatCloses()
    {
        Views views;
        views.views().enterType(dsInput);
        QCoreApplication::processEvents();
        auto *tabs = views.place().findChild<QTabBar *>();
        QVERIFY(tabs);
        QTRY_COMPARE(tabs->findChildren<QAbstractButton *>(u""_s).size() > 0, true);
        QTRY_VERIFY(!qobject_cast<QAbstractButton *>(tabs->tabButton(0, QTabBar::RightSide)) &&
                    !tabs->tabButton(0, QTabBar::LeftSide));
        QCOMPARE(tabs->tabRect(0).height(), tabs->tabRect(1).height());
        auto *close = qobject_cast<QAbstractButton *>(tabs->tabButton(1, QTabBar::RightSide));
        QVERIFY(close);
        QCOMPARE(close->accessibleName(), u"Close Inputs"_s);
        close->click();
        QVERIFY(views.dock(dsInput).isHidden());
        QVERIFY(!views.dock(dsCode).isHidden());
    }

    // Behind a tab or closed as well, once they are seen.
    void noTableShowsAFormerName()
    {
        Views views;
        views.views().enterType(dsInput);
        views.views().enterType(dsOutput);
        QCoreApplication::processEvents();
        NextDialog<RenameDialog> places([](RenameDialog &dialog) { dialog.accept(); });
        Q_EMIT views.views().tables().renameWanted(dsInput, 0, u"Room"_s);
        QVERIFY(places.wasThere());
        views.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&views.window));
        views.views().enterType(dsInput);
        QCoreApplication::processEvents();
        QCOMPARE(views.firstInput(), u"Room"_s);
        QVERIFY(views.code().CodeText().contains(u"Fan1 = Room"_s));
        views.choose(u"Close Table"_s);
        views.box().setFocus();
        views.choose(u"Undo"_s);
        views.views().enterType(dsInput);
        QCoreApplication::processEvents();
        QCOMPARE(views.firstInput(), u"Temp1"_s);
        views.views().enterType(dsOutput);
        views.window.openProject(views.writeProject(u"two"_s, "Fan1 = 1"));
        QVERIFY(views.box().hasFocus());
        QCOMPARE(views.firstInput(), u"Temp1"_s);
    }

    void aProblemBringsTheProgramToTheFront()
    {
        Views views;
        QTRY_VERIFY(!views.code().codeView()->problems().isEmpty());
        views.views().enterType(dsInput);
        views.press(Qt::Key_F8);
        QVERIFY(views.dock(dsCode).isSeen());
        QVERIFY(views.box().hasFocus());
    }

    void theArrangementIsKept()
    {
        QTemporaryDir folder;
        QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
        {
            Views views;
            views.views().enterType(dsInput);
            views.choose(u"Show Beside"_s);
            views.views().enterType(dsOutput);
            QCoreApplication::processEvents();
            writeWindow(store, views.window, *views.code().codeView());
        }
        Views views;
        QCOMPARE(views.place().shown().size(), 1);
        readWindow(store, views.window, *views.code().codeView());
        QCoreApplication::processEvents();
        QCOMPARE(views.views().tables().opened(), QStringList({u"Inputs"_s, u"Outputs"_s}));
        QVERIFY(views.dock(dsOutput).x() >= views.dock(dsCode).geometry().right());
        QCOMPARE(views.place().tabifiedDockWidgets(&views.dock(dsInput)),
                 QList<QDockWidget *>{&views.dock(dsOutput)});
        QCOMPARE(views.firstInput(), u"Temp1"_s);
    }

    // Programs of a project that comes behind the window's own settings.
    void programsComeBackWhereTheyWere()
    {
        QTemporaryDir folder;
        QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
        {
            TwoPrograms two;
            two.views().enterProgram(2);
            two.choose(u"Show Below"_s);
            QCoreApplication::processEvents();
            QVERIFY(two.programs().dock(2).y() >= two.programs().dock(1).geometry().bottom());
            writeWindow(store, two.window, *two.code().codeView());
        }
        TwoPrograms two;
        MainWindow window(two.languages);
        const auto &programs = window.findChild<ProjectView *>()->programs();
        readWindow(store, window, *programs.view(1).codeView());
        window.show();
        window.openProject(two.project());
        QCoreApplication::processEvents();
        QVERIFY(programs.dock(2).isSeen());
        QVERIFY(programs.dock(2).y() >= programs.dock(1).geometry().bottom());
    }

    void viewsAreAsWideTheNextTime()
    {
        QTemporaryDir folder;
        QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
        Views former;
        former.views().enterType(dsVariable);
        former.views().enterType(dsInput);
        former.choose(u"Show Beside"_s);
        QCoreApplication::processEvents();
        const int width = former.dock(dsVariable).width();
        QVERIFY(std::abs(width - former.dock(dsInput).width()) < 20);
        writeWindow(store, former.window, *former.code().codeView());
        MainWindow window(former.languages);
        ProjectView &views = *window.findChild<ProjectView *>();
        readWindow(store, window, *views.program().codeView());
        window.show();
        window.openProject(former.folder.filePath(u"one.json"_s));
        QTest::qWait(50);
        QVERIFY(std::abs(views.tables().dock(dsInput).width() - width) < 20);
        QVERIFY(std::abs(views.program().width() - width) < 20);
    }

    void aViewThatComesBackHasItsRoomAgain()
    {
        Views views;
        views.views().enterType(dsInput);
        views.choose(u"Show Beside"_s);
        QCoreApplication::processEvents();
        views.place().resizeDocks({&views.dock(dsCode), &views.dock(dsInput)}, {520, 240},
                                  Qt::Horizontal);
        QCoreApplication::processEvents();
        const int room = views.dock(dsInput).width();
        QVERIFY(views.dock(dsCode).width() > room + 100);
        views.choose(u"Own Window"_s);
        QTest::qWait(50);
        QVERIFY(views.dock(dsInput).isFloating());
        views.choose(u"Own Window"_s);
        QTest::qWait(50);
        QVERIFY(!views.dock(dsInput).isFloating());
        QVERIFY2(std::abs(views.dock(dsInput).width() - room) < 20,
                 qPrintable(QString::number(views.dock(dsInput).width())));
    }

    void theProgramsWindowGoesBackBesideWhatStandsInTheMainOne()
    {
        Views views;
        views.views().enterType(dsInput);
        for (const LwType type : {dsOutput, dsCode}) {
            views.views().enterType(type);
            views.choose(u"Own Window"_s);
            QTRY_VERIFY(views.dock(type).isFloating());
        }
        views.dock(dsCode).close();
        QTRY_VERIFY(!views.dock(dsCode).isFloating());
        QVERIFY(views.dock(dsOutput).isFloating());
        QVERIFY(
            views.place().tabifiedDockWidgets(&views.dock(dsCode)).contains(&views.dock(dsInput)));
    }

    void ofSeveralInTheMainWindowItGoesToTheOneThatWasUsedLast()
    {
        Views views;
        views.views().enterType(dsInput);
        views.views().enterType(dsVariable);
        views.choose(u"Show Beside"_s);
        views.views().enterType(dsOutput);
        views.choose(u"Own Window"_s);
        QTRY_VERIFY(views.dock(dsOutput).isFloating());
        for (const LwType last : {dsInput, dsVariable, dsInput}) {
            views.views().enterType(dsCode);
            views.choose(u"Own Window"_s);
            QTRY_VERIFY(views.dock(dsCode).isFloating());
            views.views().enterType(last);
            views.views().enterType(dsOutput);
            views.dock(dsCode).close();
            QTRY_VERIFY(!views.dock(dsCode).isFloating());
            const auto beside = views.place().tabifiedDockWidgets(&views.dock(dsCode));
            QVERIFY(beside.contains(&views.dock(last)));
            QVERIFY(!beside.contains(&views.dock(last == dsInput ? dsVariable : dsInput)));
        }
    }

    void theOneThatWasUsedBeforeIsSeenWhenOneCloses_data()
    {
        QTest::addColumn<bool>("isInTree");
        QTest::newRow("with the focus") << false;
        QTest::newRow("without it") << true;
    }
    void theOneThatWasUsedBeforeIsSeenWhenOneCloses()
    {
        QFETCH(const bool, isInTree);
        Views views;
        const QList<LwType> types{dsInput, dsOutput, dsVariable, dsConst, dsController};
        for (const LwType type : types)
            views.views().enterType(type);
        for (const LwType type : {dsVariable, dsInput, dsController, dsConst, dsOutput})
            views.views().enterType(type);
        for (const LwType next : {dsConst, dsController, dsInput, dsVariable, dsCode}) {
            if (isInTree)
                views.nodes().setFocus();
            views.choose(u"Close Table"_s);
            QCoreApplication::processEvents();
            QCOMPARE(views.shown().ListviewType(), next);
            QTRY_VERIFY(views.dock(next).isSeen());
            QCOMPARE(views.hasFocus(views.nodes()), isInTree);
            QCOMPARE(views.hasFocus(views.shown()), !isInTree);
        }
    }

    void theTabKeyGoesToWhatIsSeen()
    {
        Views views;
        const QString program = views.code().CodeText();
        for (const LwType type : {dsInput, dsOutput, dsVariable})
            views.views().enterType(type);
        views.nodes().setFocus();
        const auto walk = [&views](Qt::Key key, const QWidget &end) {
            for (int i = 0; i < 20 && !views.hasFocus(end); ++i) {
                views.press(key);
                for (const LwType behind : {dsCode, dsInput, dsOutput})
                    QVERIFY(!views.hasFocus(views.dock(behind)));
            }
            QVERIFY(views.hasFocus(end));
        };
        walk(Qt::Key_Tab, views.dock(dsVariable));
        walk(Qt::Key_Backtab, views.nodes());
        walk(Qt::Key_Backtab, views.dock(dsVariable));
        QVERIFY(views.dock(dsVariable).isSeen());
        QCOMPARE(views.code().CodeText(), program);
    }

    void aViewThatGetsTheFocusComesToTheFront()
    {
        Views views;
        views.views().enterType(dsInput);
        QTRY_VERIFY(!views.dock(dsCode).isSeen());
        views.box().setFocus();
        QTRY_VERIFY(views.dock(dsCode).isSeen());
        QCOMPARE(views.shown().ListviewType(), dsCode);
    }

    void aDamagedArrangementIsLeftOut()
    {
        QTemporaryDir folder;
        QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
        store.setValue(u"window/tables"_s, QStringList{u"None such"_s, u"Logs"_s, u"Code"_s});
        store.setValue(u"window/views"_s, QByteArray("nothing"));
        Views views;
        readWindow(store, views.window, *views.code().codeView());
        QCOMPARE(views.views().tables().opened(), QStringList(u"Logs"_s));
        QVERIFY(!views.dock(dsCode).isHidden());
    }

    void theCategoriesAreWhollySeen()
    {
        for (const QLocale &language : Languages::available()) {
            Languages languages(language);
            MainWindow window(languages);
            window.show();
            QCoreApplication::processEvents();
            const auto *tree = window.findChild<ORVTreeview *>();
            const auto *nodes = tree->findChild<QTreeView *>();
            const QAbstractItemView *view = nodes;
            QVERIFY2(nodes->viewport()->width() >= view->sizeHintForColumn(0),
                     qPrintable(language.name()));
        }
    }

    void aLanguageIsSpokenByTabsAndTitles()
    {
        Views views;
        views.views().enterType(dsInput);
        views.speak(QLocale(QLocale::German));
        QCOMPARE(views.dock(dsInput).windowTitle(), u"Eingänge"_s);
        QCOMPARE(views.dock(dsCode).windowTitle(), u"one.prog"_s);
        views.speak(QLocale(QLocale::English));
        QCOMPARE(views.dock(dsInput).windowTitle(), u"Inputs"_s);
    }
};

ORVT_TEST(ArrangementTest)
#include "ArrangementTest.moc"
