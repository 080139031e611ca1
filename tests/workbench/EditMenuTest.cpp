#include "WorkbenchTest.h"

#include "support/TestProgram.h"

#include <QtCore/QMimeData>
#include <QtWidgets/QListView>

using namespace Qt::StringLiterals;

class EditMenuTest : public WidgetTest
{
    Q_OBJECT

private:
    // The commands that can be chosen, once the menu is shown.
    static QString enabled(WorkbenchWindow &workbench)
    {
        QMenu *menu = workbench.menus().at(1);
        Q_EMIT menu->aboutToShow();
        QStringList captions;
        for (const QAction *action : menu->actions()) {
            if (action->isEnabled() && !action->isSeparator())
                captions.append(action->text().remove(u'&'));
        }
        return captions.join(u", "_s);
    }

private Q_SLOTS:
    void offersWhatCanBeDone()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QCOMPARE(
            enabled(workbench),
            u"Restore Typed Text, Find…, Find While Typing, Replace…, Find Next, Find Previous, Next Use, Previous Use, Select All, Known Words, Lines, Go To Line, Go To Match"_s);
        workbench.choose(u"Select All"_s);
        QCOMPARE(workbench.box().SelText(), u"Fan1 = ON"_s);
        QCOMPARE(
            enabled(workbench),
            u"Restore Typed Text, Cut, Copy, Copy with Colours, Find…, Find While Typing, Replace…, Find Next, Find Previous, Next Use, Previous Use, Select All, Known Words, Lines, Go To Line, Go To Match"_s);
        workbench.choose(u"Copy"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"Fan1 = ON"_s);
        QCOMPARE(
            enabled(workbench),
            u"Restore Typed Text, Cut, Copy, Copy with Colours, Paste, Find…, Find While Typing, Replace…, Find Next, Find Previous, Next Use, Previous Use, Select All, Known Words, Lines, Go To Line, Go To Match"_s);
        workbench.choose(u"Cut"_s);
        QCOMPARE(workbench.code().CodeText(), QString());
        QCOMPARE(
            enabled(workbench),
            u"Undo, Restore Typed Text, Paste, Find…, Find While Typing, Replace…, Find Next, Find Previous, Next Use, Previous Use, Select All, Known Words, Lines, Go To Line, Go To Match"_s);
    }

    void commandsHaveTheKeysOfTheWorkbench()
    {
        WorkbenchWindow workbench("one = 1\r\nTWO (x)");
        workbench.key(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(workbench.code().CodeText(), u"TWO (x)\r\none = 1"_s);
        workbench.key(Qt::Key_Up, Qt::AltModifier);
        workbench.key(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(workbench.code().CodeText(), u"one = 1\r\none = 1\r\nTWO (x)"_s);
        workbench.key(Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
        workbench.key(Qt::Key_K, Qt::ControlModifier);
        QCOMPARE(workbench.code().CodeText(), u"REM one = 1\r\nTWO (x)"_s);
        workbench.key(Qt::Key_K, Qt::ControlModifier);
        workbench.key(Qt::Key_J, Qt::ControlModifier);
        QCOMPARE(workbench.code().CodeText(), u"one = 1 TWO (x)"_s);
        workbench.key(Qt::Key_T, Qt::ControlModifier);
        QCOMPARE(workbench.code().CodeText(), u"one = 1 TWO ( x )"_s);
        workbench.key(Qt::Key_A, Qt::ControlModifier);
        workbench.key(Qt::Key_U, Qt::ControlModifier);
        QCOMPARE(workbench.code().CodeText(), u"ONE = 1 TWO ( X )"_s);
        workbench.box().setSelStart(12);
        workbench.key(Qt::Key_B, Qt::ControlModifier);
        QCOMPARE(workbench.box().SelStart(), 16);
    }

    void commandsFollowTheEditor()
    {
        WorkbenchWindow workbench("one = 1");
        const QMenu *lines = workbench.command(u"Lines"_s)->menu();
        QTRY_VERIFY(lines->actions().first()->isEnabled());
        workbench.box().setReadOnly(true);
        QTRY_VERIFY(!lines->actions().first()->isEnabled());
        workbench.box().setReadOnly(false);
        QTRY_VERIFY(lines->actions().first()->isEnabled());
    }

    void copiesWithColours()
    {
        WorkbenchWindow workbench("Fan1 = ON\r\nx");
        workbench.choose(u"Select All"_s);
        QVERIFY(enabled(workbench).contains(u"Copy with Colours"_s));
        workbench.choose(u"Copy with Colours"_s);
        const QMimeData *data = QGuiApplication::clipboard()->mimeData();
        QCOMPARE(data->text(), u"Fan1 = ON\nx"_s);
        QCOMPARE(QString::fromLatin1(data->data(u"text/rtf"_s)), workbench.box().SelRTF());
        QVERIFY2(data->html().contains(u">Fan1 "_s), qPrintable(data->html()));

        workbench.choose(u"Copy"_s); // stays plain
        QVERIFY(!QGuiApplication::clipboard()->mimeData()->hasHtml());
    }

    void pastesInColours()
    {
        WorkbenchWindow workbench("");
        QGuiApplication::clipboard()->setText(u"fan1 = on\nendif"_s);
        QVERIFY(enabled(workbench).contains(u"Paste"_s));
        workbench.choose(u"Paste"_s);
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON\r\nENDIF"_s);
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 2, Col: 6"_s));
    }

    void refusesABackslash()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QGuiApplication::clipboard()->setText(u"a\\b"_s);
        QVERIFY(enabled(workbench).contains(u"Paste"_s));
        workbench.choose(u"Paste"_s);
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON"_s);
        QCOMPARE(messages().size(), 1);
        QCOMPARE(messages().constFirst().title, u"Paste"_s);
    }

    void undoesAndRedoes()
    {
        WorkbenchWindow workbench("");
        workbench.type(u"a b c"_s);
        QVERIFY(enabled(workbench).startsWith(u"Undo, Restore"_s));
        workbench.choose(u"Undo"_s);
        QCOMPARE(workbench.code().CodeText(), u"a b"_s);
        QVERIFY(workbench.statusTexts().endsWith(u"|Row: 1, Col: 4"_s));
        QVERIFY(enabled(workbench).startsWith(u"Undo, Redo, Restore"_s));
        workbench.choose(u"Redo"_s);
        QCOMPARE(workbench.code().CodeText(), u"a b c"_s);
        QVERIFY(enabled(workbench).startsWith(u"Undo, Restore"_s));
    }

    void saysWhenThereIsNothingToRestore()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        const auto told = [&workbench] { return workbench.window.statusBar()->currentMessage(); };
        const QString nothing =
            u"Nothing to restore: Ctrl+Z and Ctrl+Y reach all that was typed."_s;
        workbench.choose(u"Restore Typed Text"_s);
        QCOMPARE(told(), nothing);
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON"_s);
        workbench.box().setSelStart(workbench.box().TextLength());
        workbench.type(u" a b"_s);
        QVERIFY(enabled(workbench).startsWith(u"Undo"_s));
        workbench.choose(u"Undo"_s);
        workbench.type(u"c "_s); // Redo ends here
        workbench.window.statusBar()->clearMessage();
        workbench.choose(u"Restore Typed Text"_s);
        QCOMPARE(told(), QString());
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON a b"_s);
        while (told().isEmpty())
            workbench.choose(u"Restore Typed Text"_s);
        QCOMPARE(told(), u"There is no older typed text. The next time the latest comes again."_s);
        workbench.choose(u"Restore Typed Text"_s); // begins anew
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON ac "_s);
    }

    // As by the keys.
    void cuttingCanBeUndone()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.choose(u"Select All"_s);
        QVERIFY(enabled(workbench).contains(u"Cut"_s));
        workbench.choose(u"Cut"_s);
        QCOMPARE(workbench.code().CodeText(), QString());
        QVERIFY(enabled(workbench).startsWith(u"Undo"_s));
        workbench.choose(u"Undo"_s);
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON"_s);
    }

    void pastingCanBeUndone()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QGuiApplication::clipboard()->setText(u"endif"_s);
        workbench.choose(u"Select All"_s);
        QVERIFY(enabled(workbench).contains(u"Paste"_s));
        workbench.choose(u"Paste"_s);
        QCOMPARE(workbench.code().CodeText(), u"ENDIF"_s);
        workbench.choose(u"Undo"_s);
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = ON"_s);
    }

    // Without the menu being opened.
    void undoIsOfferedAsSoonAsAPasteHasItsSnapshot()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        QGuiApplication::clipboard()->setText(u"x"_s);
        QVERIFY(!workbench.command(u"Undo"_s)->isEnabled());
        workbench.key(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(workbench.command(u"Undo"_s)->isEnabled());
    }

    // The editor acts on its keys itself, and only once.
    void keysActOnce()
    {
        WorkbenchWindow workbench("");
        QGuiApplication::clipboard()->setText(u"ab "_s);
        QVERIFY(enabled(workbench).contains(u"Paste"_s));
        workbench.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(workbench.code().CodeText(), u"ab "_s);
    }

    void keysAreNotTheEditorsElsewhere()
    {
        WorkbenchWindow workbench("");
        workbench.type(u"a b c"_s);
        workbench.key(Qt::Key_F6);
        workbench.results().setFocus();
        QGuiApplication::clipboard()->setText(u"x"_s);
        Q_EMIT workbench.menus().at(1)->aboutToShow();
        QTest::keyClick(&workbench.results(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(workbench.code().CodeText(), u"a b c"_s);
    }

    void findsBesideTheWindow_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QString>("title");
        QTest::newRow("Find") << Qt::Key_F << u"Find"_s;
        QTest::newRow("Replace") << Qt::Key_H << u"Replace"_s;
    }
    void findsBesideTheWindow()
    {
        QFETCH(const Qt::Key, key);
        QFETCH(const QString, title);
        WorkbenchWindow workbench("Fan1 = Fan1");
        workbench.key(key, Qt::ControlModifier);
        QWidget *dialog = nullptr;
        QTRY_VERIFY((dialog = QApplication::activeWindow()) != &workbench.window && dialog);
        QCOMPARE(dialog->windowTitle(), title);
        QCOMPARE(workbench.code().CodeText(), u"Fan1 = Fan1"_s); // the key did nothing else
        QTest::keyClicks(QApplication::focusWidget(), u"fan1"_s);
        QTest::keyClick(dialog, Qt::Key_Return);
        QCOMPARE(workbench.box().SelText(), u"Fan1"_s);
        QCOMPARE(workbench.box().SelStart(), 7);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
    }

    void showsTheKnownWords()
    {
        WorkbenchWindow workbench("Fan1 = ");
        workbench.key(Qt::Key_End);
        workbench.choose(u"Known Words"_s);
        const auto *list = workbench.code().findChild<QListView *>(u"WordMatches"_s);
        QVERIFY(list);
        QVERIFY(list->isVisible());
        workbench.choose(u"Known Words"_s);
        QVERIFY(!list->isVisible());
    }
};

ORVT_TEST(EditMenuTest)
#include "EditMenuTest.moc"
