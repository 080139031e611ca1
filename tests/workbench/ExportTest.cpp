#include "TwoPrograms.h"

#include "support/TestProgram.h"
#include "workbench/TitleWidth.h"
#include "workbench/export/Exporting.h"
#include "workbench/export/PaperColours.h"
#include "workbench/export/PaperText.h"
#include "workbench/export/ProgramPrint.h"

#include <ORVTListview/Error.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

#include <QtCore/QBuffer>
#include <QtCore/QMimeData>
#include <QtCore/QRegularExpression>
#include <QtGui/QPageRanges>
#include <QtGui/QPdfWriter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtPrintSupport/QPrinterInfo>
#include <QtWidgets/QFileDialog>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;
using namespace ORVTListview;

class ExportTest : public WidgetTest
{
    Q_OBJECT

private:
    static Exporting &exportOf(WorkbenchWindow &workbench)
    {
        return *workbench.window.findChild<Exporting *>();
    }

    static QByteArray exported(WorkbenchWindow &workbench, const QString &name)
    {
        exportOf(workbench).exportTo(workbench.folder.filePath(name));
        return readFile(workbench.folder.filePath(name));
    }

    // A project on the system's ground, whose colours for inputs and outputs are so near
    // that a dark screen shows them alike.
    static void openOnSystemGround(WorkbenchWindow &workbench)
    {
        const QString project = workbench.folder.filePath(u"one.json"_s);
        QByteArray json = readFile(project);
        json.insert(1, "\"editor\": {\"backColour\": \"system:window\", \"fontSize\": 10, "
                       "\"inputColour\": \"#c00000\", \"outputColour\": \"#c10101\"}, ");
        writeFile(project, json);
        workbench.window.openProject(project);
    }

    static void goDark()
    {
        QPalette palette(Qt::black);
        palette.setColor(QPalette::Base, QColor(0x1e1f22));
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
    }

    // The colours of the text's runs in the order of the text.
    static QString coloursIn(const QByteArray &html)
    {
        static const QRegularExpression colour(u"color:(#\\w+)\">"_s);
        QStringList found;
        auto runs = colour.globalMatch(QString::fromUtf8(html));
        while (runs.hasNext())
            found.append(runs.next().captured(1));
        return found.join(u' ');
    }

private Q_SLOTS:
    void init() { m_palette = QApplication::palette(); }
    void cleanup() { QApplication::setPalette(m_palette); }

    void theProgramGoesOutAsItStands()
    {
        WorkbenchWindow workbench("if temp1 > 20\n    fan1 = on\nendif\nREM a <b> & \"c\"");
        const QByteArray rtf = exported(workbench, u"a.rtf"_s);
        QCOMPARE(rtf, workbench.box().TextRTF().toLatin1());
        RichTextBox read;
        read.setTextRTF(QString::fromLatin1(rtf));
        QCOMPARE(read.Text(), workbench.box().Text());

        const QString page = QString::fromUtf8(exported(workbench, u"a.HTML"_s));
        QVERIFY2(page.contains(u"<title>one</title>"_s), qPrintable(page));
        QVERIFY2(page.contains(u"REM a &lt;b&gt; &amp; &quot;c&quot;"_s), qPrintable(page));
        QTextDocument shown;
        shown.setHtml(page);
        QCOMPARE(shown.toPlainText(), workbench.box().Text().replace(u"\r\n"_s, u"\n"_s));
    }

    void aNameMayHaveDots()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        NextDialog<QFileDialog> chosen([&](QFileDialog &dialog) {
            dialog.selectFile(workbench.folder.filePath(u"Hall 1.2"_s));
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        workbench.choose(u"Export…"_s);
        QVERIFY(chosen.wasThere());
        QVERIFY(readFile(workbench.folder.filePath(u"Hall 1.2.rtf"_s)).startsWith("{\\rtf"));
    }

    void onlyAProgramThatIsShownIsPrinted()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QVERIFY(workbench.command(u"Print…"_s)->isEnabled());
        workbench.window.showType(dsInput);
        QVERIFY(!workbench.command(u"Print…"_s)->isEnabled());
        workbench.window.showType(dsCode);
        QVERIFY(workbench.command(u"Print…"_s)->isEnabled());
        workbench.window.openForUser(workbench.folder.filePath(u"none.json"_s));
        QVERIFY(!workbench.command(u"Print…"_s)->isEnabled());
        QVERIFY(!workbench.command(u"Export…"_s)->isEnabled());
    }

    void blankLinesAtTheFrontAreKept()
    {
        WorkbenchWindow workbench("\n\nFan1 = ON\n");
        const QString page = QString::fromUtf8(exported(workbench, u"a.html"_s));
        QVERIFY2(page.contains(u">\n\n\n<span"_s), qPrintable(page));
    }

    void onDarkItHasTheColoursOfPaper()
    {
        const QByteArray program = "IF Temp1 > 20\nFan1 = ON\nENDIF\nREM dark";
        WorkbenchWindow workbench(program);
        openOnSystemGround(workbench);
        const QString light = coloursIn(exported(workbench, u"light.html"_s));
        const QByteArray rtf = exported(workbench, u"light.rtf"_s);
        goDark();
        QTRY_VERIFY(workbench.box().TextRTF().toLatin1() != rtf); // the screen's are others
        QCOMPARE(coloursIn(exported(workbench, u"dark.html"_s)), light);
        QCOMPARE(exported(workbench, u"dark.rtf"_s), rtf);
        workbench.choose(u"Select All"_s);
        Q_EMIT workbench.menus().at(1)->aboutToShow();
        workbench.choose(u"Copy with Colours"_s);
        const QMimeData *copied = QGuiApplication::clipboard()->mimeData();
        QCOMPARE(coloursIn(copied->html().toUtf8()), light);
        QCOMPARE(copied->text().toUtf8(), program);
    }

    void colourTablesAreMappedAndNothingElse()
    {
        RichTextSettings paper;
        paper.InputColor = 0x0000C0;
        paper.OutputColor = 0x800080;
        RichTextSettings screen = paper;
        screen.InputColor = 0x8080FF;
        screen.OutputColor = 0x8080FE;
        const PaperColours colours(paper, screen);
        QCOMPARE(colours.onPaper(u"{\\rtf1{\\colortbl ;\\red255\\green128\\blue128;"
                                 "\\red254\\green128\\blue128;\\red1\\green2\\blue3;}"
                                 "\\cf1 \\\\red255\\\\green128\\\\blue128;}"_s),
                 u"{\\rtf1{\\colortbl ;\\red192\\green0\\blue0;"
                 "\\red128\\green0\\blue128;\\red1\\green2\\blue3;}"
                 "\\cf1 \\\\red255\\\\green128\\\\blue128;}"_s);
        QCOMPARE(colours.onPaper(u"no table"_s), u"no table"_s);
        QCOMPARE(colours.onPaper(u"{\\colortbl open"_s), u"{\\colortbl open"_s);
        QCOMPARE(PaperColours().onPaper(u"{\\colortbl;\\red1\\green2\\blue3;}"_s),
                 u"{\\colortbl;\\red1\\green2\\blue3;}"_s);
    }

    void tablesGoOutWithTheirHeads()
    {
        WorkbenchWindow workbench;
        workbench.window.showType(dsInput);
        const QByteArray comma = exported(workbench, u"inputs.csv"_s);
        QVERIFY2(comma.startsWith("\xEF\xBB\xBF#,Label,Mode,Value,"), comma.constData());
        QVERIFY2(comma.contains("\r\n01,Temp1,"), comma.constData());
        QCOMPARE(comma.count("\r\n"), 2);
        const QByteArray tabs = exported(workbench, u"inputs.TSV"_s);
        QVERIFY2(tabs.startsWith("\xEF\xBB\xBF#\tLabel\tMode\tValue\t"), tabs.constData());
    }

    void hiddenRowsGoOutToo()
    {
        WorkbenchWindow workbench;
        workbench.window.showType(dsInput);
        const QByteArray whole = exported(workbench, u"inputs.csv"_s);
        workbench.shown().ListItems()->Item(1)->setVisible(false);
        QCOMPARE(exported(workbench, u"inputs.csv"_s), whole);
    }

    void whatCannotBeWrittenIsToldAndLeavesTheFile()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        writeFile(workbench.folder.filePath(u"a.txt"_s), "kept");
        for (const QString &name : {u"a.txt"_s, u"a"_s, u"a.csv"_s, u"no/folder.rtf"_s})
            QVERIFY_THROWS_EXCEPTION(Error, exported(workbench, name));
        QCOMPARE(readFile(workbench.folder.filePath(u"a.txt"_s)), "kept");
        workbench.window.showType(dsInput);
        QVERIFY_THROWS_EXCEPTION(Error, exported(workbench, u"b.rtf"_s));
    }

    void theDialogAddsTheKind()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        NextDialog<QFileDialog> dialog([&](QFileDialog &files) {
            files.setDirectory(workbench.folder.path());
            files.selectFile(u"by menu"_s);
            QMetaObject::invokeMethod(&files, "accept", Qt::QueuedConnection);
        });
        workbench.choose(u"Export…"_s);
        QVERIFY(dialog.wasThere());
        QVERIFY(readFile(workbench.folder.filePath(u"by menu.rtf"_s)).startsWith("{\\rtf1"));
    }

    void ofSeveralProgramsTheUserSaysWhich()
    {
        TwoPrograms two("Fan1 = 1\n", "REM night\n");
        two.views().enterProgram(1);
        QStringList offered;
        bool isTitleCut = true;
        NextDialog<QInputDialog> which([&](QInputDialog &asked) {
            offered = asked.comboBoxItems();
            isTitleCut = asked.width() < titleWidth(asked);
            asked.setTextValue(u"Night"_s);
            asked.accept();
        });
        NextDialog<QFileDialog> where([&](QFileDialog &files) {
            files.setDirectory(two.folder.path());
            files.selectFile(u"night"_s);
            QMetaObject::invokeMethod(&files, "accept", Qt::QueuedConnection);
        });
        two.choose(u"Export…"_s);
        QVERIFY(which.wasThere() && where.wasThere());
        QCOMPARE(offered, QStringList({u"a.prog"_s, u"Night"_s, u"All programs"_s}));
        QVERIFY(!isTitleCut);
        QVERIFY(readFile(two.folder.filePath(u"night.rtf"_s)).contains("REM night"));
    }

    void allProgramsAreOnePdf()
    {
        TwoPrograms two("Fan1 = 1\n", "REM night\n");
        two.views().enterProgram(1);
        NextDialog<QInputDialog> which([&](QInputDialog &asked) {
            asked.setTextValue(u"All programs"_s);
            asked.accept();
        });
        QStringList kinds;
        NextDialog<QFileDialog> where([&](QFileDialog &files) {
            kinds = files.nameFilters();
            files.setDirectory(two.folder.path());
            files.selectFile(u"all"_s);
            QMetaObject::invokeMethod(&files, "accept", Qt::QueuedConnection);
        });
        two.choose(u"Export…"_s);
        QVERIFY(which.wasThere() && where.wasThere());
        QCOMPARE(kinds, QStringList(u"PDF (*.pdf)"_s));
        QCOMPARE(readFile(two.folder.filePath(u"all.pdf"_s)).count("/Type /Page\n"), 2);
    }

    void aPdfHasAllPages()
    {
        QByteArray program;
        for (int line = 0; line < 300; ++line)
            program += "Fan1 = " + QByteArray::number(line) + '\n';
        WorkbenchWindow workbench(program);
        const QByteArray pdf = exported(workbench, u"a.pdf"_s);
        QVERIFY(pdf.startsWith("%PDF-"));
        const qsizetype pages = pdf.count("/Type /Page\n");
        QVERIFY2(pages >= 4 && pages <= 8, qPrintable(QString::number(pages)));
    }

    void onlyThePagesThatAreWantedArePrinted()
    {
        QByteArray program;
        for (int line = 0; line < 300; ++line)
            program += "Fan1 = " + QByteArray::number(line) + '\n';
        WorkbenchWindow workbench(program);
        const PaperText paper(workbench.box(), {}, PaperText::All);
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        {
            QPdfWriter writer(&pdf);
            writer.setPageRanges(QPageRanges::fromString(u"2-3"_s));
            QVERIFY(printPrograms({{u"one"_s, &paper.document()}}, writer));
        }
        QCOMPARE(pdf.data().count("/Type /Page\n"), 2);
    }

    // A line that begins with a tab stands where one that begins with four blanks does.
    void tabsAreAsWideOnPaperAsInTheEditor()
    {
        WorkbenchWindow workbench("\tFan1 = 1\n    Fan1 = 2");
        const PaperText paper(workbench.box(), {}, PaperText::All);
        std::unique_ptr<QTextDocument> page(paper.document().clone());
        page->setPageSize(QSizeF(800, 600));
        QCOMPARE(page->pageCount(), 1); // which lays it out
        const QTextLayout &tab = *page->firstBlock().layout();
        const QTextLayout &blanks = *page->lastBlock().layout();
        const auto textAt = [](const QTextLayout &line, int indent) {
            return line.lineAt(0).cursorToX(indent);
        };
        QVERIFY(textAt(tab, 1) > 0);
        QVERIFY2(std::abs(textAt(tab, 1) - textAt(blanks, 4)) < 1,
                 qPrintable(QString::number(textAt(tab, 1))));
    }

#ifdef Q_OS_WIN
    void whereNoPrinterIsItIsTold()
    {
        if (!QPrinterInfo::availablePrinterNames().isEmpty())
            return; // the system's dialog would be shown
        WorkbenchWindow workbench("Fan1 = ON");
        NextMessage told(QMessageBox::Ok);
        workbench.choose(u"Print…"_s);
        QVERIFY(told.wasThere());
        QVERIFY2(told.text().contains(u"no printer"_s), qPrintable(told.text()));
    }
#endif

private:
    QPalette m_palette;
};

ORVT_TEST(ExportTest)

#include "ExportTest.moc"
