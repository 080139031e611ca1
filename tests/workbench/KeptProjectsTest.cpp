// What is kept of a project beside its files: lines of the trend and bookmarks.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "workbench/reading/ControllerPart.h"
#include "workbench/settings/KeptProjects.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

#include <QtCore/QSettings>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QByteArray program = "Fan1 = Temp1\n\nFan1 = 3\n";

struct Kept : WorkbenchWindow
{
    Kept()
        : WorkbenchWindow(program)
    {
        open(u"one"_s);
    }

    void open(const QString &name) { window.openForUser(writeProject(name, program)); }

    // By the keys of the menu.
    void markLine(int line)
    {
        box().setSelStart(box().lineStart(line - 1));
        key(Qt::Key_F2, Qt::ControlModifier);
    }
    void drawTheInput()
    {
        window.showType(dsInput);
        shown().setSelectedItem(shown().ListItems()->Item(1));
        shown().setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_R, Qt::ControlModifier);
    }
    QList<qint32> marks() { return code().codeView()->bookmarks(); }
    QDockWidget &trend() { return *window.findChild<QDockWidget *>(u"Trend"_s); }
    QStringList drawn() const
    {
        QStringList names;
        for (const AskedPoint &point : window.findChild<ControllerPart *>()->trend().points)
            names.append(point.name);
        return names;
    }

    QString file{folder.filePath(u"store.ini"_s)};
    QSettings store{file, QSettings::IniFormat};
    KeptProjects *kept = new KeptProjects(store, window);
};

} // namespace

class KeptProjectsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void bookmarksAndTrendComeWithTheirProject()
    {
        Kept workbench;
        workbench.markLine(3);
        workbench.markLine(1);
        workbench.drawTheInput();
        QVERIFY(workbench.trend().isVisible());
        workbench.open(u"two"_s);
        QCOMPARE(workbench.marks(), QList<qint32>());
        QVERIFY(workbench.drawn().isEmpty());
        QVERIFY(!workbench.trend().isVisible()); // it has nothing, and gives its room back
        workbench.open(u"one"_s);
        QCOMPARE(workbench.marks(), QList<qint32>({1, 3}));
        QCOMPARE(workbench.drawn(), QStringList(u"Temp1"_s));
        QVERIFY(workbench.trend().isVisible());
        workbench.window.closeProject();
        QVERIFY(!workbench.trend().isVisible());
    }

    void anotherWindowHasThemToo()
    {
        Kept workbench;
        workbench.markLine(2);
        workbench.drawTheInput();
        workbench.trend().close();
        workbench.kept->write(); // as at the end
        Kept later;
        {
            QSettings copy(later.file, QSettings::IniFormat);
            for (const QString &each : workbench.store.allKeys())
                copy.setValue(each, workbench.store.value(each));
            copy.setValue(u"projects/kept/1/file"_s, later.folder.filePath(u"one.json"_s));
        }
        later.store.sync();
        Q_EMIT later.window.projectShown();
        QCOMPARE(later.marks(), QList<qint32>({2}));
        QCOMPARE(later.drawn(), QStringList(u"Temp1"_s));
        QVERIFY(!later.trend().isVisible()); // as it was left
    }

    void whatIsDamagedDoesNoHarm()
    {
        Kept workbench;
        workbench.store.setValue(u"projects/kept/size"_s, u"2147483647"_s);
        workbench.store.setValue(u"projects/kept/1/file"_s,
                                 workbench.folder.filePath(u"one.json"_s));
        workbench.store.setValue(u"projects/kept/1/trend"_s,
                                 QStringList{u""_s, u"/"_s, u"Inputs"_s, u"Inputs/"_s,
                                             u"Inputs/#99999999999"_s, u"Inputs/#0"_s,
                                             u"Inputs/#7"_s, u"Nothing/Temp1"_s, u"Code/Temp1"_s});
        workbench.store.setValue(u"projects/kept/1/bookmarks"_s,
                                 QStringList{u"1/99999999999"_s, u"1/2147483647"_s, u"1/-1"_s,
                                             u"1/0"_s, u"1"_s, u"x/1"_s, u"9/1"_s, u"1/2"_s,
                                             u"1/2"_s});
        workbench.store.setValue(u"projects/kept/1/showsTrend"_s, true);
        Q_EMIT workbench.window.projectShown();
        QCOMPARE(workbench.marks(), QList<qint32>({2}));
        QVERIFY(workbench.drawn().isEmpty());
        QVERIFY(!workbench.trend().isVisible());
    }

    void theLastLineTakesTheTrendWithIt()
    {
        Kept workbench;
        workbench.drawTheInput();
        auto *legend = workbench.trend().findChild<QTreeView *>();
        legend->setFocus();
        legend->selectAll();
        QTest::keyClick(legend, Qt::Key_Delete);
        QVERIFY(!workbench.trend().isVisible());
        QVERIFY(workbench.shown().isAncestorOf(QApplication::focusWidget()));
    }

    void onlyTheLatestAreKept()
    {
        Kept workbench;
        for (int i = 0; i < 15; ++i)
            workbench.open(u"p%1"_s.arg(i));
        workbench.window.closeProject();
        QCOMPARE(workbench.store.value(u"projects/kept/size"_s).toInt(), 10);
        QVERIFY(
            workbench.store.value(u"projects/kept/1/file"_s).toString().endsWith(u"p14.json"_s));
    }
};

ORVT_TEST(KeptProjectsTest)
#include "KeptProjectsTest.moc"
