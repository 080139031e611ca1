#include "WorkbenchTest.h"

#include "project/ProjectDocument.h"
#include "project/controller/PointReading.h"
#include "support/TestProgram.h"
#include "workbench/renaming/RenameDialog.h"
#include <ORVTListview/ReportList.h>

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/HoverAnswer.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVTreeview.h>

#include <QtGui/QWheelEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Two inputs and an output, which the program uses.
struct Points : WorkbenchWindow
{
    Points()
    {
        writeFile(folder.filePath(u"points.prog"_s), "IF Temp1 > 3\nFan1 = ON\nENDIF");
        writeFile(folder.filePath(u"points.json"_s),
                  R"({"format": 1, "name": "points", "program": "points.prog",
                      "controller": {"hoa": true},
                      "inputs": [{"name": "Temp1", "value": 20.5, "units": "°C", "commissioned": true},
                                 {"name": "Temp2", "value": 3}],
                      "outputs": [{"name": "Fan1", "value": "Off", "hwOverrideMode": "Hand"}],
                      "timers": [{"data": "x"}]})");
        window.openProject(folder.filePath(u"points.json"_s));
    }

    Node *node(const QString &key) { return tree().Nodes()->Item(key); }
    ORVTreeview &tree() { return *window.findChild<ORVTreeview *>(); }
    ReportList &list() { return *shown().findChild<ReportList *>(u"ListView1"_s); }

    // With the mouse, as a user does.
    void open(const QString &key)
    {
        auto *view = tree().findChild<QTreeView *>();
        const QModelIndexList found =
            view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, node(key)->Text(), 1,
                                 Qt::MatchExactly | Qt::MatchRecursive);
        QCOMPARE(found.size(), 1);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->visualRect(found.constFirst()).center());
    }

    QString cell(int row, const QString &column)
    {
        const int index = shown().ColumnHerders()->Item(column)->Index() - 1;
        return shown().ListItems()->Item(row)->SubItem(index);
    }
};

} // namespace

class PointTablesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theTreeChoosesWhatIsShown()
    {
        Points points;
        QCOMPARE(points.shown().CurrentType(), dsCode);
        QCOMPARE(points.tree().SelectedItem(), points.node(u"Code"_s));
        points.open(u"Inputs"_s);
        QCOMPARE(points.shown().CurrentType(), dsInput);
        QCOMPARE(points.shown().ListItems()->Count(), 12);
        QCOMPARE(points.cell(1, u"Label"_s), u"Temp1"_s);
        QCOMPARE(points.cell(1, u"Value"_s), u"20.5"_s);
        QCOMPARE(points.cell(1, u"Units"_s), u"°C"_s);
        QCOMPARE(points.cell(1, u"Commissioned"_s), u"Yes"_s);
        QCOMPARE(points.cell(3, u"Label"_s), QString());
        points.open(u"Outputs"_s);
        QCOMPARE(points.cell(1, u"Hw Override Mode"_s), u"Hand"_s);
        points.open(u"Code"_s);
        QCOMPARE(points.code().CodeText(), u"IF Temp1 > 3\r\nFan1 = ON\r\nENDIF"_s);
        QVERIFY(!points.window.isWindowModified());
    }

    void overridesCanBeSwitched()
    {
        Points points;
        points.open(u"Outputs"_s);
        QCOMPARE(points.shown().ColumnHerders()->Count(), 9);
        QMenu *menu = points.menus().at(3);
        Q_EMIT menu->aboutToShow();
        QVERIFY(points.command(u"Hardware Overrides"_s)->isChecked());
        points.choose(u"Hardware Overrides"_s);
        QCOMPARE(points.shown().ColumnHerders()->Count(), 7);
        QCOMPARE(points.cell(1, u"Label"_s), u"Fan1"_s);
        points.choose(u"Hardware Overrides"_s);
        QCOMPARE(points.cell(1, u"Hw Override Mode"_s), u"Hand"_s);
    }

    void theReadButtonReads()
    {
        Points points;
        points.open(u"Inputs"_s);
        auto *read = points.shown().findChild<QWidget *>(u"ImgRead"_s);
        auto *status = points.shown().findChild<QWidget *>(u"ImgWrite"_s);
        QCOMPARE(status->property("PictureKey").toString(), u"BallGreen"_s);
        QTest::mouseClick(read, Qt::LeftButton);
        QCOMPARE(status->property("PictureKey").toString(), u"BallRed"_s);
        points.choose(u"Read Values"_s); // one at a time
        points.open(u"Outputs"_s);
        QCOMPARE(status->property("PictureKey").toString(), u"BallRed"_s);
        points.open(u"Inputs"_s);
        QTRY_COMPARE(status->property("PictureKey").toString(), u"BallGreen"_s);
        QVERIFY(std::abs(points.cell(1, u"Value"_s).toDouble() - 20.5) < 1);
        QStringList values;
        for (int reading = 0; reading < 2; ++reading) {
            points.choose(u"Read Values"_s);
            QTRY_COMPARE(status->property("PictureKey").toString(), u"BallGreen"_s);
            values << points.cell(1, u"Value"_s) + points.cell(2, u"Value"_s);
        }
        QVERIFY(values[0] != values[1]);
    }

    void aNameIsChangedEverywhere()
    {
        Points points;
        points.open(u"Inputs"_s);
        points.shown().setSelectedItem(points.shown().ListItems()->Item(1));
        points.list().setFocus();
        QTest::keyClick(&points.list(), Qt::Key_F2);
        auto *editor = points.list().viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        QCOMPARE(editor->text(), u"Temp1"_s);
        QTest::keyClicks(editor, u"Room"_s);
        NextDialog<RenameDialog> inTheProgram([](RenameDialog &dialog) { dialog.accept(); });
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(inTheProgram.wasThere());
        QTRY_COMPARE(points.cell(1, u"Label"_s), u"Room"_s);
        QCOMPARE(points.code().CodeText(), u"IF Room > 3\r\nFan1 = ON\r\nENDIF"_s);
        QVERIFY(points.window.isWindowModified());
        qint32 start = 4;
        qint32 wordStart = 0;
        qint32 colour = 0;
        points.open(u"Code"_s);
        QCOMPARE(points.code().GetWholeWord(start, wordStart, colour), u"Room"_s);
        QVERIFY(colour != 0); // known as an input
        points.choose(u"Save"_s);
        QVERIFY(!points.window.isWindowModified());
        QVERIFY(readFile(points.folder.filePath(u"points.json"_s))
                    .contains(R"("name": "Room", "value": 20.5)"));
        QCOMPARE(points.saved(u"points"_s), "IF Room > 3\nFan1 = ON\nENDIF");
    }

    void aNameInUseIsRefused()
    {
        Points points;
        points.open(u"Inputs"_s);
        points.shown().setSelectedItem(points.shown().ListItems()->Item(1));
        points.choose(u"Rename"_s);
        auto *editor = points.list().viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        QTest::keyClicks(editor, u"temp2"_s);
        NextMessage refused(QMessageBox::Ok);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(refused.wasThere());
        QVERIFY2(refused.text().contains(u"temp2"_s), qPrintable(refused.text()));
        QCOMPARE(points.cell(1, u"Label"_s), u"Temp1"_s);
        QVERIFY(!points.window.isWindowModified());

        // What was typed can be corrected, as often as it takes.
        QTRY_VERIFY((editor = points.list().viewport()->findChild<QLineEdit *>()));
        QCOMPARE(editor->text(), u"temp2"_s);
        QTest::keyClicks(editor, u"IF"_s); // takes the place of it
        NextMessage again(QMessageBox::Ok);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(again.wasThere());
        QVERIFY2(again.text().contains(u"IF"_s), qPrintable(again.text()));
        QTRY_VERIFY((editor = points.list().viewport()->findChild<QLineEdit *>()));
        QCOMPARE(editor->text(), u"IF"_s);
        QTest::keyClick(editor, Qt::Key_Escape);
        QTRY_VERIFY(!points.list().viewport()->findChild<QLineEdit *>());
        QCOMPARE(points.cell(1, u"Label"_s), u"Temp1"_s);
        QVERIFY(!points.window.isWindowModified());
    }

    void cellsAreEditedOnceThatIsOn()
    {
        Points points;
        points.open(u"Inputs"_s);
        points.list().setFocus();
        const auto enter = [&points](int row, int column, const QString &text) {
            ReportList &list = points.list();
            list.setCurrentIndex(list.model()->index(row - 1, column));
            QTest::keyClicks(&list, text.first(1)); // begins
            if (QWidget *field = list.indexWidget(list.currentIndex())) {
                QTest::keyClicks(field, text.sliced(1));
                QTest::keyClick(field, Qt::Key_Return);
            }
            QCoreApplication::processEvents();
        };
        enter(2, 3, u"7"_s);
        QCOMPARE(points.cell(2, u"Value"_s), u"3"_s);
        points.choose(u"Edit Cells"_s);
        enter(2, 3, u"7"_s);
        enter(2, 6, u"y"_s);
        enter(2, 5, u"Frost"_s);
        points.open(u"Outputs"_s);
        points.open(u"Inputs"_s);
        QCOMPARE(points.cell(2, u"Value"_s), u"7"_s);
        QCOMPARE(points.cell(2, u"Commissioned"_s), u"Yes"_s);
        QCOMPARE(points.cell(2, u"Description"_s), u"Frost"_s);
        enter(5, 3, u"1"_s); // has no point
        QCOMPARE(points.cell(5, u"Value"_s), QString());
    }

    void whatHasNoNameIsNotEdited()
    {
        Points points;
        points.open(u"Timers"_s);
        points.shown().setSelectedItem(points.shown().ListItems()->Item(1));
        points.choose(u"Rename"_s);
        QVERIFY(!points.list().viewport()->findChild<QLineEdit *>());
    }

    void theComboPutsNamesIntoTheProgram()
    {
        Points points;
        points.box().setSelStart(0);
        auto *combo = points.window.findChild<ORVDataCombo *>();
        QCOMPARE(combo->ListCount(), qint16(2));
        QLineEdit *field = combo->findChild<QLineEdit *>();
        field->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(field, u"mp2"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(combo->Text(), u"Temp2"_s);
        QVERIFY2(points.code().CodeText().startsWith(u"Temp2"_s),
                 qPrintable(points.code().CodeText()));
        QVERIFY(points.box().hasFocus());
        points.choose(u"Undo"_s);
        QVERIFY2(points.code().CodeText().startsWith(u"IF"_s),
                 qPrintable(points.code().CodeText()));

        points.open(u"Outputs"_s);
        field->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(field, u"mp1"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(points.shown().CurrentType(), dsInput);
        QCOMPARE(points.shown().SelectedItem()->Index(), 1);
    }

    void lookingThroughTheComboWritesNothing()
    {
        Points points;
        const QString program = points.code().CodeText();
        auto *combo = points.window.findChild<ORVDataCombo *>();
        QLineEdit *field = combo->findChild<QLineEdit *>();
        field->setFocus(Qt::TabFocusReason);
        QTest::keyClick(field, Qt::Key_Down);
        QTest::keyClick(field, Qt::Key_Down);
        QCOMPARE(combo->Text(), u"Temp2"_s);
        QWheelEvent notch(QPointF(5, 5), field->mapToGlobal(QPointF(5, 5)), {}, {0, 120},
                          Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(field, &notch);
        QCOMPARE(combo->Text(), u"Temp2"_s);
        QTest::keyClick(field, Qt::Key_Tab);
        QCOMPARE(points.code().CodeText(), program);
        QVERIFY(!points.window.isWindowModified());
    }

    void theHeadCountsThePoints()
    {
        Points points;
        points.open(u"Inputs"_s);
        QCOMPARE(points.shown().Caption(), u"Points: 2"_s); // the title stands in the tab
        points.speak(QLocale(QLocale::German));
        QCOMPARE(points.shown().Caption(), u"Punkte: 2"_s);
    }

    void theColumnOfValuesGrowsWithThem()
    {
        Points points;
        points.open(u"Inputs"_s);
        const int column = points.shown().ColumnHerders()->Item(u"Value"_s)->Index() - 1;
        const int before = points.list().columnWidth(column);
        QCOMPARE(points.list().horizontalScrollBar()->maximum(), 0);
        auto &reading = *points.window.findChild<PointReading *>();
        Project &project = *points.window.findChild<ProjectDocument *>()->project();
        const auto come = [&](const QVariant &value) {
            project.setReading(dsInput, 0, column - 1, value);
            Q_EMIT reading.valuesRead({});
        };
        come(-123456789.125);
        QTRY_VERIFY(points.list().columnWidth(column) > before);
        const int wide = points.list().columnWidth(column);
        const QString shown = points.cell(1, u"Value"_s);
        QVERIFY(wide > points.list().fontMetrics().horizontalAdvance(shown));
        QCOMPARE(points.list().horizontalScrollBar()->maximum(), 0); // all are in sight still
        come(1);
        QTRY_COMPARE(points.cell(1, u"Value"_s), u"1"_s);
        QCOMPARE(points.list().columnWidth(column), wide); // no column jumps to and fro
    }

    void theLanguageChangesTreeTableAndHeaders()
    {
        Points points;
        points.open(u"Inputs"_s);
        const ColumnHeader &label = *points.shown().ColumnHerders()->Item(u"Label"_s);
        const ColumnHeader &number = *points.shown().ColumnHerders()->Item(u"#"_s);
        const float labels = label.Width();
        const float numbers = number.Width();
        points.speak(QLocale(QLocale::German));
        QCOMPARE(points.node(u"Inputs"_s)->Text(), u"Eingänge"_s);
        QCOMPARE(points.shown().accessibleName(), u"Eingänge"_s);
        QCOMPARE(points.shown().ColumnHerders()->Item(u"Value"_s)->Text(), u"Wert"_s);
        QCOMPARE(points.cell(1, u"Commissioned"_s), u"Ja"_s);
        QCOMPARE(points.cell(1, u"Label"_s), u"Temp1"_s);
        QVERIFY(label.Width() > labels); // "Bezeichnung" needs more room
        QCOMPARE(number.Width(), numbers);
    }

    void thePointsAnswerTheEditor()
    {
        Points points;
        CodeView &view = *points.code().codeView();
        HoverAnswer known;
        Q_EMIT view.hoverAsked(u"TEMP1"_s, 1, &known);
        QCOMPARE(known.name(), u"Temp1"_s);
        QCOMPARE(known.kind(), dsInput);
        QCOMPARE(known.value(), u"20.5"_s);
        QCOMPARE(known.unit(), u"°C"_s);
        HoverAnswer unknown;
        Q_EMIT view.hoverAsked(u"Temp3"_s, 1, &unknown);
        QVERIFY(unknown.isEmpty());
    }

    void theValuesStandBehindTheProgram()
    {
        Points points;
        CodeView &view = *points.code().codeView();
        QVERIFY(view.liveValuesShown());
        QWidget &shown = *points.box().viewport();
        auto &pause = *points.box().findChild<QTimer *>(u"LiveValuesPause"_s);
        QTRY_VERIFY(!pause.isActive());
        const QImage with = shown.grab().toImage();
        view.setLiveValuesShown(false);
        const QImage without = shown.grab().toImage();
        const int line = points.box().fontMetrics().height();
        const auto row = [&](const QImage &image, int number) {
            return image.copy(0, number * line + 4, image.width(), line);
        };
        QVERIFY(row(with, 0) != row(without, 0)); // Temp1
        QVERIFY(row(with, 1) != row(without, 1)); // Fan1
        QCOMPARE(row(with, 3), row(without, 3));
    }

    void aFindingLeadsBackToTheProgram()
    {
        Points points;
        points.code().setCodeText(u"nobody = 1"_s);
        points.open(u"Outputs"_s);
        points.choose(u"Analyse"_s);
        QTest::keyClick(&points.results(), Qt::Key_Down);
        QTest::keyClick(&points.results(), Qt::Key_Return);
        QCOMPARE(points.shown().CurrentType(), dsCode);
        QCOMPARE(points.tree().SelectedItem(), points.node(u"Code"_s));
        QCOMPARE(points.box().SelText(), u"nobody"_s);
    }
};

ORVT_TEST(PointTablesTest)
#include "PointTablesTest.moc"
