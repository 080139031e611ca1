// What the user does with ORVDataCombo, and what the host hears of it.

#include "combo/DataComboHost.h"
#include "support/ShownTexts.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/MemberTable.h>

#include <QtCore/QMetaMethod>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QListView>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Every event of the control but drag and drop, as text, in order, with what the
// control then says.
class Heard : public QObject
{
public:
    explicit Heard(ORVDataCombo *combo)
    {
        const auto state = [combo] {
            return u"%1 \"%2\""_s.arg(combo->ListIndex()).arg(combo->Text());
        };
        connect(combo, &ORVDataCombo::Change, this,
                [this, state] { m_log.append(u"Change "_s + state()); });
        connect(combo, &ORVDataCombo::Click, this,
                [this, state] { m_log.append(u"Click "_s + state()); });
        connect(combo, &ORVDataCombo::picked, this, [this, combo] {
            m_log.append(u"picked"_s);
            m_picked.append(combo->Text());
        });
        connect(combo, &ORVDataCombo::DblClick, this, [this] { m_log.append(u"DblClick"_s); });
        connect(combo, &ORVDataCombo::KeyDown, this, [this](qint16 &code, qint16 &shift) {
            m_log.append(u"KeyDown %1 %2"_s.arg(code).arg(shift));
        });
        connect(combo, &ORVDataCombo::KeyPress, this,
                [this](qint16 &code) { m_log.append(u"KeyPress %1"_s.arg(code)); });
        connect(combo, &ORVDataCombo::KeyUp, this, [this](qint16 &code, qint16 &shift) {
            m_log.append(u"KeyUp %1 %2"_s.arg(code).arg(shift));
        });
    }

    QString take() { return std::exchange(m_log, {}).join(u", "_s); }

    // The points that were decided for.
    QString picked() { return std::exchange(m_picked, {}).join(u", "_s); }

private:
    QStringList m_log;
    QStringList m_picked;
};

} // namespace

class DataComboUseTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void hasItsEventsInOrder();
    void findsAPointAmongThirtyThousandByKeyboard();
    void coloursTheTextWhenTheFocusLeaves();
    void coloursTheTextOfAChosenPoint();
    void keepsTheColourWithoutASelection();
    void keepsTheThemesColourBeforeTheHostGivesOne();
    void showsSystemColoursOfTheTheme();
    void takesALaterColourWhenTheFocusLeaves();
    void choosesByMouse();
    void tellsALookFromAChoice();
    void aNameThatIsConfirmedIsPicked();
    void whatIsChosenInTheListIsPicked();
    void whatOnlyLeavesIsNotPicked();
    void aKeyThatTheHostSwallowsPicksNothing();
    void whatTheHostTookAwayAtTheClickIsNotPicked();
    void tellsADoubleClick();
    void honoursWhatTheHostDoesToKeys();
    void theHostMayFillItInAnEvent();
    void bearsItsEndInEveryEvent_data();
    void bearsItsEndInEveryEvent();
    void dropsAreForwarded();
    void isInTheOrderOfTabs();
    void showsNoTextOfItsOwn();
};

void DataComboUseTest::hasItsEventsInOrder()
{
    const ORVDataCombo control;
    QByteArrayList names;
    for (const Member &member : control.Members().members()) {
        if (member.kind != MemberKind::Event)
            continue;
        QCOMPARE(control.metaObject()->method(member.signalIndex).name(), member.name.toLatin1());
        names.append(member.name.toLatin1());
        QCOMPARE(member.number, names.size());
    }
    QCOMPARE(names, QByteArrayList({"Change", "Click", "DblClick", "KeyDown", "KeyPress", "KeyUp",
                                    "OLECompleteDrag", "OLEDragDrop", "OLEDragOver",
                                    "OLEGiveFeedback", "OLESetData", "OLEStartDrag", "picked"}));
}

void DataComboUseTest::findsAPointAmongThirtyThousandByKeyboard()
{
    DataComboHost host;
    host.giveColours();
    PointList many;
    for (int i = 1; i <= 30'000; ++i)
        many.Add(i == 23'456 ? u"Temp1"_s : u"Damper%1"_s.arg(i), i);
    host.tree.SetCollectionRenamable(nullptr, nullptr, nullptr, nullptr, &many, nullptr);
    host.fill(dsOutput);
    host.showFocused();
    Heard heard(host.combo);
    host.type(u"mp1"_s);
    QCOMPARE(heard.take(), u"KeyDown 77 0, KeyPress 109, Change -1 \"m\", KeyUp 77 0, "
                           "KeyDown 80 0, KeyPress 112, Change -1 \"mp\", KeyUp 80 0, "
                           "KeyDown 49 0, KeyPress 49, Change -1 \"mp1\", KeyUp 49 0"_s);
    host.key(Qt::Key_Return);
    QCOMPARE(heard.take(),
             u"KeyDown 13 0, KeyPress 13, Click 23455 \"Temp1\", picked, KeyUp 13 0"_s);
    QCOMPARE(host.combo->ListIndex(), qint16{23'455});
    QCOMPARE(host.combo->ItemData(host.combo->ListIndex()), 23'456);
    QCOMPARE(host.colour(), QColor(128, 0, 255));
}

void DataComboUseTest::coloursTheTextWhenTheFocusLeaves()
{
    DataComboHost host;
    host.fill(dsInput);
    host.combo->SetListIndex(u"Temp2"_s);
    host.showFocused();
    host.giveColours();
    QVERIFY(host.colour() != QColor(255, 0, 0));
    host.after->setFocus();
    QCOMPARE(host.colour(), QColor(255, 0, 0));
}

void DataComboUseTest::coloursTheTextOfAChosenPoint()
{
    DataComboHost host;
    host.giveColours();
    host.fill(dsInput);
    host.showFocused();
    QColor atClick;
    connect(host.combo, &ORVDataCombo::Click, this, [&] { atClick = host.colour(); });
    host.key(Qt::Key_Down);
    QCOMPARE(host.combo->ListIndex(), qint16{0});
    QCOMPARE(atClick, QColor(255, 0, 0));
}

void DataComboUseTest::keepsTheColourWithoutASelection()
{
    DataComboHost host;
    host.giveColours();
    host.fill(dsInput);
    host.showFocused();
    const QColor before = host.colour();
    host.type(u"nothing"_s);
    host.after->setFocus();
    QCOMPARE(host.combo->ListIndex(), qint16{-1});
    QCOMPARE(host.colour(), before);
    host.combo->SetListIndex(u"Temp1"_s);
    host.combo->setText(u"nothing"_s);
    host.combo->setFocus();
    host.after->setFocus();
    QCOMPARE(host.colour(), QColor(255, 0, 0));
}

void DataComboUseTest::keepsTheThemesColourBeforeTheHostGivesOne()
{
    DataComboHost host;
    QPalette theme = host.form.palette();
    theme.setColor(QPalette::Text, Qt::yellow);
    host.form.setPalette(theme);
    host.fill(dsInput);
    host.showFocused();
    host.combo->SetListIndex(u"Temp1"_s);
    host.after->setFocus();
    QCOMPARE(host.colour(), QColor(Qt::yellow));
}

void DataComboUseTest::showsSystemColoursOfTheTheme()
{
    DataComboHost host;
    QPalette theme = host.form.palette();
    theme.setColor(QPalette::Text, Qt::cyan);
    host.form.setPalette(theme);
    RichTextSettings settings;
    settings.InputColor = static_cast<qint32>(0x80000008U);
    host.giveColours(settings);
    host.fill(dsInput);
    host.combo->SetListIndex(u"Temp1"_s);
    QCOMPARE(host.colour(), QColor(Qt::cyan));
}

void DataComboUseTest::takesALaterColourWhenTheFocusLeaves()
{
    DataComboHost host;
    host.giveColours();
    host.fill(dsConst);
    host.combo->SetListIndex(u"Limit1"_s);
    host.showFocused();
    RichTextSettings settings;
    settings.ConstantColor = 0x00123456;
    host.giveColours(settings);
    QCOMPARE(host.colour(), QColor(128, 0, 0));
    host.after->setFocus();
    QCOMPARE(host.colour(), QColor(0x56, 0x34, 0x12));
}

void DataComboUseTest::choosesByMouse()
{
    DataComboHost host;
    host.giveColours();
    host.fill(dsVariable);
    host.show();
    Heard heard(host.combo);
    host.inner().showPopup();
    const QListView &list = *host.inner().listView();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(1, 0)).center());
    QCOMPARE(heard.take(), u"Click 1 \"Var2\", picked"_s);
    QCOMPARE(host.colour(), QColor(0, 0, 255));
}

void DataComboUseTest::tellsALookFromAChoice()
{
    DataComboHost host;
    host.fill(dsInput);
    host.showFocused();
    Heard heard(host.combo);
    host.key(Qt::Key_Down);
    host.key(Qt::Key_Down);
    QVERIFY2(heard.take().contains(u"Click 1"_s), "the key chooses");
    QCOMPARE(heard.picked(), QString());
    QWheelEvent notch(QPointF(5, 5), host.combo->mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&host.field(), &notch);
    QVERIFY(!notch.isAccepted()); // left to what scrolls the form
    QCOMPARE(heard.take(), QString());
    host.key(Qt::Key_Return);
    QVERIFY(!heard.take().contains(u"Click"_s));
    QCOMPARE(heard.picked(), u"Temp2"_s);
    host.key(Qt::Key_Enter); // the same once more
    QCOMPARE(heard.picked(), u"Temp2"_s);
}

void DataComboUseTest::aNameThatIsConfirmedIsPicked()
{
    DataComboHost host;
    host.fill(dsInput);
    host.showFocused();
    Heard heard(host.combo);
    host.type(u"mp2"_s); // with the list
    host.key(Qt::Key_Return);
    QVERIFY(heard.take().endsWith(u"Click 1 \"Temp2\", picked, KeyUp 13 0"_s));
    QCOMPARE(heard.picked(), u"Temp2"_s);
    host.type(u"humidity"_s);
    host.inner().hidePopup();
    host.key(Qt::Key_Return);
    QCOMPARE(heard.picked(), u"Humidity"_s);
    host.type(u"nobody"_s);
    host.key(Qt::Key_Return);
    QCOMPARE(heard.picked(), QString());
}

void DataComboUseTest::whatIsChosenInTheListIsPicked()
{
    DataComboHost host;
    host.fill(dsInput);
    host.showFocused();
    Heard heard(host.combo);
    const QListView &list = *host.inner().listView();
    for (int time = 0; time < 2; ++time) {
        host.inner().showPopup();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.model()->index(1, 0)).center());
        QCOMPARE(heard.take(), u"Click 1 \"Temp2\", picked"_s);
        QCOMPARE(heard.picked(), u"Temp2"_s);
    }
    host.inner().showPopup();
    host.key(Qt::Key_Down);
    host.key(Qt::Key_Return);
    QCOMPARE(heard.picked(), u"Humidity"_s);
    host.inner().showPopup();
    host.key(Qt::Key_Up);
    host.key(Qt::Key_Escape);
    QCOMPARE(heard.picked(), QString());
}

void DataComboUseTest::whatOnlyLeavesIsNotPicked()
{
    DataComboHost host;
    host.fill(dsInput);
    host.showFocused();
    Heard heard(host.combo);
    host.type(u"temp2"_s);
    host.key(Qt::Key_Tab);
    QVERIFY(heard.take().contains(u"Click 1"_s));
    host.combo->setFocus(Qt::TabFocusReason);
    host.type(u"humidity"_s);
    host.inner().hidePopup();
    host.after->setFocus();
    QCoreApplication::processEvents();
    QVERIFY(heard.take().contains(u"Click 2"_s));
    host.combo->SetListIndex(u"Temp1"_s);
    QCOMPARE(heard.picked(), QString());
}

void DataComboUseTest::aKeyThatTheHostSwallowsPicksNothing()
{
    DataComboHost host;
    host.fill(dsInput);
    host.combo->SetListIndex(u"Temp1"_s);
    host.showFocused();
    Heard heard(host.combo);
    connect(host.combo, &ORVDataCombo::KeyDown, this, [](qint16 &code, qint16 &) { code = 0; });
    host.key(Qt::Key_Return);
    QCOMPARE(heard.picked(), QString());
}

void DataComboUseTest::whatTheHostTookAwayAtTheClickIsNotPicked()
{
    DataComboHost host;
    host.fill(dsInput);
    host.showFocused();
    Heard heard(host.combo);
    connect(host.combo, &ORVDataCombo::Click, this, [&] { host.combo->Clear(); });
    host.type(u"temp2"_s);
    host.key(Qt::Key_Return);
    QVERIFY(heard.take().contains(u"Click"_s));
    QCOMPARE(heard.picked(), QString());
}

void DataComboUseTest::tellsADoubleClick()
{
    DataComboHost host;
    host.showFocused();
    Heard heard(host.combo);
    QTest::mouseDClick(&host.field(), Qt::LeftButton);
    QCOMPARE(heard.take(), u"DblClick"_s);
}

void DataComboUseTest::honoursWhatTheHostDoesToKeys()
{
    DataComboHost host;
    host.fill(dsInput);
    host.showFocused();
    connect(host.combo, &ORVDataCombo::KeyDown, this, [](qint16 &code, qint16 &) {
        if (code == 'X')
            code = 0;
    });
    connect(host.combo, &ORVDataCombo::KeyPress, this, [](qint16 &code) {
        if (code == '-')
            code = '_';
        else if (code == 'y')
            code = 0;
    });
    host.type(u"ax-yb"_s);
    QCOMPARE(host.combo->Text(), u"a_b"_s);
}

void DataComboUseTest::theHostMayFillItInAnEvent()
{
    DataComboHost host;
    host.fill(dsInput);
    host.showFocused();
    connect(host.combo, &ORVDataCombo::Change, this, [&] {
        host.fill(dsVariable);
        host.combo->SetListIndex(u"Var1"_s);
    });
    host.type(u"te"_s);
    QCOMPARE(host.combo->ListCount(), qint16{2});
    QCOMPARE(host.combo->ListIndex(), qint16{0});
    QCOMPARE(host.combo->Text(), u"Var1"_s);
    QVERIFY(!host.inner().isListOpen());
}

void DataComboUseTest::bearsItsEndInEveryEvent_data()
{
    QTest::addColumn<QString>("event");
    for (const QString &event :
         {u"Change"_s, u"Change by the host"_s, u"Click"_s, u"Click at exit"_s, u"picked"_s,
          u"DblClick"_s, u"KeyDown"_s, u"KeyPress"_s, u"KeyUp"_s})
        QTest::addRow("%s", qPrintable(event)) << event;
}

void DataComboUseTest::bearsItsEndInEveryEvent()
{
    QFETCH(QString, event);
    DataComboHost host;
    host.fill(dsInput);
    host.showFocused();
    const auto end = [&] { delete host.combo; };
    if (event.startsWith(u"Change"_s))
        connect(host.combo, &ORVDataCombo::Change, this, end);
    else if (event.startsWith(u"Click"_s))
        connect(host.combo, &ORVDataCombo::Click, this, end);
    else if (event == u"picked"_s)
        connect(host.combo, &ORVDataCombo::picked, this, end);
    else if (event == u"DblClick"_s)
        connect(host.combo, &ORVDataCombo::DblClick, this, end);
    else if (event == u"KeyDown"_s)
        connect(host.combo, &ORVDataCombo::KeyDown, this, end);
    else if (event == u"KeyPress"_s)
        connect(host.combo, &ORVDataCombo::KeyPress, this, end);
    else
        connect(host.combo, &ORVDataCombo::KeyUp, this, end);
    if (event == u"Change by the host"_s) {
        host.combo->setText(u"text"_s);
    } else if (event == u"DblClick"_s) {
        QTest::mouseDClick(&host.field(), Qt::LeftButton);
    } else {
        host.type(u"temp1"_s);
        if (event == u"Click at exit"_s) {
            host.inner().hidePopup();
            host.after->setFocus();
        } else {
            host.key(Qt::Key_Return);
        }
    }
    QCoreApplication::processEvents();
    QVERIFY(host.combo.isNull());
    QVERIFY(!QApplication::activePopupWidget());
}

void DataComboUseTest::dropsAreForwarded()
{
    DataComboHost host;
    QVERIFY(!host.inner().acceptDrops());
    host.combo->setAcceptDrops(true);
    QVERIFY(host.inner().acceptDrops());
    QVERIFY(!host.combo->dragsEntry());
    host.combo->setDragsEntry(true);
    QVERIFY(host.inner().dragsEntry());
}

void DataComboUseTest::isInTheOrderOfTabs()
{
    DataComboHost host;
    host.fill(dsInput);
    host.show();
    host.before->setFocus();
    host.key(Qt::Key_Tab);
    QVERIFY(host.inner().hasFocus());
    host.key(Qt::Key_Tab);
    QVERIFY(host.after->hasFocus());
    host.key(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(host.inner().hasFocus());
}

void DataComboUseTest::showsNoTextOfItsOwn()
{
    DataComboHost host;
    host.fill(dsInput);
    host.show();
    host.combo->InitStrings();
    QCOMPARE(shownWithoutLookup(*host.combo), QStringList());
}

ORVT_TEST(DataComboUseTest)
#include "DataComboUseTest.moc"
