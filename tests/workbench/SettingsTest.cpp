#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "widgets/look/Luminance.h"
#include "workbench/Appearance.h"
#include "workbench/settings/ColourPreview.h"
#include "workbench/settings/KeptWindow.h"
#include "workbench/settings/SettingsDialog.h"
#include "workbench/settings/Theme.h"

#include <ORVTListview/CodeView.h>

#include <QtCore/QSet>
#include <QtCore/QSettings>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>

using namespace Qt::StringLiterals;
using namespace ORVTListview;

class SettingsTest : public WidgetTest
{
    Q_OBJECT

private:
    static QColor colourOf(qint32 colour)
    {
        return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
    }

    static double contrast(const QColor &one, const QColor &other)
    {
        const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
        return (lighter + 0.05) / (darker + 0.05);
    }

    static QComboBox &boxWith(const QWidget &dialog, const QString &entry)
    {
        for (QComboBox *box : dialog.findChildren<QComboBox *>()) {
            if (box->findText(entry) >= 0)
                return *box;
        }
        qFatal("there is no %s", qPrintable(entry));
    }

    static void choose(const QWidget &dialog, const QString &entry)
    {
        QComboBox &box = boxWith(dialog, entry);
        box.setCurrentIndex(box.findText(entry));
        Q_EMIT box.activated(box.currentIndex());
    }

    // Opens the dialog by its menu, works in it, and accepts it.
    static void decide(WorkbenchWindow &workbench,
                       const std::function<void(SettingsDialog &)> &decisions)
    {
        NextDialog<SettingsDialog> dialog([&](SettingsDialog &settings) {
            decisions(settings);
            settings.accept();
        });
        workbench.choose(u"Settings…"_s);
        QVERIFY(dialog.wasThere());
    }

private Q_SLOTS:
    void cleanup() { useTheme(Theme::System); }

    void readySetsAreReadAndDiffer_data()
    {
        QTest::addColumn<ColourSet>("set");
        QTest::newRow("light") << ColourSet::Light;
        QTest::newRow("dark") << ColourSet::Dark;
        QTest::newRow("high contrast") << ColourSet::HighContrast;
    }

    void readySetsAreReadAndDiffer()
    {
        QFETCH(ColourSet, set);
        const RichTextSettings colours = readyColours(set);
        const double wanted = set == ColourSet::HighContrast ? 7 : 4.5;
        QSet<qint32> all;
        for (const ClassColour colour : classColours) {
            all.insert(colours.*colour);
            const QColor shown = colourOf(colours.*colour);
            QVERIFY2(contrast(shown, colourOf(colours.BackColor)) >= wanted,
                     qPrintable(shown.name()));
        }
        QCOMPARE(all.size(), qsizetype(std::size(classColours)));
    }

    void whatIsStoredComesBack()
    {
        QTemporaryDir folder;
        Settings settings;
        settings.theme = Theme::Dark;
        settings.language = QLocale(u"de"_s);
        settings.look.colours = ColourSet::Own;
        settings.look.own.InputColor = 0x123456;
        settings.look.own.BackColor = 0x00FF01;
        settings.look.fontName = u"Name, with %1"_s;
        settings.look.fontSize = 14;
        {
            QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
            settings.write(store);
        }
        QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
        Settings read;
        read.read(store);
        QCOMPARE(read.language->language(), QLocale::German);
        read.language = settings.language;
        QVERIFY(read == settings);
    }

    // Of the command line, say.
    void whatWasNotChangedIsNotKept()
    {
        Settings stored;
        stored.theme = Theme::Light;
        Settings shown = stored;
        shown.theme = Theme::Dark;
        shown.language = QLocale(u"de"_s);
        Settings later = shown;
        later.look.fontSize = 12;
        stored.takeChanges(shown, later);
        QVERIFY(stored.theme == Theme::Light);
        QVERIFY(!stored.language);
        QCOMPARE(stored.look.fontSize, qint16(12));
    }

    void theMenuAndTheDialogKnowOneLanguage()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QSignalSpy chosen(&workbench.window, &MainWindow::settingsChosen);
        workbench.window.findChild<LanguageMenu *>()->actions().at(1)->trigger();
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(workbench.window.settings().language->language(), QLocale::German);
        Settings settings;
        settings.language = QLocale(u"de_AT"_s);
        const SettingsDialog dialog(settings, {}, {}, nullptr);
        QCOMPARE(boxWith(dialog, u"Deutsch"_s).currentText(), u"Deutsch"_s);
    }

    void ownColoursBeginWithThoseThatAreSeen()
    {
        RichTextSettings project;
        project.BackColor = static_cast<qint32>(0x80000005U);
        useTheme(Theme::Dark);
        SettingsDialog dialog({}, project, {}, nullptr);
        choose(dialog, u"Own"_s);
        const RichTextSettings own = dialog.settings().look.own;
        QCOMPARE(colourOf(own.BackColor), dialog.palette().color(QPalette::Base));
        QVERIFY(contrast(colourOf(own.InputColor), colourOf(own.BackColor)) > 4);
    }

    void theSizeLeavesTheFontAlone()
    {
        Settings settings;
        settings.look.fontName = u"None such"_s;
        const SettingsDialog dialog(settings, {}, {}, nullptr);
        dialog.findChild<QSpinBox *>()->setValue(17);
        QCOMPARE(dialog.settings().look.fontName, u"None such"_s);
        QCOMPARE(dialog.settings().look.fontSize, qint16(17));
    }

    void equalOwnColoursComeBackFromPaper()
    {
        RichTextSettings paper;
        paper.InputColor = 0x0000C0;
        paper.OutputColor = 0x800080;
        RichTextSettings own = paper;
        own.InputColor = own.OutputColor;
        const RichTextSettings shown = toldApart(own, paper);
        QVERIFY(shown.InputColor != shown.OutputColor);
        QVERIFY(toldApart(paper, paper) == paper);
    }

    void whatIsDamagedInTheEditorIsLeftOut()
    {
        QTemporaryDir folder;
        QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
        store.setValue(u"editor/keepsText"_s, false);
        store.setValue(u"editor/lineNumbersVisible"_s, u"yes"_s);
        store.setValue(u"editor/pairsShown"_s, false);
        store.setValue(u"editor/zoom"_s, -5);
        WorkbenchWindow workbench;
        CodeView &view = *workbench.code().codeView();
        view.setLineNumbersVisible(false);
        readWindow(store, workbench.window, view);
        QVERIFY(view.keepsText());
        QVERIFY(!view.lineNumbersVisible());
        QVERIFY(!view.pairsShown());
        QCOMPARE(view.zoom(), 100);
    }

    void whatIsDamagedIsAsItWas()
    {
        QTemporaryDir folder;
        QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
        store.setValue(u"theme"_s, u"violet"_s);
        store.setValue(u"language"_s, u"?"_s);
        store.setValue(u"editor/colours"_s, 7);
        store.setValue(u"editor/own/input"_s, u"no colour"_s);
        store.setValue(u"editor/fontSize"_s, 4000);
        Settings read;
        read.read(store);
        QVERIFY(read == Settings());
    }

    void theSampleStandsBetweenChoicesAndButtons()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        decide(workbench, [](SettingsDialog &dialog) {
            const QRect sample = dialog.findChild<ColourPreview *>()->geometry();
            for (const QGroupBox *part : dialog.findChildren<QGroupBox *>())
                QVERIFY(part->geometry().bottom() < sample.top());
            const QRect buttons = dialog.findChild<QDialogButtonBox *>()->geometry();
            QVERIFY(sample.bottom() < buttons.top());
            QCOMPARE(sample.left(), buttons.left());
            QCOMPARE(sample.right(), buttons.right());
        });
    }

    void lettersAreAsLargeAsOnesThatCanBeRead_data()
    {
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("read");
        const int usual = Settings().look.fontSize;
        QTest::newRow("the system's") << 0 << 0;
        QTest::newRow("too small") << 3 << usual;
        QTest::newRow("the smallest") << 4 << 4;
        QTest::newRow("the largest") << 72 << 72;
        QTest::newRow("too large") << 73 << usual;
        QTest::newRow("less than none") << -1 << usual;
    }
    void lettersAreAsLargeAsOnesThatCanBeRead()
    {
        QFETCH(const int, stored);
        QTemporaryDir folder;
        QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
        store.setValue(u"editor/fontSize"_s, stored);
        Settings settings;
        settings.read(store);
        QTEST(int{settings.look.fontSize}, "read");
    }

    void aSetIsShownAndTheProgramStays()
    {
        WorkbenchWindow workbench("IF Temp1 > 20\nFan1 = ON\nENDIF");
        workbench.key(Qt::Key_Down);
        const QString program = workbench.code().CodeText();
        decide(workbench, [](SettingsDialog &dialog) {
            choose(dialog, u"High contrast"_s);
            dialog.findChild<QSpinBox *>()->setValue(17);
        });
        QCOMPARE(workbench.code().CodeText(), program);
        QVERIFY(!workbench.window.isWindowModified());
        QCOMPARE(workbench.box().BackColor(), 0);
        QCOMPARE(workbench.box().font().pointSize(), 17);
        const QString rtf = workbench.box().TextRTF();
        QVERIFY2(rtf.contains(u"\\red255\\green128\\blue128"_s), qPrintable(rtf));
        QCOMPARE(workbench.box().textCursor().blockNumber(), 1);
        QVERIFY(!workbench.code().IsUndoAvailable());
    }

    void cancelLeavesAllAsItIs()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        const Settings former = workbench.window.settings();
        const QString rtf = workbench.box().TextRTF();
        NextDialog<SettingsDialog> dialog([&](SettingsDialog &settings) {
            choose(settings, u"Dark"_s);
            settings.reject();
        });
        workbench.choose(u"Settings…"_s);
        QVERIFY(dialog.wasThere());
        QVERIFY(workbench.window.settings() == former);
        QCOMPARE(workbench.box().TextRTF(), rtf);
    }

    void theThemeChangesThereAndBack()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        const QColor former = QApplication::palette().color(QPalette::Base);
        Settings settings;
        settings.theme = Theme::Dark;
        workbench.window.setSettings(settings);
        QVERIFY(QApplication::palette().color(QPalette::Base).lightness() < 60);
        settings.theme = Theme::Light;
        workbench.window.setSettings(settings);
        QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(Qt::white));
        settings.theme = Theme::System;
        workbench.window.setSettings(settings);
        QCOMPARE(QApplication::palette().color(QPalette::Base), former);
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON"_s);
    }

    void theLanguageIsChosen()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        decide(workbench, [](SettingsDialog &dialog) { choose(dialog, u"Deutsch"_s); });
        QCoreApplication::processEvents();
        QCOMPARE(workbench.menus().first()->title(), u"&Datei"_s);
        QCOMPARE(workbench.window.settings().language->language(), QLocale::German);
    }

    void faintColoursAreTold()
    {
        Settings settings;
        settings.look.colours = ColourSet::Own;
        settings.look.own.InputColor = settings.look.own.BackColor;
        const SettingsDialog dialog(settings, {}, {}, nullptr);
        QString told;
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            told += label->text();
        QVERIFY2(told.contains(u"Hard to read on this ground: Inputs."_s), qPrintable(told));
    }

    void defaultsAreRestored()
    {
        Settings settings;
        settings.theme = Theme::Dark;
        settings.look.fontName = u"Monospace"_s;
        settings.look.fontSize = 20;
        SettingsDialog dialog(settings, {}, {.dropsBlanks = false}, nullptr);
        QVERIFY(dialog.findChild<QCheckBox *>()->isChecked());
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::RestoreDefaults)->click();
        QVERIFY(dialog.settings() == Settings());
        QVERIFY(dialog.typingHelps() == TypingHelps());
        QVERIFY(!dialog.findChild<QCheckBox *>()->isChecked());
    }

    void theWindowIsAsItWasLeft()
    {
        QTemporaryDir folder;
        QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
        {
            WorkbenchWindow workbench;
            workbench.window.resize(640, 480);
            workbench.window.findChild<QDockWidget *>(u"CheckResults"_s)->show();
            workbench.code().codeView()->setLineNumbersVisible(false);
            workbench.code().codeView()->setZoom(150);
            writeWindow(store, workbench.window, *workbench.code().codeView());
        }
        WorkbenchWindow workbench;
        QVERIFY(workbench.window.findChild<QDockWidget *>(u"CheckResults"_s)->isHidden());
        readWindow(store, workbench.window, *workbench.code().codeView());
        QCOMPARE(workbench.window.size(), QSize(640, 480));
        QVERIFY(!workbench.window.findChild<QDockWidget *>(u"CheckResults"_s)->isHidden());
        QVERIFY(!workbench.code().codeView()->lineNumbersVisible());
        QVERIFY(workbench.code().codeView()->pairsShown());
        QCOMPARE(workbench.code().codeView()->zoom(), 150);
    }

    void anEmptyStoreChangesNothing()
    {
        QTemporaryDir folder;
        const QSettings store(folder.filePath(u"a.ini"_s), QSettings::IniFormat);
        WorkbenchWindow workbench;
        const QSize size = workbench.window.size();
        readWindow(store, workbench.window, *workbench.code().codeView());
        QCOMPARE(workbench.window.size(), size);
        QVERIFY(workbench.code().codeView()->lineNumbersVisible());
    }
};

ORVT_TEST(SettingsTest)

#include "SettingsTest.moc"
