// A point is renamed, added and removed everywhere in the project, as one step.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "workbench/renaming/NewPointDialog.h"
#include "workbench/renaming/RenameDialog.h"

#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Named : WorkbenchWindow
{
    Named()
    {
        writeFile(folder.filePath(u"p.prog"_s), program);
        writeFile(folder.filePath(u"p.json"_s), json);
        window.openProject(folder.filePath(u"p.json"_s));
    }

    ReportList &list() { return *shown().findChild<ReportList *>(u"ListView1"_s); }

    void rename(const QString &name, qint32 row = 1)
    {
        window.showType(dsInput);
        shown().setSelectedItem(shown().ListItems()->Item(row));
        list().setFocus();
        QTest::keyClick(&list(), Qt::Key_F2);
        auto *field = list().viewport()->findChild<QLineEdit *>();
        QVERIFY(field);
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
        QTest::qWait(0);
    }
    QByteArray savedJson()
    {
        choose(u"Save"_s);
        return readFile(folder.filePath(u"p.json"_s));
    }

    static inline const QByteArray program =
        "if temp1 > 3\nREM Temp1 is warm\nFan1 = Temp10\nENDIF";
    static inline const QByteArray json = R"({"format": 1, "name": "p", "program": "p.prog",
 "inputs": [{"name": "Temp1",  "description": "Temp1"}, {"name": "Temp2"}],
 "outputs": [{"name": "Fan1"}],
 "variables": [{"name": "Temp10"}],
 "controllers": [{"input": "Temp1", "setpoint": "Temp2"}],
 "logs": [{"data": "temp1"}, {"data": "Fan1"}],
 "networkOutputs": [{"name": "N", "dataSource": "Temp1"}]})";
};

QPushButton &addButton(const NewPointDialog &dialog)
{
    for (QAbstractButton *button : dialog.findChild<QDialogButtonBox *>()->buttons()) {
        if (auto *add = qobject_cast<QPushButton *>(button); add && add->isDefault())
            return *add;
    }
    qFatal("the dialog has no button that adds");
}

} // namespace

class RenamingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPlaceIsListedAndRenamed()
    {
        Named named;
        QStringList places;
        NextDialog<RenameDialog> dialog([&places](RenameDialog &asked) {
            auto *tree = asked.findChild<QTreeWidget *>();
            for (int i = 0; i < tree->topLevelItemCount(); ++i)
                places.append(tree->topLevelItem(i)->text(0));
            asked.accept();
        });
        named.rename(u"Room"_s);
        QTRY_VERIFY(dialog.wasThere());
        QCOMPARE(places.join(u"; "_s), u"Program, line 1; Program, line 2; Controllers 1, Input; "
                                       "Logs 1, Data; Network Var Outputs 1, Data Source"_s);
        QTRY_COMPARE(named.code().CodeText(),
                     u"IF Room > 3\r\nREM Room is warm\r\nFan1 = Temp10\r\nENDIF"_s);
        QByteArray expected = Named::json;
        expected.replace(R"("Temp1",  "desc)", R"("Room",  "desc)")
            .replace(R"("input": "Temp1")", R"("input": "Room")")
            .replace("temp1", "Room")
            .replace(R"("dataSource": "Temp1")", R"("dataSource": "Room")");
        QCOMPARE(named.savedJson(), expected);
        QCOMPARE(named.saved(u"p"_s), "IF Room > 3\nREM Room is warm\nFan1 = Temp10\nENDIF");
    }

    void placesWithoutATickStay()
    {
        Named named;
        NextDialog<RenameDialog> dialog([](RenameDialog &asked) {
            auto *tree = asked.findChild<QTreeWidget *>();
            for (const int i : {1, 2})
                tree->topLevelItem(i)->setCheckState(0, Qt::Unchecked);
            asked.accept();
        });
        named.rename(u"Room"_s);
        QTRY_VERIFY(dialog.wasThere());
        QTRY_VERIFY(named.code().CodeText().startsWith(u"IF Room > 3\r\nREM Temp1 is warm"_s));
        const QByteArray saved = named.savedJson();
        QVERIFY(saved.contains(R"("input": "Temp1")") && saved.contains(R"("data": "Room")"));
    }

    void theCaretStaysWhereItWas()
    {
        Named named;
        RichTextBox &box = named.box();
        box.setSelStart(box.lineStart(1) + 10); // the "is" behind a name that becomes shorter
        box.setSelLength(2);
        QCOMPARE(box.SelText(), u"is"_s);
        NextDialog<RenameDialog> dialog([](RenameDialog &asked) { asked.accept(); });
        named.rename(u"T"_s);
        QTRY_VERIFY(dialog.wasThere());
        QTRY_VERIFY(named.code().CodeText().startsWith(u"IF T > 3\r\nREM T is warm"_s));
        QCOMPARE(box.SelText(), u"is"_s);
        QCOMPARE(box.SelStart(), box.lineStart(1) + 6);
    }

    void cancellingChangesNothing()
    {
        Named named;
        NextDialog<RenameDialog> dialog([](RenameDialog &asked) { asked.reject(); });
        named.rename(u"Room"_s);
        QTRY_VERIFY(dialog.wasThere());
        QTest::qWait(0);
        QVERIFY(!named.window.isWindowModified());
        QCOMPARE(named.shown().ListItems()->Item(1)->SubItem(1), u"Temp1"_s);
    }

    void itIsOneStepThatCanBeUndone_data()
    {
        QTest::addColumn<bool>("typesBefore");
        QTest::newRow("at once") << false;
        QTest::newRow("after typing") << true;
    }
    void itIsOneStepThatCanBeUndone()
    {
        QFETCH(bool, typesBefore);
        Named named;
        if (typesBefore)
            named.type(u"a b "_s);
        const QString before = named.code().CodeText();
        NextDialog<RenameDialog> dialog([](RenameDialog &asked) { asked.accept(); });
        named.rename(u"Room"_s);
        QTRY_VERIFY(dialog.wasThere());
        QTRY_VERIFY(named.code().CodeText().contains(u"Room"_s));
        const QString after = named.code().CodeText();
        named.window.showType(dsCode);
        named.box().setFocus();
        for (int round = 0; round < 3; ++round) {
            named.key(Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(named.code().CodeText(), before);
            QCOMPARE(named.window.isWindowModified(), typesBefore);
            named.key(Qt::Key_Y, Qt::ControlModifier);
            QCOMPARE(named.code().CodeText(), after);
            QVERIFY(named.window.isWindowModified());
        }
        named.choose(u"Undo"_s);
        QCOMPARE(named.code().CodeText(), before);
        QCOMPARE(named.savedJson(), Named::json);
    }

    void whatWasTypedAfterwardsIsUndoneFirst()
    {
        Named named;
        NextDialog<RenameDialog> dialog([](RenameDialog &asked) { asked.accept(); });
        named.rename(u"Room"_s);
        QTRY_VERIFY(named.code().CodeText().contains(u"Room"_s));
        named.window.showType(dsCode);
        named.box().setFocus();
        named.box().setSelStart(0);
        named.type(u"a b "_s);
        int undone = 0;
        while (named.code().CodeText().contains(u"Room"_s) && undone < 10) {
            named.key(Qt::Key_Z, Qt::ControlModifier);
            ++undone;
        }
        QVERIFY(undone > 1);
        QVERIFY(!named.window.isWindowModified());
    }

    void namesAreCheckedByOneRule_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : {u"IF"_s, u"12"_s, u"Return Temp"_s, u"a(b"_s, u"fan1"_s,
                                    u"TEMP2"_s, u"rem"_s, u"endif"_s, u"and"_s, u"1e3"_s})
            QTest::addRow("%s", qPrintable(name)) << name;
    }
    void namesAreCheckedByOneRule()
    {
        QFETCH(QString, name);
        Named named;
        NextMessage refused(QMessageBox::Ok);
        named.rename(name);
        QTRY_VERIFY(refused.wasThere());
        QVERIFY2(refused.text().contains(name), qPrintable(refused.text()));
        QLineEdit *field = nullptr;
        QTRY_VERIFY((field = named.list().viewport()->findChild<QLineEdit *>()));
        QCOMPARE(field->text(), name);
        QVERIFY(!named.window.isWindowModified());

        bool canBeAdded = true;
        QString reason;
        NextDialog<NewPointDialog> dialog([&](NewPointDialog &asked) {
            QTest::keyClicks(asked.findChild<QLineEdit *>(), name);
            canBeAdded = addButton(asked).isEnabled();
            for (const QLabel *label : asked.findChildren<QLabel *>())
                reason += label->text();
            QTest::keyClick(&asked, Qt::Key_Return); // which closes nothing
            QVERIFY(asked.isVisible());
            asked.reject();
        });
        named.choose(u"Add Point…"_s);
        QVERIFY(dialog.wasThere());
        QVERIFY(!canBeAdded);
        QVERIFY2(reason.contains(name), qPrintable(reason));
        QVERIFY(!named.window.isWindowModified());
    }

    void pointsComeAndGo()
    {
        Named named;
        named.window.showType(dsInput);
        NextDialog<NewPointDialog> name([](NewPointDialog &dialog) {
            QTest::keyClicks(dialog.findChild<QLineEdit *>(), u"New"_s);
            addButton(dialog).click();
        });
        named.choose(u"Add Point…"_s);
        QVERIFY(name.wasThere());
        QCOMPARE(named.shown().ListItems()->Item(3)->SubItem(1), u"New"_s);
        QCOMPARE(named.shown().SelectedItem(), named.shown().ListItems()->Item(3));
        QVERIFY(named.savedJson().contains(R"({"name": "Temp2"}, { "name": "New" }])"));

        named.shown().setSelectedItem(named.shown().ListItems()->Item(1));
        NextMessage used(QMessageBox::Yes);
        named.choose(u"Remove Point"_s);
        QVERIFY(used.wasThere());
        QVERIFY2(used.text().contains(u"Program, line 1"_s), qPrintable(used.text()));
        QCOMPARE(named.shown().ListItems()->Item(1)->SubItem(1), u"Temp2"_s);
        QCOMPARE(named.shown().ListItems()->Item(3)->SubItem(1), QString());
        named.choose(u"Undo"_s);
        QCOMPARE(named.shown().ListItems()->Item(1)->SubItem(1), u"Temp1"_s);
        named.list().setFocus();
        QTest::keyClick(&named.list(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(named.shown().ListItems()->Item(3)->SubItem(1), QString());
        QCOMPARE(named.savedJson(), Named::json);
    }

    void anEmptyRowIsNamedAndIsAPoint()
    {
        Named named;
        named.rename(u"SupplyTemperatureOfTheNorthWing"_s, 6);
        QTRY_COMPARE(named.shown().ListItems()->Item(3)->SubItem(1),
                     u"SupplyTemperatureOfTheNorthWing"_s);
        QCOMPARE(named.shown().SelectedItem(), named.shown().ListItems()->Item(3));
        const int room = named.list().columnWidth(1);
        const QFontMetrics metrics(named.list().font());
        QVERIFY(room > metrics.horizontalAdvance(u"SupplyTemperatureOfTheNorthWing"_s));
        named.choose(u"Undo"_s);
        QCOMPARE(named.shown().ListItems()->Item(3)->SubItem(1), QString());
        QCOMPARE(named.list().columnWidth(1), room);
        QCOMPARE(named.savedJson(), Named::json);
    }

    void anEmptyRowTakesNoNameThatCannotBe()
    {
        Named named;
        NextMessage refused(QMessageBox::Ok);
        named.rename(u"Temp2"_s, 6);
        QTRY_VERIFY(refused.wasThere());
        QLineEdit *field = nullptr;
        QTRY_VERIFY((field = named.list().viewport()->findChild<QLineEdit *>()));
        QCOMPARE(field->text(), u"Temp2"_s);
        QTest::keyClick(field, Qt::Key_Escape);
        QVERIFY(!named.window.isWindowModified());
    }

    void anUnknownWordOfTheProgramBecomesAPoint()
    {
        Named named;
        named.code().setCodeText(u"Unheard = 1"_s);
        named.box().setSelStart(3);
        NextDialog<NewPointDialog> dialog([](NewPointDialog &asked) {
            QCOMPARE(asked.findChild<QLineEdit *>()->text(), u"Unheard"_s);
            auto *table = asked.findChild<QComboBox *>();
            QCOMPARE(table->count(), 5);
            QCOMPARE(asked.type(), dsVariable);
            table->setCurrentIndex(table->findText(u"Outputs"_s));
            addButton(asked).click();
        });
        named.choose(u"Add Point…"_s);
        QVERIFY(dialog.wasThere());
        QCOMPARE(named.shown().CurrentType(), dsCode); // where the user writes
        const QByteArray saved = named.savedJson();
        QVERIFY2(saved.contains(R"({"name": "Fan1"},{ "name": "Unheard" }])"), saved.constData());
        named.box().setSelStart(3);
        NextDialog<NewPointDialog> known([](NewPointDialog &asked) {
            QCOMPARE(asked.findChild<QLineEdit *>()->text(), QString());
            asked.reject();
        });
        named.choose(u"Add Point…"_s);
        QVERIFY(known.wasThere());
    }
};

ORVT_TEST(RenamingTest)
#include "RenamingTest.moc"
