// The programs of a project as nodes of its tree: shown, entered, renamed, moved and removed
// from there.

#include "TwoPrograms.h"

#include "support/TestProgram.h"
#include "workbench/views/ProgramNodes.h"
#include "workbench/views/ViewDock.h"

#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/ORVTreeview.h>

#include <QtWidgets/QLineEdit>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct ProgramTree : TwoPrograms
{
    ORVTreeview &tree() { return views().tree(); }
    QTreeView &nodes() { return *tree().findChild<QTreeView *>(); }
    ProgramNodes &programNodes() { return views().programNodes(); }

    QStringList shownNodes()
    {
        QStringList texts;
        for (const Node *node = tree().Nodes()->Item(u"Code"_s)->Child(); node; node = node->Next())
            texts.append(node->Text());
        return texts;
    }

    QRect placeOf(qint32 program)
    {
        const QAbstractItemModel &model = *nodes().model();
        const QModelIndexList found =
            model.match(model.index(0, 0), Qt::DisplayRole, programNodes().nodeOf(program)->Text(),
                        1, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? QRect() : nodes().visualRect(found.constFirst());
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&nodes(), key, modifiers);
        QCoreApplication::processEvents();
    }

    void select(qint32 program)
    {
        QTest::mouseClick(nodes().viewport(), Qt::LeftButton, {}, placeOf(program).center());
    }

    QMenu *openMenu()
    {
        Q_EMIT tree().customContextMenuRequested(QPoint(10, 10));
        for (QMenu *menu : views().findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (menu->isVisible())
                return menu;
        }
        return nullptr;
    }
};

} // namespace

class ProgramTreeTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void onlySeveralAreNodes()
    {
        ProgramTree two;
        QCOMPARE(two.shownNodes(), QStringList({u"a.prog"_s, u"Night"_s}));
        two.window.openProject(two.writeProject(u"one"_s, {}));
        QCOMPARE(two.shownNodes(), QStringList());
        two.window.openProject(two.project());
        QCOMPARE(two.shownNodes().size(), 2);
        two.window.closeProject();
        QCOMPARE(two.shownNodes(), QStringList());
    }

    void aClickShowsTheProgramAndTheTreeFollows()
    {
        ProgramTree two;
        two.select(2);
        QCOMPARE(two.programs().current(), 2);
        QVERIFY(two.programs().dock(2).isVisible());
        QVERIFY(two.nodes().hasFocus());
        two.views().enterProgram(1);
        QCOMPARE(ProgramNodes::programOf(two.tree().SelectedItem()), 1);
        two.nodes().setFocus();
        two.press(Qt::Key_Down);
        QCOMPARE(two.programs().current(), 2);
        two.press(Qt::Key_Return);
        QTRY_VERIFY(two.programs().view(2).RTextBox()->hasFocus());
    }

    // Who folds the programs is not made to see them again.
    void foldedProgramsStayFolded()
    {
        ProgramTree two;
        Node *category = two.tree().Nodes()->Item(u"Code"_s);
        category->setExpanded(false);
        two.views().enterProgram(2);
        QVERIFY(!category->Expanded());
        QCOMPARE(two.tree().SelectedItem(), category);
    }

    void aNameIsEditedInTheTree()
    {
        ProgramTree two;
        two.select(2);
        two.press(Qt::Key_F2);
        auto *field = two.nodes().viewport()->findChild<QLineEdit *>();
        QVERIFY(field);
        field->setText(u"Day"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(two.names(), QStringList({u"a.prog"_s, u"Day"_s}));
        QCOMPARE(two.shownNodes(), QStringList({u"a.prog"_s, u"Day"_s}));
        QCOMPARE(two.programs().dock(2).windowTitle(), u"Day"_s);
        two.undo(2);
        QCOMPARE(two.shownNodes(), QStringList({u"a.prog"_s, u"Night"_s}));
    }

    void aNameThatIsNoneStaysForCorrection()
    {
        ProgramTree two;
        QString typed;
        QString said;
        NextDialog<QInputDialog> dialog([&](QInputDialog &asked) {
            typed = asked.textValue();
            said = asked.labelText();
            asked.setTextValue(u"Evening"_s);
            asked.accept();
        });
        Q_EMIT two.programNodes().renameWanted(2, u"A.PROG"_s);
        QVERIFY(dialog.wasThere());
        QCOMPARE(typed, u"A.PROG"_s);
        QVERIFY2(said.startsWith(u"Another program"_s), qPrintable(said));
        QCOMPARE(two.names(), QStringList({u"a.prog"_s, u"Evening"_s}));
    }

    void keysChangeTheOrderAsAStep()
    {
        ProgramTree two;
        two.select(2);
        two.press(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(two.names(), QStringList({u"Night"_s, u"a.prog"_s}));
        QCOMPARE(two.shownNodes(), two.names());
        QCOMPARE(ProgramNodes::programOf(two.tree().SelectedItem()), 2);
        two.press(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier); // it is the first
        QCOMPARE(two.names(), QStringList({u"Night"_s, u"a.prog"_s}));
        two.choose(u"Save"_s);
        QVERIFY(two.bytes(u"two.json"_s).indexOf("b.prog") <
                two.bytes(u"two.json"_s).indexOf("a.prog"));
        two.undo(2);
        QCOMPARE(two.names(), QStringList({u"a.prog"_s, u"Night"_s}));
        QVERIFY(two.window.isWindowModified());
    }

    void deleteRemovesAfterAQuestion()
    {
        ProgramTree two;
        two.select(2);
        {
            const NextMessage question(QMessageBox::No);
            two.press(Qt::Key_Delete);
            QTRY_VERIFY(question.wasThere());
            QVERIFY(question.text().contains(u"Night"_s));
        }
        QCOMPARE(two.shownNodes().size(), 2);
        const NextMessage question(QMessageBox::Yes);
        two.press(Qt::Key_Delete);
        QTRY_VERIFY(question.wasThere());
        QCOMPARE(two.names(), QStringList(u"a.prog"_s));
        QCOMPARE(two.shownNodes(), QStringList());
        two.undo(1);
        QCOMPARE(two.shownNodes(), QStringList({u"a.prog"_s, u"Night"_s}));
    }

    void theMenuIsForTheNode()
    {
        ProgramTree two;
        two.select(2);
        const QMenu *menu = two.openMenu();
        QVERIFY(menu);
        QStringList possible;
        for (const QAction *action : menu->actions()) {
            if (action->isEnabled() && !action->isSeparator())
                possible.append(action->text().remove(u'&'));
        }
        QCOMPARE(possible,
                 QStringList({u"Open"_s, u"Show Beside"_s, u"Show Below"_s, u"Add Program…"_s,
                              u"Rename Program…"_s, u"Remove Program…"_s, u"Move Up"_s}));
        for (QAction *action : menu->actions()) {
            if (action->text().remove(u'&') == u"Move Up"_s)
                action->trigger();
        }
        QCOMPARE(two.names(), QStringList({u"Night"_s, u"a.prog"_s}));
    }

    // Which the tree has of its own, so that none may clash.
    void accessKeysDoNotClash()
    {
        ProgramTree two;
        for (const QLocale &language : Languages::available()) {
            two.speak(language);
            two.select(2);
            QMenu *menu = two.openMenu();
            QString keys;
            for (const QAction *action : menu->actions()) {
                const qsizetype mark = action->text().indexOf(u'&');
                const QString key = action->text().mid(mark + 1, 1).toUpper();
                QVERIFY2(action->isSeparator() || (mark >= 0 && !keys.contains(key)),
                         qPrintable(language.name() + u": "_s + action->text()));
                keys += action->isSeparator() ? QString() : key;
            }
            menu->close();
        }
    }

    void tablesKeepTheNamesOfTheirTypes()
    {
        ProgramTree two;
        two.tree().setSelectedItem(two.tree().Nodes()->Item(u"Inputs"_s));
        two.nodes().setFocus();
        two.press(Qt::Key_F2);
        QVERIFY(!two.nodes().findChild<QLineEdit *>());
        two.select(2);
        two.press(Qt::Key_F2);
        QVERIFY(two.nodes().findChild<QLineEdit *>());
    }
};

ORVT_TEST(ProgramTreeTest)
#include "ProgramTreeTest.moc"
