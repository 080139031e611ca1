// The read button above the table, by mouse and keys, and what a screen reader hears.

#include "listview/ShownListView.h"
#include "support/Pixels.h"
#include "support/PseudoTexts.h"
#include "support/ShownTexts.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/look/PictureButton.h"

#include <QtGui/QAccessible>

#include <stdexcept>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

PictureButton &readButton(const ShownListView &shown)
{
    return static_cast<PictureButton &>(shown.part(u"ImgRead"_s));
}

} // namespace

class CaptionLineTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aPressShowsThePressedPicture();
    void aReleaseOutsideReadsNothing();
    void otherButtonsReadNothing();
    void keysReadOnRelease_data();
    void keysReadOnRelease();
    void escapeCallsAKeyOff();
    void everyTypeIsReadAsItself_data();
    void everyTypeIsReadAsItself();
    void aClickLeavesTheFocusInTheTable();
    void tabReachesTheButtonAndTheTable();
    void aDisabledButtonReadsNothing();
    void theButtonBearsAnything_data();
    void theButtonBearsAnything();
    void screenReadersAreToldOfEachPart();
    void allTextsAreLookedUp();
    void toolTipsOfTheHostStay();
    void disabledPicturesAreGrey();
};

void CaptionLineTest::aPressShowsThePressedPicture()
{
    const ShownListView shown(dsOs);
    ListViewEvents events(shown.list);
    PictureButton &button = readButton(shown);
    QCOMPARE(button.PictureKey(), u"Optimum Starts"_s);
    const QImage before = button.grab().toImage();
    shown.press(shown.middleOf(button));
    QCOMPARE(button.PictureKey(), u"Optimum StartsDown"_s);
    QCOMPARE(button.Tag(), u"Optimum Starts"_s);
    QVERIFY(shown.part(u"ImgRead"_s).grab().toImage() != before);
    QCOMPARE(events.take(), QString());
    QString key;
    connect(shown.list, &ORVListView::QueryRead, this, [&] { key = button.PictureKey(); });
    shown.release(shown.middleOf(button));
    QCOMPARE(events.take(), u"QueryRead 8"_s);
    QCOMPARE(key, u"Optimum Starts"_s); // restored before the host is asked
    QCOMPARE(button.PictureKey(), u"Optimum Starts"_s);
}

void CaptionLineTest::aReleaseOutsideReadsNothing()
{
    const ShownListView shown;
    ListViewEvents events(shown.list);
    PictureButton &button = readButton(shown);
    shown.press(shown.middleOf(button));
    shown.move(shown.cell(3));
    QCOMPARE(button.PictureKey(), u"Inputs"_s);
    shown.release(shown.cell(3));
    QCOMPARE(events.take(), QString());
    shown.press(shown.middleOf(button));
    shown.move(shown.cell(3));
    shown.move(shown.middleOf(button)); // back again
    QCOMPARE(button.PictureKey(), u"InputsDown"_s);
    shown.release(shown.middleOf(button));
    QCOMPARE(events.take(), u"QueryRead 3"_s);
}

void CaptionLineTest::otherButtonsReadNothing()
{
    const ShownListView shown;
    ListViewEvents events(shown.list);
    for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton}) {
        shown.press(shown.middleOf(readButton(shown)), other);
        QCOMPARE(readButton(shown).PictureKey(), u"Inputs"_s);
        shown.release(shown.middleOf(readButton(shown)), other);
    }
    shown.click(shown.middleOf(shown.part(u"ImgWrite"_s)));
    shown.click(shown.middleOf(shown.part(u"LblCaption"_s)));
    QCOMPARE(events.take(), QString());
}

void CaptionLineTest::keysReadOnRelease_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Space") << int{Qt::Key_Space};
    QTest::newRow("Enter") << int{Qt::Key_Return};
    QTest::newRow("Enter of the number pad") << int{Qt::Key_Enter};
}

void CaptionLineTest::keysReadOnRelease()
{
    QFETCH(int, key);
    const ShownListView shown(dsLog);
    ListViewEvents events(shown.list);
    readButton(shown).setFocus();
    QTest::keyPress(shown.window, static_cast<Qt::Key>(key));
    QCOMPARE(readButton(shown).PictureKey(), u"LogsDown"_s);
    QCOMPARE(events.take(), QString());
    QTest::keyRelease(shown.window, static_cast<Qt::Key>(key));
    QCOMPARE(readButton(shown).PictureKey(), u"Logs"_s);
    QCOMPARE(events.take(), u"QueryRead 6"_s);
    shown.key(Qt::Key_A);
    QCOMPARE(events.take(), QString());
}

void CaptionLineTest::escapeCallsAKeyOff()
{
    const ShownListView shown;
    ListViewEvents events(shown.list);
    readButton(shown).setFocus();
    QTest::keyPress(shown.window, Qt::Key_Space);
    shown.key(Qt::Key_Escape);
    QCOMPARE(readButton(shown).PictureKey(), u"Inputs"_s);
    QTest::keyRelease(shown.window, Qt::Key_Space);
    QCOMPARE(events.take(), QString());
}

void CaptionLineTest::everyTypeIsReadAsItself_data()
{
    QTest::addColumn<int>("type");
    for (int type = dsCode; type <= dsOutputParam; ++type)
        QTest::addRow("%d", type) << type;
}

void CaptionLineTest::everyTypeIsReadAsItself()
{
    QFETCH(int, type);
    const ShownListView shown(static_cast<LwType>(type));
    ListViewEvents events(shown.list);
    QTest::mouseClick(shown.window, Qt::LeftButton, {}, shown.middleOf(readButton(shown)));
    QCOMPARE(events.take(), u"QueryRead %1"_s.arg(type));
}

void CaptionLineTest::aClickLeavesTheFocusInTheTable()
{
    const ShownListView shown;
    QVERIFY(shown.table().hasFocus());
    shown.click(shown.middleOf(readButton(shown)));
    QVERIFY(shown.table().hasFocus());
}

void CaptionLineTest::tabReachesTheButtonAndTheTable()
{
    ShownListView shown;
    QWidget other(&shown.form);
    other.setFocusPolicy(Qt::StrongFocus);
    other.show();
    shown->setListviewType(dsCode); // which takes the table away for a while
    shown->setListviewType(dsLog);
    QVERIFY(shown.table().hasFocus());
    const QImage unfocused = readButton(shown).grab().toImage();
    for (int round = 0; round < 2; ++round) {
        shown.key(Qt::Key_Tab); // leaves the table at once
        QVERIFY(readButton(shown).hasFocus());
        QVERIFY(readButton(shown).grab().toImage() != unfocused);
        shown.key(Qt::Key_Tab);
        QVERIFY(other.hasFocus());
        shown.key(Qt::Key_Tab);
        QVERIFY(shown.table().hasFocus());
    }
    shown.key(Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(other.hasFocus());
    shown.key(Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(readButton(shown).hasFocus());
    shown.key(Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(shown.table().hasFocus());
}

void CaptionLineTest::aDisabledButtonReadsNothing()
{
    const ShownListView shown;
    ListViewEvents events(shown.list);
    shown.press(shown.middleOf(readButton(shown)));
    shown->setEnabled(false);
    shown.release(shown.middleOf(readButton(shown)));
    QCOMPARE(readButton(shown).PictureKey(), u"Inputs"_s);
    shown.click(shown.middleOf(readButton(shown)));
    QCOMPARE(events.take(), QString());
}

void CaptionLineTest::theButtonBearsAnything_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("deed");
    for (const QString &way : {u"mouse"_s, u"space"_s, u"enter"_s, u"reader"_s}) {
        for (const QString &deed :
             {u"destroy"_s, u"code"_s, u"table"_s, u"disable"_s, u"clear"_s, u"throw"_s})
            QTest::addRow("%s, %s", qPrintable(way), qPrintable(deed)) << way << deed;
    }
}

void CaptionLineTest::theButtonBearsAnything()
{
    QFETCH(QString, way);
    QFETCH(QString, deed);
    ShownListView shown;
    int raised = 0;
    connect(shown.list, &ORVListView::QueryRead, this, [&](LwType &type) {
        ++raised;
        type = dsLog; // of no use, and no harm
        if (deed == u"destroy"_s)
            delete shown.list;
        else if (deed == u"code"_s)
            shown->setListviewType(dsCode);
        else if (deed == u"table"_s)
            shown->setListviewType(dsTimer);
        else if (deed == u"disable"_s)
            shown->setEnabled(false);
        else if (deed == u"clear"_s)
            shown->Clear();
        else
            throw std::runtime_error("the host fails");
    });
    if (deed == u"throw"_s)
        QTest::ignoreMessage(QtWarningMsg, "An event handler failed: the host fails");
    PictureButton &button = readButton(shown);
    if (way == u"mouse"_s) {
        shown.click(shown.middleOf(button));
    } else if (way == u"reader"_s) {
        QAccessible::queryAccessibleInterface(&button)->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
    } else {
        button.setFocus();
        shown.key(way == u"space"_s ? Qt::Key_Space : Qt::Key_Return);
    }
    QTRY_COMPARE(raised, 1); // an assistant's press comes a little later
    QCOMPARE(shown.list.isNull(), deed == u"destroy"_s);
    if (shown.list)
        QCOMPARE(readButton(shown).PictureKey(), shown->Key());
}

void CaptionLineTest::screenReadersAreToldOfEachPart()
{
    PseudoTexts pseudo;
    setTextProvider(&pseudo);
    const ShownListView shown;
    const auto reader = [&](const QString &name) {
        return QAccessible::queryAccessibleInterface(&shown.part(name));
    };
    QCOMPARE(reader(u"ImgRead"_s)->role(), QAccessible::Button);
    QCOMPARE(reader(u"ImgRead"_s)->text(QAccessible::Name),
             PseudoTexts::inBrackets(u"Click here to read data values"_s));
    QCOMPARE(reader(u"ImgWrite"_s)->text(QAccessible::Name), PseudoTexts::inBrackets(u"Idle"_s));
    shown->SetImage(true);
    QCOMPARE(reader(u"ImgWrite"_s)->text(QAccessible::Name), PseudoTexts::inBrackets(u"Busy"_s));
    QCOMPARE(reader(u"LblCaption"_s)->text(QAccessible::Name),
             PseudoTexts::inBrackets(u"Inputs"_s));
    QAccessibleInterface *table = reader(u"ListView1"_s);
    QCOMPARE(table->role(), QAccessible::Table);
    QCOMPARE(table->text(QAccessible::Name), PseudoTexts::inBrackets(u"Inputs"_s));
    shown.item(2)->setSubItem(3, u"21.5"_s);
    QAccessibleInterface *cell = table->tableInterface()->cellAt(1, 3);
    QVERIFY(cell);
    QCOMPARE(cell->text(QAccessible::Name), u"21.5"_s);
    QCOMPARE(cell->tableCellInterface()->rowIndex(), 1);
    QCOMPARE(cell->tableCellInterface()->columnIndex(), 3);
}

void CaptionLineTest::allTextsAreLookedUp()
{
    PseudoTexts pseudo;
    setTextProvider(&pseudo);
    ORVListView list;
    list.setIsHOASupported(true);
    for (int type = dsCode; type <= dsOutputParam; ++type) {
        list.setListviewType(static_cast<LwType>(type));
        for (const bool busy : {false, true}) {
            list.SetImage(busy);
            QCOMPARE(shownWithoutLookup(list), QStringList());
        }
    }
}

void CaptionLineTest::toolTipsOfTheHostStay()
{
    ORVListView list;
    const auto &read = *list.findChild<QWidget *>(u"ImgRead"_s);
    const auto &write = *list.findChild<QWidget *>(u"ImgWrite"_s);
    QCOMPARE(read.toolTip(), u"Click here to read data values"_s);
    QCOMPARE(write.toolTip(), u"Idle"_s);
    QString text = u"AHU-1"_s;
    bool isLeft = false;
    list.ResetToolTipText(text, isLeft);
    list.SetImage(true);
    QCOMPARE(write.toolTip(), u"AHU-1"_s);
    QCOMPARE(write.accessibleName(), u"Busy"_s);
    QCOMPARE(read.toolTip(), u"Click here to read data values"_s);
    isLeft = true;
    list.ResetToolTipText(text, isLeft);
    list.setListviewType(dsLog);
    QCOMPARE(read.toolTip(), u"AHU-1"_s);
    list.InitStrings();
    QCOMPARE(read.toolTip(), u"Click here to read data values"_s);
}

void CaptionLineTest::disabledPicturesAreGrey()
{
    const ShownListView shown;
    shown->setEnabled(false);
    for (const QString &name : {u"ImgRead"_s, u"ImgWrite"_s}) {
        const QImage image = shown.part(name).grab().toImage();
        QVERIFY(Pixels::all(image, [](QRgb pixel) {
            return qAbs(qRed(pixel) - qGreen(pixel)) < 6 && qAbs(qGreen(pixel) - qBlue(pixel)) < 6;
        }));
    }
}

ORVT_TEST(CaptionLineTest)
#include "CaptionLineTest.moc"
