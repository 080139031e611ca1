// Choosing with the mouse.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/combo/ImageComboFixture.h"

#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ImageComboMouseTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void opensAndClosesByTheArrow();
    void takesTheEntryClicked();
    void takesTheEntryWhereTheButtonIsLetGo();
    void staysOpenWhenTheArrowIsLetGo();
    void marksTheEntryUnderTheMouse();
    void closesByAPressElsewhere();
    void keepsTheListOpenWhileItIsScrolled();
    void takesNothingWithTheRightButton();
    void tellsADoubleClickInTheField();
    void leavesTheWheelToTheForm();
    void bearsAnythingInAMouseEvent_data();
    void bearsAnythingInAMouseEvent();
};

void ImageComboMouseTest::opensAndClosesByTheArrow()
{
    const ShownCombo shown;
    ComboEvents events(shown.combo);
    shown.click(shown.arrow());
    QCOMPARE(shown.listed().size(), 4);
    QVERIFY(shown->hasFocus());
    const QPoint global = shown.form.mapToGlobal(shown.arrow());
    QTest::mouseClick(shown.listWindow(), Qt::LeftButton, {},
                      shown.listWindow()->mapFromGlobal(global), ShownCombo::betweenClicks());
    QVERIFY(!shown->isListOpen());
    shown.click(shown.picture(), Qt::LeftButton);
    shown.click(shown.inField(), Qt::LeftButton);
    shown.click(shown.arrow(), Qt::RightButton);
    QVERIFY(!shown->isListOpen());
    QCOMPARE(events.take(), QString());
}

void ImageComboMouseTest::takesTheEntryClicked()
{
    const ShownCombo shown;
    ComboEvents events(shown.combo);
    shown.click(shown.arrow());
    QTest::mouseClick(shown.listWindow(), Qt::LeftButton, {}, shown.match(2));
    QVERIFY(!shown->isListOpen());
    QCOMPARE(shown->selectedIndex(), 3);
    QCOMPARE(shown->text(), u"Temp10"_s);
    QCOMPARE(events.take(), u"Click 3 Temp10"_s);

    shown.type(u"temp"_s); // of what is filtered, the entry that is shown there
    events.take();
    QTest::mouseClick(shown.listWindow(), Qt::LeftButton, {}, shown.match(2));
    QCOMPARE(events.take(), u"Click 4 OutTemp1"_s);
}

void ImageComboMouseTest::takesTheEntryWhereTheButtonIsLetGo()
{
    const ShownCombo shown;
    QTest::mousePress(shown.window, Qt::LeftButton, {}, shown.arrow());
    QVERIFY(shown->isListOpen());
    QWindow *list = shown.listWindow();
    QTest::mouseMove(list, shown.match(0));
    QTest::mouseMove(list, shown.match(1));
    QTest::mouseRelease(list, Qt::LeftButton, {}, shown.match(1));
    QCOMPARE(shown->selectedIndex(), 2);
    QVERIFY(!shown->isListOpen());
}

void ImageComboMouseTest::staysOpenWhenTheArrowIsLetGo()
{
    const ShownCombo shown;
    QTest::mousePress(shown.window, Qt::LeftButton, {}, shown.arrow());
    QWindow *list = shown.listWindow();
    const QPoint arrow = list->mapFromGlobal(shown.form.mapToGlobal(shown.arrow()));
    QTest::mouseRelease(list, Qt::LeftButton, {}, arrow);
    QVERIFY(shown->isListOpen());
    QCOMPARE(shown->selectedIndex(), 0);
}

void ImageComboMouseTest::marksTheEntryUnderTheMouse()
{
    const ShownCombo shown;
    shown.click(shown.arrow());
    QTest::mouseMove(shown.listWindow(), shown.match(1));
    QTest::mouseMove(shown.listWindow(), shown.match(2));
    QCOMPARE(shown.marked(), u"Temp10"_s);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown.marked(), u"OutTemp1"_s);
    shown.key(Qt::Key_Return);
    QCOMPARE(shown->selectedIndex(), 4);
}

void ImageComboMouseTest::closesByAPressElsewhere()
{
    const ShownCombo shown;
    ComboEvents events(shown.combo);
    shown.type(u"temp"_s);
    events.take();
    QWindow *list = shown.listWindow();
    const QPoint outside = shown.form.mapToGlobal(QPoint(5, 5));
    QTest::mouseClick(list, Qt::LeftButton, {}, list->mapFromGlobal(outside));
    QVERIFY(!shown->isListOpen());
    QCOMPARE(shown->text(), u"temp"_s);
    QCOMPARE(shown->selectedIndex(), 0);
    QVERIFY(shown->hasFocus());
    QCOMPARE(events.take(), QString());
    shown.type(u"1"_s);
    QCOMPARE(shown.listed(), QStringList({u"Temp1"_s, u"Temp10"_s, u"OutTemp1"_s}));
}

void ImageComboMouseTest::keepsTheListOpenWhileItIsScrolled()
{
    QStringList texts;
    for (int i = 1; i <= 300; ++i)
        texts.append(u"Entry%1"_s.arg(i));
    const ShownCombo shown(texts);
    shown.click(shown.arrow());
    const QScrollBar &bar = *shown->listView()->verticalScrollBar();
    QTRY_VERIFY(bar.isVisible());
    const QPoint onBar = bar.mapTo(bar.window(), QPoint(bar.width() / 2, bar.height() - 30));
    QTest::mouseClick(shown.listWindow(), Qt::LeftButton, {}, onBar);
    QVERIFY(shown->isListOpen());
    QVERIFY(bar.value() > 0);
    QCOMPARE(shown->selectedIndex(), 0);
}

void ImageComboMouseTest::takesNothingWithTheRightButton()
{
    const ShownCombo shown;
    shown.click(shown.arrow());
    QTest::mouseClick(shown.listWindow(), Qt::RightButton, {}, shown.match(1));
    QVERIFY(shown->isListOpen());
    QCOMPARE(shown->selectedIndex(), 0);
}

void ImageComboMouseTest::tellsADoubleClickInTheField()
{
    const ShownCombo shown;
    shown->setSelectedIndex(1);
    ComboEvents events(shown.combo);
    QTest::mouseDClick(shown.window, Qt::LeftButton, {}, shown.inField());
    QCOMPARE(events.take(), u"DblClick"_s);
    QCOMPARE(shown.field().selectedText(), u"Temp1"_s);
    QTest::mouseDClick(shown.window, Qt::RightButton, {}, shown.inField(),
                       ShownCombo::betweenClicks());
    QCOMPARE(events.take(), QString());
}

void ImageComboMouseTest::leavesTheWheelToTheForm()
{
    const ShownCombo shown;
    shown->setSelectedIndex(2);
    ComboEvents events(shown.combo);
    QVERIFY(!shown.wheel());
    shown->showPopup();
    shown.wheel(); // the toolkit keeps it from all but the list
    QVERIFY(shown->isListOpen());
    QCOMPARE(shown.marked(), u"Humidity"_s);
    shown->hidePopup();
    shown.after->setFocus();
    QVERIFY(!shown.wheel());
    QCOMPARE(shown->selectedIndex(), 2);
    QCOMPARE(events.take(), QString());
}

void ImageComboMouseTest::bearsAnythingInAMouseEvent_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("deed");
    for (const QString &event : {u"Click"_s, u"DblClick"_s, u"picked"_s, u"focus"_s, u"paste"_s}) {
        for (const QString &deed : {u"destroy"_s, u"empty"_s, u"disable"_s, u"hide"_s})
            QTest::addRow("%s, %s", qPrintable(event), qPrintable(deed)) << event << deed;
    }
}

void ImageComboMouseTest::bearsAnythingInAMouseEvent()
{
    QFETCH(QString, event);
    QFETCH(QString, deed);
    ShownCombo shown;
    int deeds = 0;
    const auto act = [&] {
        if (deeds++ > 0)
            return;
        if (deed == u"destroy"_s)
            delete shown.combo;
        else if (deed == u"empty"_s)
            shown->setEntries({});
        else if (deed == u"disable"_s)
            shown->setEnabled(false);
        else
            shown->hide();
    };
    if (event == u"DblClick"_s) {
        connect(shown.combo, &ImageCombo::DblClick, this, act);
        QTest::mouseDClick(shown.window, Qt::LeftButton, {}, shown.inField());
    } else if (event == u"paste"_s) {
        connect(shown.combo, &ImageCombo::Change, this, act);
        shown.field().insert(u"Temp"_s);
        QTest::mouseClick(shown.window, Qt::LeftButton, {}, shown.inField());
        shown.type(u"1"_s);
    } else {
        if (event == u"picked"_s)
            connect(shown.combo, &ImageCombo::picked, this, act);
        else
            connect(shown.combo, &ImageCombo::Click, this, act);
        if (event != u"focus"_s) {
            shown.click(shown.arrow());
            QTest::mouseClick(shown.listWindow(), Qt::LeftButton, {}, shown.match(1));
        } else {
            shown.type(u"temp1"_s);
            shown->hidePopup();
            shown.after->setFocus();
        }
    }
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QVERIFY(deeds >= 1);
    QCOMPARE(shown.combo.isNull(), deed == u"destroy"_s);
    QVERIFY(!QApplication::activePopupWidget());
}

ORVT_TEST(ImageComboMouseTest)
#include "ImageComboMouseTest.moc"
