// How labels come to be edited in a list, and when not.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/list/ReportListEvents.h"
#include "widgets/list/ReportListFixture.h"

#include <QtWidgets/QLineEdit>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ReportListLabelStartTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setDoubleClickInterval(100); }
    void editsTheLabelOfTheSelectedRow();
    void startsWithF2();
    void startsWithF2InTheRowWithTheFocus();
    void startsWithF2InWhatIsSelected();
    void editsTheLabelsOfAnotherColumn();
    void startsWithASlowSecondClick();
    void doesNotStartWithOtherClicks_data();
    void doesNotStartWithOtherClicks();
    void canBeSwitchedOffForUsers();
    void isNotOpenedByThePressThatClosedIt();
    void keepsLongLabels();
    void doesNothingWithoutASelectedRow();
    void doesNotStartWithinItsOwnAnnouncement();
};

void ReportListLabelStartTest::editsTheLabelOfTheSelectedRow()
{
    const ShownList shown(100);
    shown->setSelectedItem(shown.item(60));
    ListEvents events(shown.list);
    shown->StartLabelEdit();
    QCOMPARE(events.take(), u"BeforeLabelEdit"_s);
    QVERIFY(shown.showsLabelEditor());
    QCOMPARE(shown.labelEditor()->text(), u"Text 60"_s);
    QVERIFY(shown->visualRect(shown->model()->index(59, 0)).isValid()); // scrolled to
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    QTest::keyClick(shown.labelEditor(), Qt::Key_Return);
    QTRY_COMPARE(shown.item(60)->Text(), u"new"_s);
    QCOMPARE(events.take(), u"AfterLabelEdit new"_s); // the editor's keys are its own
    QVERIFY(shown->hasFocus());
}

void ReportListLabelStartTest::startsWithF2()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    shown.key(Qt::Key_F2);
    QVERIFY(shown.showsLabelEditor());
}

// One that was come to by keyboard, or with Ctrl, is not selected.
void ReportListLabelStartTest::startsWithF2InTheRowWithTheFocus()
{
    const ShownList shown;
    shown.list->setFocus();
    shown->setSelectedItem(nullptr);
    shown->setCurrentIndex(shown->model()->index(2, 0));
    shown->setSelectedItem(nullptr);
    QVERIFY(!shown->SelectedItem());
    QCOMPARE(shown->currentIndex().row(), 2);
    shown.key(Qt::Key_F2);
    QVERIFY(shown.showsLabelEditor());
    QCOMPARE(shown->SelectedItem(), shown.item(3));
    QCOMPARE(shown.labelEditor()->text(), shown.item(3)->Text());
}

void ReportListLabelStartTest::startsWithF2InWhatIsSelected()
{
    const ShownList shown;
    shown->setMultiSelect(true);
    shown->setSelectedItem(shown.item(1));
    shown->setFocus();
    shown.key(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(shown->currentIndex().row(), 1);
    shown.key(Qt::Key_F2);
    QCOMPARE(shown.labelEditor()->text(), shown.item(1)->Text());
    QVERIFY(shown.item(1)->Selected());
    QVERIFY(!shown.item(2)->Selected());
}

void ReportListLabelStartTest::editsTheLabelsOfAnotherColumn()
{
    const ShownList shown;
    shown->setLabelColumn(2);
    shown.item(2)->setSubItem(2, u"old"_s);
    shown->setSelectedItem(shown.item(2));
    shown.key(Qt::Key_F2);
    QVERIFY(shown.showsLabelEditor());
    QCOMPARE(shown.labelEditor()->text(), u"old"_s);
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    QTest::keyClick(shown.labelEditor(), Qt::Key_Return);
    QTRY_COMPARE(shown.item(2)->SubItem(2), u"new"_s);
    QCOMPARE(shown.item(2)->Text(), u"Text 2"_s);

    QTRY_VERIFY(!shown.showsLabelEditor());
    shown.click(shown.cell(2, 3));
    QTest::qWait(ShownList::betweenClicks());
    shown.click(shown.cell(2, 3));
    QTRY_VERIFY(shown.showsLabelEditor());

    shown->setLabelColumn(99);
    QCOMPARE(shown->labelColumn(), qint16(0)); // there is none
    QCOMPARE(errorOf([&] { shown->setLabelColumn(-1); }), qint32{SubscriptOutOfRange});
}

void ReportListLabelStartTest::startsWithASlowSecondClick()
{
    const ShownList shown;
    shown.click(shown.cell(2));
    QTest::qWait(ShownList::betweenClicks());
    QVERIFY(!shown.showsLabelEditor()); // the first click only selects
    shown.click(shown.cell(2));
    QVERIFY(!shown.showsLabelEditor()); // it may become a double click
    QTRY_VERIFY(shown.showsLabelEditor());
}

void ReportListLabelStartTest::doesNotStartWithOtherClicks_data()
{
    QTest::addColumn<QString>("kind");
    for (const QString &kind :
         {u"another row"_s, u"another column"_s, u"double"_s, u"right"_s, u"shift"_s, u"key"_s,
          u"scroll"_s, u"focus"_s, u"leaving"_s, u"several"_s, u"moved"_s})
        QTest::addRow("%s", qPrintable(kind)) << kind;
}

void ReportListLabelStartTest::doesNotStartWithOtherClicks()
{
    QFETCH(QString, kind);
    ShownList shown(100);
    QLineEdit other(&shown.form);
    other.setGeometry(0, 0, 50, 18);
    other.show();
    shown->setMultiSelect(kind == u"several"_s);
    shown.click(shown.cell(2));
    ListEvents events(shown.list);
    if (kind == u"focus"_s)
        other.setFocus();
    if (kind == u"several"_s)
        shown.item(4)->setSelected(true);
    if (kind == u"another row"_s)
        shown.click(shown.cell(3));
    else if (kind == u"another column"_s)
        shown.click(shown.cell(2, 2));
    else if (kind == u"double"_s)
        shown.doubleClick(shown.cell(2));
    else if (kind == u"right"_s)
        shown.click(shown.cell(2), Qt::RightButton);
    else if (kind == u"shift"_s)
        shown.click(shown.cell(2), Qt::LeftButton, Qt::ShiftModifier);
    else if (kind == u"moved"_s) {
        shown.press(shown.cell(2));
        shown.release(shown.cell(3));
    } else
        shown.click(shown.cell(2));
    if (kind == u"key"_s)
        shown.key(Qt::Key_Shift);
    else if (kind == u"scroll"_s)
        shown.item(90)->EnsureVisible();
    else if (kind == u"leaving"_s)
        other.setFocus();
    QTest::qWait(ShownList::betweenClicks() + 50);
    QVERIFY(!shown.showsLabelEditor());
    QVERIFY(!events.take().contains(u"BeforeLabelEdit"_s));
}

void ReportListLabelStartTest::canBeSwitchedOffForUsers()
{
    const ShownList shown;
    shown->setEditsLabels(false);
    shown.click(shown.cell(2));
    shown.key(Qt::Key_F2);
    QVERIFY(!shown.showsLabelEditor());
    shown.click(shown.cell(2));
    QTest::qWait(ShownList::betweenClicks() + 50);
    QVERIFY(!shown.showsLabelEditor());
    shown->StartLabelEdit();
    QVERIFY(shown.showsLabelEditor());
}

void ReportListLabelStartTest::isNotOpenedByThePressThatClosedIt()
{
    const ShownList shown;
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    shown->setPictureProvider([&](const QString &) { return QIcon(pixmap); });
    shown.item(2)->setPictureKey(u"a"_s);
    shown->setSelectedItem(shown.item(2));
    shown->StartLabelEdit();
    const QRect cell = shown->visualRect(shown->model()->index(1, 0));
    shown.click(shown.inForm(QPoint(cell.left() + 6, cell.center().y())));
    QVERIFY(!shown.showsLabelEditor());
    QTest::qWait(ShownList::betweenClicks() + 50);
    QVERIFY(!shown.showsLabelEditor());
    shown.click(shown.inForm(QPoint(cell.left() + 6, cell.center().y())));
    QTRY_VERIFY(shown.showsLabelEditor()); // the next one is a slow click as any other
}

void ReportListLabelStartTest::keepsLongLabels()
{
    const ShownList shown;
    const QString label(100'000, u'x');
    shown.item(2)->setText(label);
    shown->setSelectedItem(shown.item(2));
    QString entered;
    connect(shown.list, &ReportList::AfterLabelEdit, this,
            [&](qint16 &, const QString &text) { entered = text; });
    shown.key(Qt::Key_F2);
    shown.key(Qt::Key_Return);
    QTRY_VERIFY(!entered.isEmpty());
    QVERIFY(entered == label);
    QVERIFY(shown.item(2)->Text() == label);
}

void ReportListLabelStartTest::doesNothingWithoutASelectedRow()
{
    const ShownList shown;
    ListEvents events(shown.list);
    shown->StartLabelEdit();
    QCOMPARE(events.take(), QString());
    QVERIFY(!shown.showsLabelEditor());
}

void ReportListLabelStartTest::doesNotStartWithinItsOwnAnnouncement()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    int announced = 0;
    connect(shown.list, &ReportList::BeforeLabelEdit, this, [&](qint16 &) {
        ++announced;
        shown->StartLabelEdit();
    });
    shown->StartLabelEdit();
    QCOMPARE(announced, 1);
    shown->StartLabelEdit(); // is being edited already
    QCOMPARE(announced, 1);
    QVERIFY(shown.showsLabelEditor());
}

ORVT_TEST(ReportListLabelStartTest)
#include "ReportListLabelStartTest.moc"
