#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include <ORVTListview/CodeView.h>

#include <QtGui/QAction>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHeaderView>

using namespace Qt::StringLiterals;

class CheckResultsTest : public WidgetTest
{
    Q_OBJECT

private:
    static void click(WorkbenchWindow &workbench, int row)
    {
        QTreeView &view = workbench.results();
        const QModelIndex index = view.model()->index(row, 0);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    }

private Q_SLOTS:
    void listsWhatAnalysisFinds()
    {
        WorkbenchWindow workbench("ELSE\nIF Tmep > 3\nELSE\nELSE\nENDIF\nENDIF\nIF Temp1 > 3");
        QVERIFY(!workbench.results().isVisible());
        workbench.key(Qt::Key_F6);
        QVERIFY(workbench.results().isVisible());
        QCOMPARE(workbench.resultTexts(), u"Line 1: ELSE without IF|"
                                          "Line 2: Tmep is not known|"
                                          "Line 4: Second ELSE of one IF|"
                                          "Line 6: ENDIF without IF|"
                                          "Line 7: IF without ENDIF"_s);
        QVERIFY(workbench.box().hasFocus());
    }

    void checksWhatIsShownAndNotWhatIsSaved()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.key(Qt::Key_F6);
        QCOMPARE(workbench.resultTexts(), u"Nothing found."_s);
        workbench.type(u"x "_s);
        workbench.key(Qt::Key_F6);
        QCOMPARE(workbench.resultTexts(), u"Line 1: x is not known"_s);
    }

    void theEditorShowsWhatIsFound()
    {
        WorkbenchWindow workbench("Fan1 = ON\nIF Temp1 > tmep + tmep\nREM tmep");
        workbench.key(Qt::Key_F6);
        const QList<ORVTListview::Problem> problems =
            workbench.window.findChild<ORVTListview::ORVListView *>(u"Program"_s)
                ->codeView()
                ->problems();
        QCOMPARE(problems.size(), 2);
        QCOMPARE(problems[0], (ORVTListview::Problem{2, 0, 2, ORVTListview::ProblemSeverity::Error,
                                                     u"IF without ENDIF"_s}));
        QCOMPARE(problems[1], (ORVTListview::Problem{2, 11, 4, ORVTListview::ProblemSeverity::Error,
                                                     u"tmep is not known"_s}));
        workbench.key(Qt::Key_End, Qt::ControlModifier);
        workbench.key(Qt::Key_Return);
        workbench.type(u"ENDIF"_s);
        workbench.key(Qt::Key_F6);
        QCOMPARE(workbench.window.findChild<ORVTListview::ORVListView *>(u"Program"_s)
                     ->codeView()
                     ->problems()
                     .size(),
                 1);
    }

    void theWayToAProblemTellsThePosition()
    {
        WorkbenchWindow workbench("Fan1 = ON\n\nIF tmep > 3\nENDIF\nENDIF");
        workbench.key(Qt::Key_F6);
        const auto goToNext = [&] {
            for (QAction *action : workbench.window.findChildren<QAction *>()) {
                if (action->text() == u"Next &Problem"_s)
                    action->trigger();
            }
        };
        goToNext();
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 3, Col: 4"_s));
        goToNext();
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 5, Col: 1"_s));
    }

    void aClickHighlightsTheWord()
    {
        WorkbenchWindow workbench("Fan1 = ON\n\nIF tmep > 3\nENDIF\nENDIF");
        workbench.key(Qt::Key_F6);
        click(workbench, 0);
        QCOMPARE(workbench.box().SelText(), u"tmep"_s);
        QVERIFY(workbench.box().hasFocus());
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 3, Col: 4"_s));
        click(workbench, 1);
        QCOMPARE(workbench.box().SelStart(), workbench.box().lineStart(4));
        QCOMPARE(workbench.box().SelText(), u"ENDIF"_s);
    }

    void enterHighlightsTheWord()
    {
        WorkbenchWindow workbench("Fan1 = tmep");
        workbench.key(Qt::Key_F6);
        QTest::keyClick(&workbench.box(), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"ImgRead"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(workbench.results().hasFocus());
        QTest::keyClick(&workbench.results(), Qt::Key_Home);
        QTest::keyClick(&workbench.results(), Qt::Key_Return);
        QCOMPARE(workbench.box().SelText(), u"tmep"_s);
        QVERIFY(workbench.box().hasFocus());
    }

    void aClickOnNothingFoundChangesNothing()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.key(Qt::Key_End);
        workbench.key(Qt::Key_F6);
        click(workbench, 0);
        QCOMPARE(workbench.box().SelStart(), 9);
    }

    void reachesLinesThatSixteenBitsDoNotCount()
    {
        QByteArray program;
        for (int i = 0; i < 32'767; ++i)
            program += "Fan1 = ON\n";
        WorkbenchWindow workbench(program + "Fan1 = tmep");
        workbench.key(Qt::Key_F6);
        QCOMPARE(workbench.resultTexts(), u"Line 32768: tmep is not known"_s);
        click(workbench, 0);
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 32768, Col: 8"_s));
    }

    void compilationListsTheStatements()
    {
        WorkbenchWindow workbench("IF temp1 > 3\nREM no\n  Fan1 = LIMIT(temp1,3,4)\nENDIF");
        workbench.key(Qt::Key_F6, Qt::ControlModifier);
        QCOMPARE(workbench.resultTexts(), u"1 IF Temp1 > 3 Condition|"
                                          "3     Fan1 = LIMIT ( Temp1 , 3 , 4 ) Assignment|"
                                          "4 ENDIF End of a condition"_s);
        click(workbench, 1);
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 3, Col: 1"_s));
        QVERIFY(workbench.box().hasFocus());
    }

    void compilationEndsWithErrorsButNotWithHints()
    {
        WorkbenchWindow workbench("Fan1 = ON\nFan1 = tmep\nENDIF");
        workbench.key(Qt::Key_F6, Qt::ControlModifier);
        QCOMPARE(workbench.resultTexts(), u"Line 2: tmep is not known|Line 3: ENDIF without IF"_s);
        workbench.code().setCodeText(u"IF Temp1 = 3\r\nENDIF"_s);
        workbench.key(Qt::Key_F6, Qt::ControlModifier);
        QCOMPARE(workbench.resultTexts(), u"1 IF Temp1 = 3 Condition|2 ENDIF End of a condition"_s);
        workbench.key(Qt::Key_F6);
        QCOMPARE(workbench.resultTexts(), u"Line 1: = sets a value, == compares"_s);
    }

    void theMenuDoesTheSame()
    {
        WorkbenchWindow workbench("ENDIF");
        workbench.choose(u"Analyse"_s);
        QCOMPARE(workbench.resultTexts(), u"Line 1: ENDIF without IF"_s);
        workbench.code().setCodeText(u"END"_s);
        workbench.choose(u"Compile"_s);
        QCOMPARE(workbench.resultTexts(), u"1 END End of the program"_s);
        workbench.choose(u"Results"_s);
        QVERIFY(!workbench.results().isVisible());
        workbench.choose(u"Results"_s);
        QVERIFY(workbench.results().isVisible());
    }

    void keysReachTheMenuFromTheResults()
    {
        WorkbenchWindow workbench("ENDIF");
        workbench.key(Qt::Key_F6);
        workbench.results().setFocus();
        workbench.code().setCodeText(u"END"_s);
        QTest::keyClick(&workbench.results(), Qt::Key_F6);
        QCOMPARE(workbench.resultTexts(), u"Nothing found."_s);
    }

    void statementsAreExported_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("text") << u"listing.txt"_s
                              << "1  IF Temp1 > 3\r\n2      Fan1 = LIMIT ( 1 , 3 , 4 )\r\n"
                                 "3  ENDIF\r\n"_ba;
        QTest::newRow("values") << u"listing.csv"_s
                                << "\xEF\xBB\xBFLine,Kind,Statement\r\n1,Condition,IF Temp1 > 3\r\n"
                                   "2,Assignment,\"Fan1 = LIMIT ( 1 , 3 , 4 )\"\r\n"
                                   "3,End of a condition,ENDIF\r\n"_ba;
    }
    void statementsAreExported()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        WorkbenchWindow workbench("IF temp1 > 3\nFan1 = LIMIT(1,3,4)\nENDIF");
        const QString path = workbench.folder.filePath(file);
        NextDialog<QFileDialog> chosen([&](QFileDialog &dialog) {
            dialog.selectFile(path);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        workbench.choose(u"Export Statements…"_s);
        QVERIFY(chosen.wasThere());
        QCOMPARE(ORVTListview::readFile(path), content);
    }

    void theChosenKindIsWritten()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        NextDialog<QFileDialog> chosen([&](QFileDialog &dialog) {
            const QString kind = dialog.nameFilters().at(1);
            dialog.selectNameFilter(kind);
            Q_EMIT dialog.filterSelected(kind);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        workbench.choose(u"Export Statements…"_s);
        QVERIFY(chosen.wasThere());
        QVERIFY(ORVTListview::readFile(workbench.folder.filePath(u"one.prog.csv"_s))
                    .contains("Line,Kind,Statement"));
    }

    void manyHintsAreNoErrors()
    {
        WorkbenchWindow workbench(QByteArray("IF Temp1 = 3\nENDIF\n").repeated(1001));
        workbench.key(Qt::Key_F6, Qt::ControlModifier);
        QVERIFY(workbench.resultTexts().startsWith(u"1 IF Temp1 = 3 Condition|2 ENDIF"_s));
        workbench.key(Qt::Key_End, Qt::ControlModifier);
        workbench.type(u"ENDIF"_s); // the last of all is an error
        workbench.key(Qt::Key_F6, Qt::ControlModifier);
        QVERIFY(workbench.resultTexts().startsWith(u"Line 1: = sets a value"_s));
    }

    void aDoubleClickIsOneWay()
    {
        WorkbenchWindow workbench("Fan1 = ON\n\nFan1 = tmep");
        workbench.key(Qt::Key_F6);
        QTreeView &view = workbench.results();
        const QPoint place = view.visualRect(view.model()->index(0, 0)).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(workbench.box().SelText(), u"tmep"_s);
        workbench.choose(u"Back"_s);
        QCOMPARE(workbench.box().SelStart(), 0);
    }

    void thePictureIsSaid()
    {
        WorkbenchWindow workbench("IF Temp1 = 3\nENDIF\nENDIF");
        workbench.key(Qt::Key_F6);
        const QAbstractItemModel &model = *workbench.results().model();
        QCOMPARE(model.index(0, 0).data(Qt::AccessibleTextRole).toString(),
                 u"Warning, Line 1: = sets a value, == compares"_s);
        QCOMPARE(model.index(1, 0).data(Qt::AccessibleTextRole).toString(),
                 u"Error, Line 3: ENDIF without IF"_s);
    }

    void nothingIsExportedOfAProgramWithErrors()
    {
        WorkbenchWindow workbench("ENDIF");
        workbench.choose(u"Export Statements…"_s);
        QCOMPARE(workbench.resultTexts(), u"Line 1: ENDIF without IF"_s);
    }

    void anotherProjectTakesTheResultsAway()
    {
        WorkbenchWindow workbench("ENDIF");
        workbench.key(Qt::Key_F6);
        workbench.window.openProject(workbench.writeProject(u"two"_s, ""));
        QVERIFY(!workbench.results().isVisible());
    }
};

ORVT_TEST(CheckResultsTest)
#include "CheckResultsTest.moc"
