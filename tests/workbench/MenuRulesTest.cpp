#include "WorkbenchTest.h"
#include "widgets/box/BoxCommands.h"

#include "support/TestProgram.h"

#include <QtCore/QSet>

using namespace Qt::StringLiterals;

// The rules for menus of docs/guide/workbench.md.
class MenuRulesTest : public WidgetTest
{
    Q_OBJECT

private:
    static QChar accessKey(const QString &caption)
    {
        return caption.sliced(caption.indexOf(u'&') + 1).front().toUpper();
    }

    static QStringList captions(const QMenu &menu)
    {
        QStringList captions;
        for (const QAction *action : menu.actions()) {
            if (!action->isSeparator())
                captions.append(action->text());
        }
        return captions;
    }

    static void checkAccessKeys(const QStringList &captions)
    {
        QSet<QChar> keys;
        for (const QString &caption : captions) {
            QVERIFY2(caption.count(u'&') == 1, qPrintable(caption));
            QVERIFY2(!keys.contains(accessKey(caption)), qPrintable(caption));
            QVERIFY2(accessKey(caption).isLetter(), qPrintable(caption));
            keys.insert(accessKey(caption));
        }
    }

private Q_SLOTS:
    void everyCommandIsThere()
    {
        const WorkbenchWindow workbench;
        QStringList all;
        for (const QMenu *menu : workbench.menus())
            all.append(menu->title() + u": "_s + captions(*menu).join(u", "_s));
        QCOMPARE(
            all.join(u'\n').remove(u'&'),
            u"File: New Project…, Open Project…, Open Recent, Save, Save As…, Export…, Print…, "
            "Close Project, Quit\n"
            "Edit: Undo, Redo, Restore Typed Text, Cut, Copy, Copy with Colours, Paste, "
            "Find…, Find While Typing, Replace…, Find Next, Find Previous, Next Use, Previous "
            "Use, Select All, Known Words, Lines, Go To Line, Go To Match\n"
            "Program: Analyse, Compile, Export Statements…, Go To Point, Back, All Uses, Find In "
            "Programs…, Add Program…, Rename Program…, Remove Program…, Results\n"
            "Points: Read Values, Rename, Add Point…, Duplicate Point…, Remove Point, Import…, Fit "
            "Columns, Choose From, Edit Cells, Hardware Overrides\n"
            "Controller: Read All, Stop Reading, Read Cyclically, Reading…, Add To Trend, Trend\n"
            "View: Editor, Language, Settings…\n"
            "Window: Next Pane, Previous Pane, Go To Project, Go To Program, Go To Table, Go To "
            "Results, Go To Points, Show Beside, Show Below, All In Tabs, Own Window, Close "
            "Table, Next Tab, Previous Tab\n"
            "Help: Keys, First Steps, About"_s);
    }

    void accessKeysDoNotClash_data()
    {
        QTest::addColumn<QLocale>("language");
        for (const QLocale &language : ORVTListview::Languages::available())
            QTest::addRow("%s", qPrintable(language.name())) << language;
    }

    void accessKeysDoNotClash()
    {
        QFETCH(QLocale, language);
        WorkbenchWindow workbench;
        workbench.speak(language);
        QStringList titles;
        for (const QMenu *menu : workbench.menus()) {
            titles.append(menu->title());
            checkAccessKeys(captions(*menu));
        }
        checkAccessKeys(titles);
    }

    // One word and one key for each command, in the window's menu and in the editor's.
    void theEditorsMenuAgrees_data() { accessKeysDoNotClash_data(); }
    void theEditorsMenuAgrees()
    {
        QFETCH(QLocale, language);
        WorkbenchWindow workbench;
        workbench.speak(language);
        QMenu menu;
        workbench.box().commands().fillMenu(menu);
        const QStringList own = captions(menu);
        QCOMPARE(own.size(), 7);
        checkAccessKeys(own);
        QStringList other = captions(*workbench.menus().at(1));
        other.removeIf([&](const QString &caption) { return !own.contains(caption); });
        QCOMPARE(other, QStringList({own[0], own[1], own[2], own[3], own[4], own[6]}));
    }

    void commandsAreInTitleCase()
    {
        const WorkbenchWindow workbench;
        for (const QMenu *menu : workbench.menus()) {
            for (const QString &caption : captions(*menu)) {
                for (const QString &word : QString(caption).remove(u'&').split(u' '))
                    QVERIFY2(word == u"with"_s || word.front().isUpper(), qPrintable(caption));
            }
        }
    }

    void anEllipsisPromisesADialog()
    {
        const WorkbenchWindow workbench;
        QStringList promising;
        for (const QMenu *menu : workbench.menus()) {
            for (const QString &caption : captions(*menu)) {
                QVERIFY2(!caption.contains(u"..."_s), qPrintable(caption));
                if (caption.contains(u'…'))
                    promising << QString(caption).remove(u'&');
            }
        }
        QCOMPARE(promising,
                 QStringList({u"New Project…"_s, u"Open Project…"_s, u"Save As…"_s, u"Export…"_s,
                              u"Print…"_s, u"Find…"_s, u"Replace…"_s, u"Export Statements…"_s,
                              u"Find In Programs…"_s, u"Add Program…"_s, u"Rename Program…"_s,
                              u"Remove Program…"_s, u"Add Point…"_s, u"Duplicate Point…"_s,
                              u"Import…"_s, u"Reading…"_s, u"Settings…"_s}));
    }

    void keysDoNotClash()
    {
        const WorkbenchWindow workbench;
        QSet<QString> keys;
        for (const QMenu *menu : workbench.menus()) {
            for (const QAction *action : menu->actions()) {
                for (const QKeySequence &sequence : action->shortcuts()) {
                    const QString text = sequence.toString();
                    QVERIFY2(!keys.contains(text), qPrintable(text));
                    keys.insert(text);
                }
            }
        }
        QVERIFY(keys.contains(u"F6"_s));
        QVERIFY(keys.contains(u"Ctrl+F6"_s));
        QVERIFY(keys.contains(u"Ctrl+Space"_s));
        QVERIFY(keys.contains(u"Ctrl+F"_s));
        QVERIFY(keys.contains(u"Ctrl+H"_s));
    }
};

ORVT_TEST(MenuRulesTest)
#include "MenuRulesTest.moc"
