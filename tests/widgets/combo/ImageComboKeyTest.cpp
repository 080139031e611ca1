// The keys of an image combo, and the events on the way.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/combo/ImageComboFixture.h"
#include <ORVTListview/Error.h>

#include <tuple>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ImageComboKeyTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void raisesEventsInOrder();
    void ctrlSpaceIsNoCharacter();
    void raisesChangeWhenTheFieldIsDone();
    void goesThroughTheListAndNoFurther();
    void goesThroughTheEntriesWithTheListClosed();
    void opensAndClosesByKey();
    void editsWhileTheListIsOpen();
    void swallowsAKeySetToNothing();
    void swallowsACharacterSetToNothing();
    void typesAnotherCharacterInstead();
    void letsUnusedKeysPass();
    void doesNothingWhileDisabled();
    void bearsAnythingInAKeyEvent_data();
    void bearsAnythingInAKeyEvent();
    void keepsErrorsFromTheEventLoop();
};

void ImageComboKeyTest::raisesEventsInOrder()
{
    const ShownCombo shown;
    ComboEvents events(shown.combo);
    shown.type(u"mp"_s);
    QCOMPARE(events.take(), u"KeyDown 77 0, KeyPress 109, Change m, KeyUp 77 0, "
                            "KeyDown 80 0, KeyPress 112, Change mp, KeyUp 80 0"_s);
    shown.key(Qt::Key_Down);
    QCOMPARE(events.take(), u"KeyDown 40 0, KeyUp 40 0"_s);
    shown.key(Qt::Key_Return);
    QCOMPARE(events.take(), u"KeyDown 13 0, KeyPress 13, Click 3 Temp10, KeyUp 13 0"_s);
    shown.key(Qt::Key_Up);
    QCOMPARE(events.take(), u"KeyDown 38 0, Click 2 Humidity, KeyUp 38 0"_s);
    shown.key(Qt::Key_F6, Qt::ShiftModifier);
    QCOMPARE(events.take(), u"KeyDown 16 1, KeyDown 117 1, KeyUp 117 1, KeyUp 16 0"_s);
    shown.key(Qt::Key_Left);
    QCOMPARE(events.take(), u"KeyDown 37 0, KeyUp 37 0"_s);
}

// It types the character 0 where there is a keyboard.
void ImageComboKeyTest::ctrlSpaceIsNoCharacter()
{
    const ShownCombo shown;
    ComboEvents events(shown.combo);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::ControlModifier, QString(QChar(0)));
    QCoreApplication::sendEvent(&shown.field(), &press);
    QCOMPARE(events.take(), u"KeyDown 32 2"_s);
    QCOMPARE(shown.field().text(), QString());
}

void ImageComboKeyTest::raisesChangeWhenTheFieldIsDone()
{
    const ShownCombo shown;
    QStringList order;
    connect(&shown.field(), &QLineEdit::cursorPositionChanged, this,
            [&] { order.append(u"caret"_s); });
    connect(shown.combo, &ImageCombo::Change, this, [&] { order.append(u"Change"_s); });
    shown.type(u"t"_s);
    QCOMPARE(order, QStringList({u"caret"_s, u"Change"_s}));
}

void ImageComboKeyTest::goesThroughTheListAndNoFurther()
{
    QStringList texts;
    for (int i = 1; i <= 100; ++i)
        texts.append(u"Entry%1"_s.arg(i));
    const ShownCombo shown(texts);
    shown.type(u"e"_s);
    QCOMPARE(shown.marked(), u"Entry1"_s);
    shown.key(Qt::Key_Up);
    QCOMPARE(shown.marked(), u"Entry1"_s);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown.marked(), u"Entry2"_s);
    shown.key(Qt::Key_PageDown);
    const int page = shown->listView()->currentIndex().row() - 1;
    QVERIFY(page > 3 && page < 20);
    shown.key(Qt::Key_PageUp);
    QCOMPARE(shown.marked(), u"Entry2"_s);
    for (int i = 0; i < 60; ++i)
        shown.key(Qt::Key_PageDown);
    QCOMPARE(shown.marked(), u"Entry100"_s);
    const QListView &view = *shown->listView();
    QVERIFY(view.viewport()->rect().contains(view.visualRect(view.currentIndex())));
    shown.key(Qt::Key_Return);
    QCOMPARE(shown->selectedIndex(), 100);
}

void ImageComboKeyTest::goesThroughTheEntriesWithTheListClosed()
{
    const ShownCombo shown;
    ComboEvents events(shown.combo);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown->selectedIndex(), 1);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown->selectedIndex(), 2);
    QCOMPARE(events.take(), u"KeyDown 40 0, Click 1 Temp1, KeyUp 40 0, "
                            "KeyDown 40 0, Click 2 Humidity, KeyUp 40 0"_s);
    shown.key(Qt::Key_Up);
    shown.key(Qt::Key_Up);
    QCOMPARE(shown->selectedIndex(), 1);
    QCOMPARE(events.take(), u"KeyDown 38 0, Click 1 Temp1, KeyUp 38 0, KeyDown 38 0, KeyUp 38 0"_s);
}

void ImageComboKeyTest::opensAndClosesByKey()
{
    const ShownCombo shown;
    const QList<std::pair<Qt::Key, Qt::KeyboardModifiers>> openers{{Qt::Key_F4, Qt::NoModifier},
                                                                   {Qt::Key_Down, Qt::AltModifier}};
    const QList<std::pair<Qt::Key, Qt::KeyboardModifiers>> closers{
        {Qt::Key_F4, Qt::NoModifier},
        {Qt::Key_Up, Qt::AltModifier},
        {Qt::Key_Down, Qt::AltModifier},
        {Qt::Key_Escape, Qt::NoModifier}};
    for (const auto &opener : openers) {
        for (const auto &closer : closers) {
            shown.key(opener.first, opener.second);
            QCOMPARE(shown.listed().size(), 4);
            shown.key(closer.first, closer.second);
            QVERIFY(!shown->isListOpen());
            QCOMPARE(shown->selectedIndex(), 0);
        }
    }
}

void ImageComboKeyTest::editsWhileTheListIsOpen()
{
    const ShownCombo shown;
    shown.type(u"tm"_s);
    shown.key(Qt::Key_Left);
    shown.type(u"e"_s);
    QCOMPARE(shown->text(), u"tem"_s);
    QCOMPARE(shown.field().cursorPosition(), 2);
    shown.key(Qt::Key_Home);
    shown.key(Qt::Key_End, Qt::ShiftModifier);
    QCOMPARE(shown.field().selectedText(), u"tem"_s);
    QVERIFY(shown->isListOpen());
}

void ImageComboKeyTest::swallowsAKeySetToNothing()
{
    const ShownCombo shown;
    connect(shown.combo, &ImageCombo::KeyDown, this, [](qint16 &code, qint16 &) { code = 0; });
    ComboEvents events(shown.combo);
    shown.type(u"m"_s);
    QVERIFY(!events.take().contains(u"KeyPress"_s));
    QCOMPARE(shown->text(), QString());
    shown.key(Qt::Key_Down);
    QCOMPARE(shown->selectedIndex(), 0);
    shown.key(Qt::Key_F4);
    QVERIFY(!shown->isListOpen());
    shown->showPopup();
    shown.key(Qt::Key_Return);
    QVERIFY(shown->isListOpen());
}

void ImageComboKeyTest::swallowsACharacterSetToNothing()
{
    const ShownCombo shown;
    connect(shown.combo, &ImageCombo::KeyPress, this, [](qint16 &code) {
        if (code == 'x')
            code = 0;
    });
    shown.type(u"hxu"_s);
    QCOMPARE(shown->text(), u"hu"_s);
}

void ImageComboKeyTest::typesAnotherCharacterInstead()
{
    const ShownCombo shown;
    connect(shown.combo, &ImageCombo::KeyPress, this, [](qint16 &code) {
        if (code >= 'a' && code <= 'z')
            code = static_cast<qint16>(code - 'a' + 'A');
    });
    ComboEvents events(shown.combo);
    shown.type(u"hu"_s);
    QCOMPARE(shown->text(), u"HU"_s);
    QVERIFY(events.take().contains(u"Change H, "_s));
    QCOMPARE(shown.listed(), QStringList{u"Humidity"_s});
}

void ImageComboKeyTest::letsUnusedKeysPass()
{
    class Parent : public QWidget
    {
    public:
        QList<int> keys;

    protected:
        void keyPressEvent(QKeyEvent *event) override { keys.append(event->key()); }
    } parent;
    ImageCombo combo(&parent);
    combo.setEntries(ShownCombo::entriesOf({u"One"_s}));
    parent.show();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    combo.setFocus();
    const auto key = [&](Qt::Key which) { QTest::keyClick(parent.windowHandle(), which); };
    key(Qt::Key_Escape); // as those of a dialog
    key(Qt::Key_Return);
    QCOMPARE(parent.keys, QList<int>({Qt::Key_Escape, Qt::Key_Return}));
    parent.keys.clear();
    combo.showPopup(); // now they are the list's
    key(Qt::Key_Escape);
    combo.showPopup();
    key(Qt::Key_Return);
    key(Qt::Key_A);
    QCOMPARE(parent.keys, QList<int>());
}

void ImageComboKeyTest::doesNothingWhileDisabled()
{
    const ShownCombo shown;
    ComboEvents events(shown.combo);
    shown->setEnabled(false);
    shown.type(u"t"_s);
    shown.key(Qt::Key_F4);
    shown.click(shown.arrow());
    QVERIFY(!shown->isListOpen());
    QCOMPARE(events.take(), QString());
}

// With the keys in which each event comes, on an open list and on a closed one.
void ImageComboKeyTest::bearsAnythingInAKeyEvent_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("open");
    QTest::addColumn<QString>("deed");
    using Keys = QList<Qt::Key>;
    const Keys all{Qt::Key_Down, Qt::Key_T, Qt::Key_Return, Qt::Key_F4, Qt::Key_Escape};
    const Keys written{Qt::Key_T, Qt::Key_Return, Qt::Key_Escape};
    const std::tuple<QString, bool, Keys> events[] = {
        {u"KeyDown"_s, true, all},
        {u"KeyDown"_s, false, all},
        {u"KeyPress"_s, true, written},
        {u"KeyPress"_s, false, written},
        {u"KeyUp"_s, true, all},
        {u"KeyUp"_s, false, all},
        {u"Change"_s, true, {Qt::Key_T, Qt::Key_Escape}},
        {u"Change"_s, false, {Qt::Key_T}},
        {u"Click"_s, true, {Qt::Key_Return, Qt::Key_Tab}},
        {u"Click"_s, false, {Qt::Key_Down}},
    };
    for (const auto &[event, open, keys] : events) {
        for (const QString &deed : {u"destroy"_s, u"empty"_s, u"disable"_s, u"hide"_s, u"text"_s}) {
            for (const Qt::Key key : keys)
                QTest::addRow("%s, %s, key %d, %s", qPrintable(event), qPrintable(deed), int{key},
                              open ? "open" : "closed")
                    << event << int{key} << open << deed;
        }
    }
}

void ImageComboKeyTest::bearsAnythingInAKeyEvent()
{
    QFETCH(QString, event);
    QFETCH(int, key);
    QFETCH(bool, open);
    QFETCH(QString, deed);
    ShownCombo shown;
    shown.type(u"te"_s);
    if (!open)
        shown->hidePopup();
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
        else if (deed == u"hide"_s)
            shown->hide();
        else
            shown->setText(u"other"_s);
    };
    if (event == u"KeyDown"_s)
        connect(shown.combo, &ImageCombo::KeyDown, this, act);
    else if (event == u"KeyPress"_s)
        connect(shown.combo, &ImageCombo::KeyPress, this, act);
    else if (event == u"KeyUp"_s)
        connect(shown.combo, &ImageCombo::KeyUp, this, act);
    else if (event == u"Change"_s)
        connect(shown.combo, &ImageCombo::Change, this, act);
    else
        connect(shown.combo, &ImageCombo::Click, this, act);
    shown.key(static_cast<Qt::Key>(key));
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QVERIFY(deeds > 0);
    QCOMPARE(shown.combo.isNull(), deed == u"destroy"_s);
    QVERIFY(!QApplication::activePopupWidget() || (shown.combo && shown->isListOpen()));
}

void ImageComboKeyTest::keepsErrorsFromTheEventLoop()
{
    const ShownCombo shown;
    connect(shown.combo, &ImageCombo::Change, this,
            [] { throw Error(InvalidCall, u"Host"_s, u"went wrong"_s); });
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: Host: went wrong");
    shown.type(u"t"_s);
    QVERIFY(shown->isListOpen());
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: Host: went wrong");
    shown.field().insert(u"e"_s); // as a paste, whose event comes later
    QCoreApplication::processEvents();
    QCOMPARE(shown->text(), u"te"_s);
}

ORVT_TEST(ImageComboKeyTest)
#include "ImageComboKeyTest.moc"

#include <QtGui/QKeyEvent>
