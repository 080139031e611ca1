// The pages that stand in the place of a project.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "workbench/life/RecentProjects.h"
#include "workbench/life/StartPage.h"

#include <QtCore/QSignalBlocker>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class WindowPagesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QGuiApplication::setApplicationDisplayName(u"Workbench"_s); }

    void aProjectThatIsHiddenIsNotNamed()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\n");
        QCOMPARE(workbench.window.windowTitle(), u"one[*]"_s);
        workbench.window.showFirstSteps();
        QCOMPARE(workbench.window.windowTitle(), u"Workbench[*]"_s);
        workbench.window.openForUser(workbench.folder.filePath(u"none.json"_s));
        QCOMPARE(workbench.window.windowTitle(), u"Workbench[*]"_s);
        workbench.window.openForUser(workbench.folder.filePath(u"one.json"_s));
        QCOMPARE(workbench.window.windowTitle(), u"one[*]"_s);
    }

    // Somebody is asked for it when the window closes.
    void whatIsNotSavedIsNamedThere()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\n");
        workbench.type(u"x"_s);
        QTRY_VERIFY(workbench.window.isWindowModified());
        workbench.window.showFirstSteps();
        QCOMPARE(workbench.window.windowTitle(), u"one[*]"_s);
    }

    void thePageKeepsItsFocusAndWhatIsChosen()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\n");
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
            workbench.window.recentProjects().add(workbench.writeProject(name, "x"));
        workbench.choose(u"Close Project"_s);
        auto *page = workbench.window.findChild<StartPage *>();
        auto *files = page->findChild<QListWidget *>();
        QVERIFY(page->isAncestorOf(workbench.window.focusWidget()));
        files->setFocus();
        files->setCurrentRow(1);
        workbench.window.hide();
        workbench.window.show();
        QCOMPARE(workbench.window.focusWidget(), files);
        QCOMPARE(files->currentRow(), 1);
    }

    void theReturnKeyIsTheFocusedButtons()
    {
        WorkbenchWindow workbench("Fan1 = Temp1\n");
        workbench.choose(u"Close Project"_s);
        auto *page = workbench.window.findChild<StartPage *>();
        const auto buttons = page->findChildren<QPushButton *>();
        QCOMPARE(buttons.size(), 2);
        for (QPushButton *button : buttons) {
            QSignalSpy clicks(button, &QPushButton::clicked);
            const QSignalBlocker quiet(page); // the dialogs are others' subject
            button->setFocus();
            QTest::keyClick(button, Qt::Key_Return);
            QTest::keyClick(button, Qt::Key_Enter, Qt::KeypadModifier);
            QCOMPARE(clicks.count(), 2);
        }
    }
};

ORVT_TEST(WindowPagesTest)
#include "WindowPagesTest.moc"
