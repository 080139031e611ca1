#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "workbench/help/KeyList.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QAccessible>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

using namespace Qt::StringLiterals;
using namespace ORVTListview;

class HelpTest : public WidgetTest
{
    Q_OBJECT

private:
    // What is shown, a line each: "command: keys".
    static QStringList shown(const KeyList &list)
    {
        QStringList lines;
        const auto *keys = list.findChild<QTreeWidget *>();
        for (QTreeWidgetItemIterator item(const_cast<QTreeWidget *>(keys),
                                          QTreeWidgetItemIterator::NotHidden);
             *item; ++item) {
            if ((*item)->parent() && !(*item)->parent()->isHidden())
                lines.append((*item)->text(0) + u" = "_s + (*item)->text(1));
        }
        return lines;
    }

    static void collect(const QMenu &menu, QStringList &keys)
    {
        for (const QAction *action : menu.actions()) {
            if (const auto *below = action->menu<QMenu *>())
                collect(*below, keys);
            else if (!action->shortcuts().isEmpty())
                keys.append(
                    QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText));
        }
    }

private Q_SLOTS:
    void everyKeyOfTheMenusIsListed()
    {
        const WorkbenchWindow workbench;
        QStringList keys;
        for (const QMenu *menu : workbench.menus())
            collect(*menu, keys);
        QStringList listed;
        for (const QString &line : shown(KeyList(*workbench.window.menuBar(), nullptr)))
            listed.append(line.section(u" = "_s, 1));
        QCOMPARE(listed.first(keys.size()), keys);
        QVERIFY(keys.size() > 30);
    }

    void keysThatTheViewsHaveAreListedBehindThem()
    {
        const WorkbenchWindow workbench;
        const KeyList list(*workbench.window.menuBar(), nullptr);
        const QStringList lines = shown(list);
        for (const QString &line : {u"Indent the selected lines = Tab"_s,
                                    u"Fill the cells from the topmost one = Ctrl+D"_s,
                                    u"Move the program up = Alt+Shift+Up"_s,
                                    u"Menu of what has the focus = Shift+F10; Menu"_s})
            QVERIFY2(lines.contains(line), qPrintable(line));
        list.findChild<QLineEdit *>()->setText(u"f10"_s);
        QCOMPARE(shown(list), QStringList(u"Menu of what has the focus = Shift+F10; Menu"_s));
    }

    void theButtonThatEmptiesTheFieldHasAName()
    {
        const WorkbenchWindow workbench;
        const KeyList list(*workbench.window.menuBar(), nullptr);
        auto *field = list.findChild<QLineEdit *>();
        field->setText(u"f"_s);
        const auto *button = field->findChild<QToolButton *>();
        QVERIFY(button);
        const QAccessibleInterface *access =
            QAccessible::queryAccessibleInterface(const_cast<QToolButton *>(button));
        QCOMPARE(access->text(QAccessible::Name), u"Empty the field"_s);
    }

    void anyPartFindsACommandOrAKey()
    {
        const WorkbenchWindow workbench;
        const KeyList list(*workbench.window.menuBar(), nullptr);
        auto *part = list.findChild<QLineEdit *>();
        QTest::keyClicks(part, u"DUPLIC"_s);
        QCOMPARE(shown(list), QStringList(u"Lines: Duplicate = Ctrl+D"_s));
        part->setText(u"ctrl+d"_s);
        QCOMPARE(shown(list),
                 QStringList({u"Lines: Duplicate = Ctrl+D"_s, u"Remove Point = Ctrl+Del"_s,
                              u"Fill the cells from the topmost one = Ctrl+D"_s}));
        part->setText(u"nothing has this"_s);
        QCOMPARE(shown(list), QStringList());
        part->clear();
        QVERIFY(shown(list).size() > 30);
    }

    void theListOpensByItsKeyInTheLanguageOfTheWindow()
    {
        WorkbenchWindow workbench;
        workbench.speak(QLocale::German);
        QString title;
        NextDialog<KeyList> dialog([&](KeyList &list) {
            title = list.windowTitle();
            list.reject();
        });
        workbench.choose(u"Tasten"_s);
        QVERIFY(dialog.wasThere());
        QCOMPARE(title, u"Tasten"_s);
    }

    void aboutTellsTheVersion()
    {
        WorkbenchWindow workbench;
        QString text;
        NextDialog<QMessageBox> dialog([&](QMessageBox &box) {
            text = box.text();
            box.reject();
        });
        workbench.choose(u"About"_s);
        QVERIFY(dialog.wasThere());
        QVERIFY2(text.contains(QRegularExpression(u"\\d+\\.\\d+\\.\\d+"_s)), qPrintable(text));
    }
};

ORVT_TEST(HelpTest)

#include "HelpTest.moc"
