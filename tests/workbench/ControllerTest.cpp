#include "WorkbenchTest.h"

#include "project/Project.h"
#include "support/TestProgram.h"
#include "workbench/help/FirstSteps.h"
#include "workbench/importing/ImportDialog.h"
#include "workbench/importing/PointImporting.h"
#include "workbench/reading/ReadingDialog.h"
#include "workbench/reading/ReadingStatus.h"
#include "workbench/trend/Trend.h"
#include "workbench/trend/TrendDock.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/HoverAnswer.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QSettings>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Controlled : WorkbenchWindow
{
    Controlled()
    {
        writeFile(folder.filePath(u"points.prog"_s), "Temp1 = 1");
        writeFile(folder.filePath(u"points.json"_s),
                  R"({"format": 1, "name": "points", "program": "points.prog",
                      "inputs": [{"name": "Temp1", "value": 20.5, "units": "°C"},
                                 {"name": "Temp2", "value": 3}],
                      "inputParameters": [{"type": "volt"}]})");
        window.openProject(folder.filePath(u"points.json"_s));
        behave({1});
    }

    void behave(const SimulatedBehaviour &behaviour)
    {
        ORVTListview::Settings changed = window.settings();
        changed.reading.simulated = behaviour;
        window.setSettings(changed);
    }
    QWidget &status() { return *window.findChild<ReadingStatus *>(); }
    QString told() { return status().findChild<QLabel *>()->toolTip(); }
    ReportList &list() { return *shown().listView(); }
    QString value(int row)
    {
        const int index = shown().ColumnHerders()->Item(u"Value"_s)->Index() - 1;
        return shown().ListItems()->Item(row)->SubItem(index);
    }
    QTreeWidget &legend() { return *window.findChild<TrendDock *>()->findChild<QTreeWidget *>(); }
};

} // namespace

class ControllerTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFailureIsSeenAndStays()
    {
        Controlled w;
        w.window.showType(dsInput);
        w.behave({1, SimulatedBehaviour::CannotBeReached});
        w.choose(u"Read Values"_s);
        QVERIFY(w.status().isVisible());
        QTRY_COMPARE(w.told(), u"The controller cannot be reached. Values read: 0 of 2."_s);
        QVERIFY(!w.status().findChild<QToolButton *>()->isVisible());
        QCOMPARE(w.list().grid()->cellState(w.shown().ListItems()->Item(1), 3), CellState::Old);
        w.behave({1});
        w.choose(u"Read Values"_s);
        QTRY_VERIFY(!w.status().isVisible());
        QCOMPARE(w.list().grid()->cellState(w.shown().ListItems()->Item(1), 3), CellState::Plain);
    }

    void readingIsStopped()
    {
        Controlled w;
        w.behave({60000});
        w.window.showType(dsInput);
        w.choose(u"Read Values"_s);
        QVERIFY(w.command(u"Stop Reading"_s)->isEnabled());
        auto *stop = w.status().findChild<QToolButton *>();
        QVERIFY(stop->isVisible());
        QTest::mouseClick(stop, Qt::LeftButton);
        QCOMPARE(w.told(), u"Stopped. Values read: 0 of 2."_s);
        QVERIFY(!w.command(u"Stop Reading"_s)->isEnabled());
        QCOMPARE(w.value(1), u"20.5"_s);
    }

    void anotherProjectWhileReadingGetsNothing()
    {
        Controlled w;
        w.window.showType(dsInput);
        w.behave({20});
        w.choose(u"Read Values"_s);
        w.window.openProject(w.folder.filePath(u"points.json"_s));
        w.window.showType(dsInput);
        QVERIFY(!w.status().isVisible());
        QTest::qWait(120);
        QCOMPARE(w.value(1), u"20.5"_s);
    }

    void theWindowMayGoWhileReading()
    {
        Controlled w;
        w.window.showType(dsInput);
        w.behave({60000});
        w.choose(u"Read Values"_s);
        QVERIFY(w.status().isVisible());
    }

    void whereNothingCanBeReadNothingIs()
    {
        Controlled w;
        w.window.showType(dsInputParam);
        Q_EMIT w.menus().at(3)->aboutToShow();
        QVERIFY(!w.command(u"Read Values"_s)->isEnabled());
        w.window.showType(dsInput);
        Q_EMIT w.menus().at(3)->aboutToShow();
        QVERIFY(w.command(u"Read Values"_s)->isEnabled());
    }

    void theCycleDisturbsNobody()
    {
        Controlled w;
        w.window.showType(dsInput);
        w.choose(u"Edit Cells"_s);
        w.list().grid()->setSortKeys({{qint16(1), Qt::DescendingOrder}});
        w.list().setFocus();
        QVERIFY(w.list().grid()->editCell(w.shown().ListItems()->Item(1), 3));
        auto *field = w.list().viewport()->findChild<QLineEdit *>();
        QVERIFY(field);
        QTest::keyClicks(field, u"77"_s);
        const QString typed = field->text();
        const QString other = w.value(2);
        Settings settings = w.window.settings();
        settings.reading = {true, 1, {1}};
        w.window.setSettings(settings);
        QVERIFY(w.command(u"Read Cyclically"_s)->isChecked());
        QTRY_VERIFY(w.value(2) != other);
        QCOMPARE(field->text(), typed);
        QVERIFY(field->isVisible());
        QVERIFY(!w.status().isVisible()); // nobody waits for it
        QCOMPARE(w.list().grid()->sortKeys().constFirst().second, Qt::DescendingOrder);
    }

    void hoverKnowsWhatWasRead()
    {
        Controlled w;
        w.choose(u"Read All"_s);
        QTRY_VERIFY(!w.status().isVisible());
        HoverAnswer told;
        Q_EMIT w.code().codeView()->hoverAsked(u"Temp1"_s, 1, &told);
        w.window.showType(dsInput);
        QCOMPARE(told.value(), w.value(1));
        QVERIFY(!w.window.isWindowModified());
    }

    void theDialogDecides()
    {
        Controlled w;
        NextDialog<ReadingDialog> answer([](ReadingDialog &dialog) {
            dialog.findChildren<QComboBox *>().at(0)->setCurrentIndex(2);
            dialog.accept();
        });
        w.choose(u"Reading…"_s);
        QVERIFY(answer.wasThere());
        QCOMPARE(w.window.settings().reading.simulated.failure, SimulatedBehaviour::Refuses);
    }

    void theSettingsAreKept()
    {
        const QTemporaryDir folder;
        QSettings store(folder.filePath(u"store.ini"_s), QSettings::IniFormat);
        const ReadingSettings kept{
            true, 7, {5, SimulatedBehaviour::Breaks, SimulatedBehaviour::TooFew}};
        kept.write(store);
        ReadingSettings read;
        read.read(store);
        QVERIFY(read == kept);
        store.setValue("reading/seconds", 0); // damaged
        store.setValue("simulation/failure", u"explodes"_s);
        read.read(store);
        QVERIFY(read == kept);
    }

    void selectedRowsAreDrawn()
    {
        Controlled w;
        w.choose(u"Add To Trend"_s); // the program has no rows
        QVERIFY(!w.window.findChild<TrendDock *>()->isVisible());
        w.window.showType(dsInput);
        w.shown().setSelectedItem(w.shown().ListItems()->Item(1));
        w.choose(u"Add To Trend"_s);
        QVERIFY(w.window.findChild<TrendDock *>()->isVisible());
        QCOMPARE(w.legend().topLevelItemCount(), 1);
        w.choose(u"Read Values"_s);
        QTRY_VERIFY(!w.legend().topLevelItem(0)->text(1).isEmpty());
        w.legend().setFocus();
        w.legend().setCurrentItem(w.legend().topLevelItem(0));
        QTest::keyClick(&w.legend(), Qt::Key_Delete);
        QCOMPARE(w.legend().topLevelItemCount(), 0);
    }

    void pointsComeFromAFileAsOneStep()
    {
        Controlled w;
        w.window.showType(dsInput);
        const QString file = w.folder.filePath(u"new.csv"_s);
        writeFile(file, "Label;Value\nTemp1;21,5\nNew;1\nIF;2\n");
        NextDialog<ImportDialog> answer([](ImportDialog &dialog) {
            QCOMPARE(dialog.changes().size(), 2);
            const QModelIndex first = dialog.findChild<QTreeView *>()->model()->index(0, 0);
            QCOMPARE(first.data(), u"2"_s); // the line in the file
            QCOMPARE(first.siblingAtRow(2).data(), u"4"_s);
            dialog.accept();
        });
        w.window.findChild<PointImporting *>()->importFile(dsInput, file);
        QVERIFY(answer.wasThere());
        QCOMPARE(w.value(1), u"21.5"_s);
        QCOMPARE(w.value(3), u"1"_s);
        QVERIFY(w.window.isWindowModified());
        w.choose(u"Undo"_s);
        QCOMPARE(w.value(1), u"20.5"_s);
        QVERIFY(!w.window.isWindowModified());
    }

    void theFirstStepsLeadToTheProject()
    {
        Controlled w;
        w.choose(u"First Steps"_s);
        auto *page = w.window.findChild<FirstSteps *>();
        QTRY_VERIFY(page->isVisible());
        QVERIFY(page->findChildren<QPushButton *>().first()->hasFocus());
        for (const QLabel *label : w.window.statusBar()->findChildren<QLabel *>())
            QVERIFY2(!label->isVisible() || label->text().isEmpty(),
                     qPrintable(label->text())); // nothing of what is hidden
        QTest::keyClick(page, Qt::Key_Escape);
        QVERIFY(!page->isVisible());
        QVERIFY(w.box().hasFocus());
    }
};

ORVT_TEST(ControllerTest)
#include "ControllerTest.moc"
