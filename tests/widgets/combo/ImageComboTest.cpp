// What the program does with an image combo.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/combo/ImageComboFixture.h"
#include <ORVTListview/Error.h>

#include <QtGui/QAccessible>
#include <QtTest/QSignalSpy>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

template <typename Call>
qint32 errorOf(Call call)
{
    try {
        call();
    } catch (const Error &error) {
        return error.Number();
    }
    return 0;
}

} // namespace

class ImageComboTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void isEmptyAtFirst();
    void entriesAreReachedByIndexAndKey();
    void selectionIsCountedFromOne();
    void whatIsNotThereIsRefused();
    void theProgramRaisesNoEvents();
    void setTextRaisesChange();
    void replacingEntriesKeepsTheTextThatWasNotTheirs();
    void replacingEntriesClosesTheList();
    void thePictureIsThatOfTheSelectedEntry();
    void textColourIsTheFieldsOnly();
    void textColourFollowsTheThemeWhenTakenAway();
    void openShowsAllEntriesAndMarksTheSelectedOne();
    void anEmptyComboOpensNothing();
    void longEntriesMakeItNoWider();
    void theListKeepsOnTheScreen();
    void theListIsWideEnoughForItsTexts();
    void isAComboBoxToScreenReaders();
    void theMarkedEntryIsTheSelectedOneToScreenReaders();
    void theNameOfTheControlAroundIsItsOwn();
    void theLayoutMayRunFromRightToLeft();
};

void ImageComboTest::isEmptyAtFirst()
{
    ImageCombo combo;
    QCOMPARE(combo.count(), 0);
    QCOMPARE(combo.selectedIndex(), 0);
    QCOMPARE(combo.text(), QString());
    QVERIFY(combo.isEditable());
    QVERIFY(!combo.isListOpen());
    combo.setEntries({});
    QCOMPARE(combo.selectedIndex(), 0);
}

void ImageComboTest::entriesAreReachedByIndexAndKey()
{
    ImageCombo combo;
    const QList<ComboEntry> entries{{.key = u"a"_s, .text = u"One"_s, .image = 66, .tag = u"t"_s},
                                    {.key = u"A"_s, .text = u"Two"_s},
                                    {.key = u"a"_s, .text = u"Three"_s},
                                    {.text = u"Four"_s}};
    combo.setEntries(entries);
    QCOMPARE(combo.count(), 4);
    for (qint32 index = 1; index <= 4; ++index)
        QCOMPARE(combo.entry(index), entries.at(index - 1));
    QCOMPARE(combo.indexOf(u"a"_s), 1);
    QCOMPARE(combo.indexOf(u"A"_s), 2);
    QCOMPARE(combo.indexOf(u"b"_s), 0);
    QCOMPARE(combo.indexOf(QString()), 0);
}

void ImageComboTest::selectionIsCountedFromOne()
{
    ImageCombo combo;
    combo.setEntries(ShownCombo::entriesOf({u"One"_s, u"Two"_s}));
    QCOMPARE(combo.selectedIndex(), 0);
    QCOMPARE(combo.text(), QString());
    combo.setSelectedIndex(2);
    QCOMPARE(combo.selectedIndex(), 2);
    QCOMPARE(combo.text(), u"Two"_s);
    combo.setSelectedIndex(0);
    QCOMPARE(combo.selectedIndex(), 0);
    QCOMPARE(combo.text(), QString());
}

void ImageComboTest::whatIsNotThereIsRefused()
{
    ImageCombo combo;
    combo.setEntries(ShownCombo::entriesOf({u"One"_s}));
    combo.setSelectedIndex(1);
    for (const qint32 index : {-1, 2, 2147483647}) {
        QCOMPARE(errorOf([&] { combo.setSelectedIndex(index); }), qint32{SubscriptOutOfRange});
        QCOMPARE(errorOf([&] { combo.entry(index); }), qint32{SubscriptOutOfRange});
    }
    QCOMPARE(errorOf([&] { combo.entry(0); }), qint32{SubscriptOutOfRange});
    QCOMPARE(combo.selectedIndex(), 1);
}

void ImageComboTest::theProgramRaisesNoEvents()
{
    const ShownCombo shown;
    ComboEvents events(shown.combo);
    shown->setSelectedIndex(2);
    shown->setEntries({});
    shown->setEntries(ShownCombo::entriesOf({u"One"_s}));
    shown->setSelectedIndex(1);
    shown->showPopup();
    shown->hidePopup();
    QCoreApplication::processEvents();
    QCOMPARE(events.take(), QString());
}

void ImageComboTest::setTextRaisesChange()
{
    const ShownCombo shown;
    shown->setSelectedIndex(2);
    ComboEvents events(shown.combo);
    shown->setText(u"Humidity"_s); // as it is
    QCOMPARE(events.take(), QString());
    shown->setText(u"Temp1"_s);
    QCOMPARE(events.take(), u"Change Temp1"_s);
    QCOMPARE(shown->selectedIndex(), 0);
    QCOMPARE(shown.listed(), QStringList{u"closed"_s});
}

void ImageComboTest::replacingEntriesKeepsTheTextThatWasNotTheirs()
{
    ImageCombo combo;
    combo.setEntries(ShownCombo::entriesOf({u"One"_s}));
    combo.setText(u"mine"_s);
    combo.setEntries(ShownCombo::entriesOf({u"Two"_s}));
    QCOMPARE(combo.text(), u"mine"_s);
    QCOMPARE(combo.selectedIndex(), 0);
    combo.setSelectedIndex(1);
    combo.setEntries(ShownCombo::entriesOf({u"Two"_s}));
    QCOMPARE(combo.text(), QString());
    QCOMPARE(combo.selectedIndex(), 0);
}

void ImageComboTest::replacingEntriesClosesTheList()
{
    const ShownCombo shown;
    for (const QStringList &texts : {QStringList{u"One"_s, u"Two"_s}, QStringList()}) {
        shown->setEntries(ShownCombo::entriesOf({u"Former"_s}));
        shown->showPopup();
        QVERIFY(shown->isListOpen());
        shown->setEntries(ShownCombo::entriesOf(texts));
        QVERIFY(!shown->isListOpen());
        QVERIFY(!QApplication::activePopupWidget());
    }
}

void ImageComboTest::thePictureIsThatOfTheSelectedEntry()
{
    const ShownCombo shown;
    const QRect place(4, 4, 20, 22);
    const auto look = [&] { return shown->grab(place).toImage(); };
    shown.after->setFocus();
    const QImage none = look();
    QList<ComboEntry> entries(2);
    entries[0] = {.text = u"a"_s, .image = 68, .selectedImage = 66};
    entries[1] = {.text = u"b"_s, .image = 68, .selectedImage = 68};
    shown->setEntries(entries);
    QCOMPARE(look(), none);
    shown->setSelectedIndex(1);
    const QImage first = look();
    QVERIFY(first != none);
    shown->setSelectedIndex(2);
    QVERIFY(look() != first);
    shown->setImageList(nullptr);
    QVERIFY(look() != first);
}

void ImageComboTest::textColourIsTheFieldsOnly()
{
    const ShownCombo shown;
    QVERIFY(!shown->textColour().isValid());
    const QPalette before = shown.field().palette();
    shown->setTextColour(Qt::red);
    QCOMPARE(shown->textColour(), QColor(Qt::red));
    const QPalette &after = shown.field().palette();
    QCOMPARE(after.color(QPalette::Active, QPalette::Text), QColor(Qt::red));
    QCOMPARE(after.color(QPalette::Inactive, QPalette::Text), QColor(Qt::red));
    QCOMPARE(after.color(QPalette::Disabled, QPalette::Text),
             before.color(QPalette::Disabled, QPalette::Text));
    QCOMPARE(after.color(QPalette::Base), before.color(QPalette::Base));
    QCOMPARE(shown->palette().color(QPalette::Text), before.color(QPalette::Text));
}

void ImageComboTest::textColourFollowsTheThemeWhenTakenAway()
{
    ShownCombo shown;
    shown->setTextColour(Qt::red);
    QPalette dark = shown.form.palette();
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    shown.form.setPalette(dark);
    QCOMPARE(shown.field().palette().color(QPalette::Text), QColor(Qt::red));
    QCOMPARE(shown.field().palette().color(QPalette::Base), QColor(Qt::black));
    shown->setTextColour({});
    QVERIFY(!shown->textColour().isValid());
    QCOMPARE(shown.field().palette().color(QPalette::Text), QColor(Qt::white));
}

void ImageComboTest::openShowsAllEntriesAndMarksTheSelectedOne()
{
    const ShownCombo shown;
    shown->setSelectedIndex(3);
    shown->showPopup();
    QCOMPARE(shown.listed(), QStringList({u"Temp1"_s, u"Humidity"_s, u"Temp10"_s, u"OutTemp1"_s}));
    QCOMPARE(shown.marked(), u"Temp10"_s);
    shown->hidePopup();
    QCOMPARE(shown.marked(), u"closed"_s);
    shown->setText(u"humid"_s); // by the program: not a filter
    shown->showPopup();
    QCOMPARE(shown.listed().size(), 4);
}

void ImageComboTest::anEmptyComboOpensNothing()
{
    const ShownCombo shown(QStringList{});
    shown->showPopup();
    QVERIFY(!shown->isListOpen());
    shown.key(Qt::Key_F4);
    shown.type(u"x"_s);
    QVERIFY(!shown->isListOpen());
    QCOMPARE(shown->text(), u"x"_s);
}

void ImageComboTest::longEntriesMakeItNoWider()
{
    const ShownCombo usual;
    const ShownCombo shown({QString(200, u'm'), u"short"_s});
    QCOMPARE(shown->sizeHint(), usual->sizeHint());
    QCOMPARE(shown->minimumSizeHint(), usual->minimumSizeHint());
}

void ImageComboTest::theListKeepsOnTheScreen()
{
    QStringList texts;
    for (int i = 0; i < 500; ++i)
        texts.append(u"Entry with a rather long text %1"_s.arg(i));
    ShownCombo shown(texts);
    const QRect screen = shown.form.screen()->availableGeometry();
    const QList<QPoint> places{screen.topLeft(), screen.bottomRight() - QPoint(230, 60),
                               screen.bottomLeft() - QPoint(100, 40), screen.center()};
    for (const QPoint &place : places) {
        shown.form.move(place);
        shown->showPopup();
        const QRect list = shown->listView()->window()->geometry();
        const QRect combo(shown->mapToGlobal(QPoint()), shown->size());
        QVERIFY(screen.contains(list));
        QVERIFY(!list.intersects(combo));
        QVERIFY(list.width() >= combo.width());
        QVERIFY(shown->listView()->viewport()->height() >=
                shown->maxVisibleItems() * shown->listView()->sizeHintForRow(0));
        shown->hidePopup();
    }
}

void ImageComboTest::theListIsWideEnoughForItsTexts()
{
    const QString longest(60, u'W');
    const ShownCombo shown({u"short"_s, longest, u"middling"_s});
    shown->showPopup();
    const QListView &view = *shown->listView();
    const int text = view.fontMetrics().horizontalAdvance(longest);
    QVERIFY(view.viewport()->width() >= text + view.iconSize().width());
    shown.type(u"o"_s); // narrower texts: the width stays under the user's eyes
    QVERIFY(view.viewport()->width() >= text);
}

void ImageComboTest::isAComboBoxToScreenReaders()
{
    const ShownCombo shown;
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(shown.combo);
    QVERIFY(access);
    QCOMPARE(access->role(), QAccessible::ComboBox);
    QVERIFY(access->state().expandable && access->state().collapsed && access->state().hasPopup);
    shown->setSelectedIndex(2);
    QCOMPARE(access->text(QAccessible::Value), u"Humidity"_s);
    QCOMPARE(access->childCount(), 2);
    QCOMPARE(access->child(0)->role(), QAccessible::List);
    QCOMPARE(access->child(0)->childCount(), 4);
    QCOMPARE(access->child(0)->child(1)->text(QAccessible::Name), u"Humidity"_s);
    QCOMPARE(access->child(1)->role(), QAccessible::EditableText);
    QCOMPARE(access->indexOfChild(access->child(1)), 1);
    QCOMPARE(access->indexOfChild(access), -1);
    QCOMPARE(access->child(2), nullptr);

    QAccessibleActionInterface *actions = access->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(shown->isListOpen());
    QVERIFY(access->state().expanded && !access->state().collapsed);
    actions->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!shown->isListOpen());
}

void ImageComboTest::theMarkedEntryIsTheSelectedOneToScreenReaders()
{
    const ShownCombo shown;
    shown.type(u"mp1"_s);
    shown.key(Qt::Key_Down);
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(shown.combo)->child(0);
    QCOMPARE(list->childCount(), 3);
    QCOMPARE(list->child(1)->text(QAccessible::Name), u"Temp10"_s);
    QVERIFY(list->child(1)->state().selected);
    QVERIFY(!list->child(0)->state().selected);
}

void ImageComboTest::theNameOfTheControlAroundIsItsOwn()
{
    QWidget control;
    auto *combo = new ImageCombo(&control);
    control.setAccessibleName(u"Points"_s);
    const auto name = [combo] {
        return QAccessible::queryAccessibleInterface(combo)->text(QAccessible::Name);
    };
    QCOMPARE(name(), QString());
    control.setFocusProxy(combo);
    QCOMPARE(name(), u"Points"_s);
    combo->setAccessibleName(u"Inner"_s);
    QCOMPARE(name(), u"Inner"_s);
}

void ImageComboTest::theLayoutMayRunFromRightToLeft()
{
    ShownCombo shown;
    shown.form.setLayoutDirection(Qt::RightToLeft);
    shown->setSelectedIndex(1);
    QVERIFY(shown->isArrowAt(QPoint(8, 15)));
    shown->showPopup();
    QCOMPARE(shown->listView()->layoutDirection(), Qt::RightToLeft);
    const QRect combo(shown->mapToGlobal(QPoint()), shown->size());
    QCOMPARE(shown->listView()->window()->geometry().right(), combo.right());
}

ORVT_TEST(ImageComboTest)
#include "ImageComboTest.moc"
