// The task menus of Designer: what is chosen in their dialogs reaches the form in one step.

#include "designer/Designer.h"
#include "support/WidgetTest.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QDir>
#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtGui/QUndoStack>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableWidget>

#include <functional>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString formWith(const QString &type)
{
    return uR"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">
 <widget class="ORVTListview::ORVListView" name="listView">
  <property name="ListviewType"><enum>ORVTListview::%1</enum></property>
 </widget>
 <widget class="ORVTListview::ORVTreeview" name="treeview"/>
</widget></ui>)"_s.arg(type);
}

QPushButton *okOf(const QDialog &dialog)
{
    return dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
}

ORVListView *listOf(const QDesignerFormWindowInterface &form)
{
    return form.findChild<ORVListView *>(u"listView"_s);
}

QColor groundOf(const ORVListView &list)
{
    return list.RTextBox()->palette().color(QPalette::Base);
}

} // namespace

class DesignerTaskMenuTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_designer = std::make_unique<Designer>(); }
    void cleanupTestCase() { m_designer.reset(); }

    void offersWhatTheTypeHas();
    void arrangesColumnsInOneStep();
    void aFormKeepsTheArrangement();
    void showsWhatIsArrangedAlready();
    void givesTheReadyColumnsBack();
    void oneColumnStays();
    void cancellingChangesNothing();
    void choosesAReadySetInOneStep();
    void showsTheSetThatIsChosen();
    void takesColoursAway();
    void keysOnAFormAreDesigners();
    void speaksFourLanguages();

private:
    using Dialog = std::function<void(QDialog &)>;

    QDesignerTaskMenuExtension *menuOf(const QDesignerFormWindowInterface &form)
    {
        return m_designer->taskMenu(listOf(form));
    }

    // Opens the dialog and works it; one that is open still is cancelled.
    void work(const QDesignerFormWindowInterface &form, const Dialog &dialog);

    std::unique_ptr<Designer> m_designer; // the plugin begins with one only
};

void DesignerTaskMenuTest::work(const QDesignerFormWindowInterface &form, const Dialog &dialog)
{
    bool wasOpen = false;
    QTimer::singleShot(0, this, [&] {
        auto *open = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        wasOpen = open;
        if (!open)
            return;
        if (QTest::qWaitForWindowActive(open))
            dialog(*open);
        if (open->isVisible())
            open->reject();
    });
    menuOf(form)->preferredEditAction()->trigger();
    QVERIFY(wasOpen);
}

void DesignerTaskMenuTest::offersWhatTheTypeHas()
{
    const auto form = m_designer->opened(formWith(u"dsInput"_s));
    const auto texts = [&] {
        QStringList all;
        for (const QAction *action : menuOf(*form)->taskActions())
            all << action->text();
        return all;
    };
    QCOMPARE(texts(), QStringList{u"Columns of This Type…"_s});
    Designer::edit(*form, u"listView"_s, u"ListviewType"_s, qint32{dsCode});
    QCOMPARE(texts(), QStringList{u"Colours of the Program…"_s});
    QVERIFY(!m_designer->taskMenu(form->findChild<ORVTreeview *>()));
}

void DesignerTaskMenuTest::arrangesColumnsInOneStep()
{
    const auto form = m_designer->opened(formWith(u"dsConst"_s));
    ORVListView &list = *listOf(*form);
    work(*form, [](const QDialog &dialog) {
        auto *table = dialog.findChild<QTableWidget *>();
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Down); // Label
        QTest::keyClick(table, Qt::Key_Right);
        QTest::keyClick(table, Qt::Key_F2);
        QTest::keyClicks(table->findChild<QSpinBox *>(), u"2880"_s);
        QTest::keyClick(table->findChild<QSpinBox *>(), Qt::Key_Enter);
        QCoreApplication::processEvents(); // the field is closed by then
        QTest::keyClick(table, Qt::Key_Left);
        QTest::keyClick(table, Qt::Key_Down); // Value
        QTest::keyClick(table, Qt::Key_Down); // Units
        QTest::keyClick(table, Qt::Key_Space);
        QTest::keyClick(dialog.windowHandle(), Qt::Key_U, Qt::AltModifier);
        QTRY_COMPARE(table->currentRow(), 2); // a button stays down for a moment
        QTest::mouseClick(okOf(dialog), Qt::LeftButton);
    });
    const QString arranged = u"#:1440;Label:2880;Units:-1440;Value:1440;Description:1440"_s;
    const auto width = [&] { return qRound(list.ColumnHerders()->Item(2)->Width()); };
    for (int time = 0; time < 2; ++time) {
        QCOMPARE(list.columnLayout(), arranged);
        QVERIFY(qAbs(width() - 2880) < 15);
        QVERIFY(form->contents().contains(arranged));
        QCOMPARE(form->commandHistory()->index(), 1);
        form->commandHistory()->undo();
        QCOMPARE(list.columnLayout(), QString());
        QVERIFY(qAbs(width() - 1440) < 15);
        QVERIFY(!form->contents().contains(u"columnLayout"_s));
        form->commandHistory()->redo();
    }
}

void DesignerTaskMenuTest::aFormKeepsTheArrangement()
{
    const auto form = m_designer->opened(formWith(u"dsTimer"_s));
    const QString arranged = u"Value:900;#:1440;Data:-720;Type:1440"_s;
    Designer::edit(*form, u"listView"_s, u"columnLayout"_s, arranged);
    const auto again = m_designer->opened(form->contents());
    QCOMPARE(listOf(*again)->columnLayout(), arranged);
    Designer::edit(*again, u"listView"_s, u"ListviewType"_s, qint32{dsOutput});
    QCOMPARE(listOf(*again)->columnLayout(), QString());
    again->commandHistory()->undo();
    QCOMPARE(listOf(*again)->columnLayout(), arranged);
}

void DesignerTaskMenuTest::showsWhatIsArrangedAlready()
{
    const auto form = m_designer->opened(formWith(u"dsTimer"_s));
    Designer::edit(*form, u"listView"_s, u"columnLayout"_s, u"Value:900;Data:-720"_s);
    QStringList shown;
    QString kept;
    work(*form, [&](const QDialog &dialog) {
        const auto *table = dialog.findChild<QTableWidget *>();
        for (int row = 0; row < table->rowCount(); ++row) {
            const bool isShown = table->item(row, 0)->checkState() == Qt::Checked;
            shown << (isShown ? u"+"_s : u"-"_s) + table->item(row, 0)->text() + u' ' +
                         table->item(row, 1)->text();
        }
        kept = dialog.findChild<QLineEdit *>()->text();
    });
    QCOMPARE(shown, QStringList({u"+Value 900"_s, u"-Data 720"_s, u"+# 1440"_s, u"+Type 1440"_s}));
    QCOMPARE(kept, u"Value:900;Data:-720;#:1440;Type:1440"_s);
}

void DesignerTaskMenuTest::givesTheReadyColumnsBack()
{
    const auto form = m_designer->opened(formWith(u"dsTimer"_s));
    Designer::edit(*form, u"listView"_s, u"columnLayout"_s, u"Value:900;Data:-720"_s);
    work(*form, [](QDialog &dialog) {
        QTest::keyClick(dialog.windowHandle(), Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(dialog.findChild<QTableWidget *>()->item(0, 0)->text(), u"#"_s);
        QTest::keyClick(&dialog, Qt::Key_Enter);
    });
    QCOMPARE(listOf(*form)->columnLayout(), QString());
    QCOMPARE(form->commandHistory()->index(), 2);
    QCOMPARE(form->commandHistory()->undoText(), u"Columns of “Timers”"_s);
}

void DesignerTaskMenuTest::oneColumnStays()
{
    const auto form = m_designer->opened(formWith(u"dsOutputParam"_s));
    QList<bool> canBeTaken;
    work(*form, [&](const QDialog &dialog) {
        auto *table = dialog.findChild<QTableWidget *>();
        table->setFocus();
        for (int row = 0; row < table->rowCount(); ++row) {
            QTest::keyClick(table, Qt::Key_Space);
            QTest::keyClick(table, Qt::Key_Down);
            canBeTaken << okOf(dialog)->isEnabled();
        }
    });
    QCOMPARE(canBeTaken, QList<bool>({true, true, false}));
}

void DesignerTaskMenuTest::cancellingChangesNothing()
{
    for (const QString &type : {u"dsTimer"_s, u"dsCode"_s}) {
        const auto form = m_designer->opened(formWith(type));
        const QString before = form->contents();
        work(*form, [](QDialog &dialog) {
            for (QComboBox *set : dialog.findChildren<QComboBox *>())
                QTest::keyClick(set, Qt::Key_Down);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        work(*form, [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Enter); }); // as it is
        QCOMPARE(form->contents(), before);
        QCOMPARE(form->commandHistory()->count(), 0);
    }
}

void DesignerTaskMenuTest::choosesAReadySetInOneStep()
{
    const auto form = m_designer->opened(formWith(u"dsCode"_s));
    const ORVListView &list = *listOf(*form);
    const QColor plain = groundOf(list);
    work(*form, [](QDialog &dialog) {
        QTest::keyClick(dialog.findChild<QComboBox *>(), Qt::Key_Down); // light
        QTest::keyClick(dialog.findChild<QComboBox *>(), Qt::Key_Down); // dark
        QTest::keyClick(&dialog, Qt::Key_Enter);
    });
    for (int time = 0; time < 2; ++time) {
        QVERIFY2(list.programColours().startsWith(u"BackColor:#1e1f22;"_s),
                 qPrintable(list.programColours()));
        QCOMPARE(groundOf(list), QColor(0x1e, 0x1f, 0x22));
        QCOMPARE(form->commandHistory()->index(), 1);
        form->commandHistory()->undo();
        QCOMPARE(groundOf(list), plain);
        QVERIFY(!form->contents().contains(u"programColours"_s));
        form->commandHistory()->redo();
    }
    const auto again = m_designer->opened(form->contents());
    QCOMPARE(groundOf(*listOf(*again)), QColor(0x1e, 0x1f, 0x22));
}

void DesignerTaskMenuTest::showsTheSetThatIsChosen()
{
    const auto form = m_designer->opened(formWith(u"dsCode"_s));
    QStringList sets;
    for (int step = 0; step < 4; ++step) {
        work(*form, [&](QDialog &dialog) {
            auto *set = dialog.findChild<QComboBox *>();
            sets << set->currentText();
            QTest::keyClick(set, Qt::Key_Down);
            QTest::keyClick(&dialog, Qt::Key_Enter);
        });
    }
    QCOMPARE(sets, QStringList({u"None"_s, u"Light"_s, u"Dark"_s, u"High contrast"_s}));
}

void DesignerTaskMenuTest::takesColoursAway()
{
    const auto form = m_designer->opened(formWith(u"dsCode"_s));
    const QColor plain = groundOf(*listOf(*form));
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_Home}) {
        work(*form, [key](QDialog &dialog) {
            auto *set = dialog.findChild<QComboBox *>();
            QTest::keyClick(set, key);
            if (key == Qt::Key_End)
                QTest::keyClick(set, Qt::Key_Up); // from the own ones to high contrast
            QTest::keyClick(&dialog, Qt::Key_Enter);
        });
        QCOMPARE(groundOf(*listOf(*form)) == plain, key == Qt::Key_Home);
    }
    QCOMPARE(listOf(*form)->programColours(), QString());
}

void DesignerTaskMenuTest::keysOnAFormAreDesigners()
{
    const auto form = m_designer->opened(formWith(u"dsCode"_s));
    RichTextBox &box = *listOf(*form)->RTextBox();
    const auto isTaken = [&box] {
        QKeyEvent undo(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
        undo.ignore();
        QCoreApplication::sendEvent(&box, &undo);
        return undo.isAccepted();
    };
    QVERIFY(!isTaken());
    QTest::keyClicks(&box, u"abc"_s);
    QCOMPARE(box.Text(), QString());
    const std::unique_ptr<ORVListView> shown(listOf(*form)); // as in a preview
    shown->setParent(nullptr);
    QVERIFY(isTaken());
}

void DesignerTaskMenuTest::speaksFourLanguages()
{
    const QString folder = u":/orvtlistview_designer/translations"_s;
    QStringList words;
    for (const QString &file : QDir(folder).entryList()) {
        QTranslator translator;
        QVERIFY(translator.load(folder + u'/' + file));
        words << translator.translate("ColumnsDialog", "Column");
    }
    QCOMPARE(words, QStringList({u"Spalte"_s, u"Columna"_s, u"Colonne"_s}));
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    // Designer looks into the folder "designer" of each.
    QCoreApplication::setLibraryPaths(QCoreApplication::libraryPaths()
                                      << QStringLiteral(ORVT_DESIGNER_FOLDER "/.."));
    DesignerTaskMenuTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DesignerTaskMenuTest.moc"
