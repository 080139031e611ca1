#include "AccessibleWalk.h"
#include "WorkbenchTest.h"

#include "project/PointUses.h"
#include "project/Project.h"
#include "project/RecoveryFile.h"
#include "support/TestProgram.h"
#include "workbench/help/FirstSteps.h"
#include "workbench/help/KeyList.h"
#include "workbench/importing/ImportDialog.h"
#include "workbench/life/NewProjectDialog.h"
#include "workbench/life/StartPage.h"
#include "workbench/reading/ReadingDialog.h"
#include "workbench/renaming/NewPointDialog.h"
#include "workbench/renaming/RenameDialog.h"
#include "workbench/saving/RecoveryDialog.h"
#include "workbench/settings/SettingsDialog.h"
#include "workbench/trend/TrendDock.h"
#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QSet>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

// What a screen reader finds has a role and a name, in every window and dialog.
class AccessibilityTest : public WidgetTest
{
    Q_OBJECT

private:
    static void walk(QWidget &window)
    {
        const QString faults = AccessibleWalk::faults(window).join(u'\n');
        QVERIFY2(faults.isEmpty(), qPrintable(faults));
    }

    static void walkShown(QWidget &window)
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        walk(window);
    }

    // The next dialog of the kind that a command opens.
    template <typename Dialog>
    static void walkCommand(WorkbenchWindow &workbench, const QString &caption)
    {
        QString faults;
        NextDialog<Dialog> dialog([&](Dialog &shown) {
            faults = AccessibleWalk::faults(shown).join(u'\n');
            shown.reject();
        });
        workbench.choose(caption);
        QVERIFY(dialog.wasThere());
        QVERIFY2(faults.isEmpty(), qPrintable(faults));
    }

    static void walkTopLevels(const QWidget &besides)
    {
        int walked = 0;
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window == &besides || !window->isVisible())
                continue;
            ++walked;
            walk(*window);
        }
        QCOMPARE(walked, 1);
    }

private Q_SLOTS:
    void theWalkFindsWhatHasNoName()
    {
        QWidget window;
        auto *button = new QToolButton(&window);
        button->setIcon(button->style()->standardIcon(QStyle::SP_DialogOkButton));
        window.setWindowTitle(u"Window"_s);
        window.show();
        QCOMPARE(AccessibleWalk::faults(window).size(), 1);
        button->setAccessibleName(u"Button"_s);
        QVERIFY(AccessibleWalk::faults(window).isEmpty());
        window.hide();
        QCOMPARE(AccessibleWalk::faults(window), QStringList(u"nothing is seen"_s));
    }

    void theWindow_data()
    {
        QTest::addColumn<QLocale>("language");
        for (const QLocale &language : Languages::available())
            QTest::addRow("%s", qPrintable(language.name())) << language;
    }

    void theWindow()
    {
        QFETCH(QLocale, language);
        WorkbenchWindow workbench("Fan1 = Temp1\nnobody = 1");
        walk(workbench.window);
        workbench.choose(u"Analyse"_s);
        workbench.speak(language);
        workbench.views().enterType(dsInput);
        workbench.views().enterType(dsOutput);
        QCoreApplication::processEvents();
        walk(workbench.window);
        workbench.views().workplace().splitCurrent(Qt::Horizontal);
        QCoreApplication::processEvents();
        walk(workbench.window);
        for (const QMenu *menu : workbench.menus()) {
            for (const QAction *action : menu->actions())
                QVERIFY(action->isSeparator() || !action->text().isEmpty());
        }
    }

    void aViewInAWindowOfItsOwn()
    {
        WorkbenchWindow workbench;
        workbench.views().enterType(dsInput);
        workbench.choose(u"Own Window"_s);
        QCoreApplication::processEvents();
        ViewDock *dock = workbench.views().workplace().current();
        QVERIFY(dock->isFloating());
        walk(*dock);
    }

    void results()
    {
        WorkbenchWindow workbench("Fan1 = Temp1");
        workbench.choose(u"Compile"_s);
        walk(workbench.window);
        workbench.choose(u"All Uses"_s);
        walk(workbench.window);
    }

    void finding()
    {
        WorkbenchWindow workbench("Fan1 = Temp1");
        workbench.code().codeView()->showFindBar();
        walk(workbench.window);
        workbench.code().codeView()->showGoToLine();
        walk(workbench.window);
        workbench.choose(u"Replace…"_s);
        QCoreApplication::processEvents();
        walkTopLevels(workbench.window);
    }

    void aProjectThatCannotBeOpened()
    {
        WorkbenchWindow workbench;
        workbench.window.openForUser(workbench.folder.filePath(u"none.json"_s));
        walk(workbench.window);
    }

    void pagesWithoutAProject()
    {
        WorkbenchWindow workbench;
        workbench.window.openForUser(workbench.folder.filePath(u"one.json"_s)); // a recent one
        workbench.choose(u"First Steps"_s);
        QVERIFY(workbench.window.findChild<FirstSteps *>()->isVisible());
        walk(workbench.window);
        workbench.window.closeProject();
        const auto *start = workbench.window.findChild<StartPage *>();
        QVERIFY(start->isVisible());
        QVERIFY(start->findChild<QListWidget *>()->isVisible());
        walk(workbench.window);
    }

    void theTrend()
    {
        WorkbenchWindow workbench;
        workbench.window.showType(dsInput);
        workbench.shown().setSelectedItem(workbench.shown().ListItems()->Item(1));
        workbench.choose(u"Add To Trend"_s);
        const auto *trend = workbench.window.findChild<TrendDock *>();
        QVERIFY(trend->isVisible());
        QCOMPARE(trend->findChild<QTreeWidget *>()->topLevelItemCount(), 1);
        walk(workbench.window);
    }

    void dialogsOfCommands()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        walkCommand<SettingsDialog>(workbench, u"Settings…"_s);
        walkCommand<KeyList>(workbench, u"Keys"_s);
        walkCommand<QMessageBox>(workbench, u"About"_s);
        walkCommand<NewProjectDialog>(workbench, u"New Project…"_s);
        walkCommand<ReadingDialog>(workbench, u"Reading…"_s);
        workbench.views().enterType(dsInput);
        walkCommand<NewPointDialog>(workbench, u"Add Point…"_s);
    }

    void dialogsThatAsk()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        PointUse use;
        use.line = 1;
        use.text = u"Fan1 = ON"_s;
        RenameDialog renaming({u"Fan1"_s, u"Fan2"_s, {use}, {}}, nullptr);
        walkShown(renaming);
        const Project project(workbench.folder.filePath(u"one.json"_s));
        RecoveryDialog recovering(
            project, {project.fileName(), QDateTime::currentDateTime(), "{}", {u"x"_s}},
            QLocale(QLocale::English), nullptr);
        walkShown(recovering);
        ImportDialog importing(project, dsInput, "Name,Value\nTemp1,3\nRoom,4", u"x.csv"_s,
                               nullptr);
        walkShown(importing);
    }

    // A dialog that is added comes into the walk.
    void everyDialogIsWalked()
    {
        const QSet<QString> walked{u"ImportDialog"_s,   u"KeyList"_s,       u"NewProjectDialog"_s,
                                   u"NewPointDialog"_s, u"ReadingDialog"_s, u"RecoveryDialog"_s,
                                   u"RenameDialog"_s,   u"SettingsDialog"_s};
        QSet<QString> dialogs;
        static const QRegularExpression dialog(
            u"class (\\w+) (?:final )?: public (?:QDialog|ReasonDialog)"_s);
        QDirIterator headers(u"" ORVT_SOURCE_DIR "/apps/workbench"_s, {u"*.h"_s}, QDir::Files,
                             QDirIterator::Subdirectories);
        while (headers.hasNext()) {
            const auto match =
                dialog.match(QString::fromUtf8(ORVTListview::readFile(headers.next())));
            if (match.hasMatch())
                dialogs.insert(match.captured(1));
        }
        dialogs.remove(u"ReasonDialog"_s); // what two of them have alike
        QCOMPARE(dialogs, walked);
    }
};

ORVT_TEST(AccessibilityTest)
#include "AccessibilityTest.moc"
