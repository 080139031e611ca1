// The list of known words as a window: how wide it is, where it stands, what it shows,
// and when it goes.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

#include <QtGui/QScreen>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

#include <functional>
#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class WordListWindowTest : public WidgetTest
{
    Q_OBJECT

private:
    static void popUp(EditorHost &host, bool absolutely = false)
    {
        host.list->TryToPopupList(absolutely);
    }
    static bool isOpen(EditorHost &host) { return host.wordList().isVisible(); }
    static QString chosen(EditorHost &host)
    {
        const ListItem *item = host.wordList().SelectedItem();
        return item ? item->Text() : QString();
    }
    static QString first(EditorHost &host) { return host.wordList().GetFirstVisible()->Text(); }
    static void addNames(EditorHost &host, const QString &prefix, int count)
    {
        for (int i = 100; i < 100 + count; ++i)
            host.inputs.Add(prefix + QString::number(i));
    }
    static QPoint caretOnScreen(EditorHost &host)
    {
        return host.box().viewport()->mapToGlobal(host.box().cursorRect().bottomLeft());
    }
    // From the caret's line to the list.
    static QPoint distance(EditorHost &host)
    {
        return host.wordList().geometry().topLeft() - caretOnScreen(host);
    }
    static bool showsAllTexts(ReportList &list)
    {
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            if (list.sizeHintForIndex(list.model()->index(row, 0)).width() > list.columnWidth(0))
                return false;
        }
        return true;
    }

private Q_SLOTS:
    void itIsAsWideAsItsTexts()
    {
        EditorHost host;
        host.list->setListviewType(dsInput); // the table is as wide as the control
        host.list->setListviewType(dsCode);
        host.setText(u"|"_s);
        popUp(host);
        ReportList &list = host.wordList();
        QVERIFY2(list.width() < 250, qPrintable(QString::number(list.width())));
        QVERIFY(showsAllTexts(list));
        QCOMPARE(list.columnWidth(0), list.viewport()->width());
        const int narrow = list.width();
        popUp(host);

        host.inputs.Add(u"ANameOfThirtyLettersAltogether"_s);
        popUp(host);
        QVERIFY(list.width() > narrow);
        QVERIFY(showsAllTexts(list));
        popUp(host);
        host.inputs.Clear();
        popUp(host);
        QCOMPARE(list.width(), narrow);
        popUp(host);
        QFont large = list.font();
        large.setPointSizeF(2 * large.pointSizeF());
        list.setFont(large);
        popUp(host);
        QVERIFY(list.width() > narrow);
        QVERIFY(showsAllTexts(list));
    }

    void aVeryLongNameDoesNotMakeItWider()
    {
        EditorHost host;
        host.inputs.Add(QString(1000, u'W'));
        host.setText(u"|"_s);
        popUp(host);
        ReportList &list = host.wordList();
        QVERIFY(list.width() < 60 * list.fontMetrics().averageCharWidth());
        QCOMPARE(list.columnWidth(0), list.viewport()->width()); // an ellipsis shows it
    }

    void whatBeginsSoStandsFirst()
    {
        EditorHost host;
        addNames(host, u"Temp"_s, 60);
        host.setText(u"tem|"_s);
        popUp(host);
        QCOMPARE(chosen(host), u"Temp1"_s);
        QCOMPARE(first(host), u"Temp1"_s);
        host.type(u"p13"_s);
        QCOMPARE(chosen(host), u"Temp130"_s);
        QCOMPARE(first(host), u"Temp130"_s);
        host.key(Qt::Key_Down);
        QCOMPARE(chosen(host), u"Temp131"_s);
        QCOMPARE(first(host), u"Temp130"_s); // keys scroll no more than they must
        popUp(host);
        host.setText(u"|"_s);
        popUp(host);
        QCOMPARE(chosen(host), QString());
        QCOMPARE(host.wordList().GetFirstVisible()->Index(), 1);
    }

    void openedByTheHostsButtonItTakesKeys()
    {
        EditorHost host;
        auto *button = new QPushButton(&host.form);
        button->show();
        connect(button, &QPushButton::clicked, button, [&host] { popUp(host); });
        host.setText(u"tem|"_s);
        button->setFocus();
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(isOpen(host));
        QVERIFY(host.box().hasFocus());
        QTest::keyClick(host.form.focusWidget(), Qt::Key_Down);
        QCOMPARE(chosen(host), u"Temp2"_s);
        QTest::keyClick(host.form.focusWidget(), Qt::Key_Escape);
        QVERIFY(!isOpen(host));
    }

    void openedFromAnotherWindowItTakesKeys()
    {
        EditorHost host;
        host.setText(u"tem|"_s);
        QWidget palette;
        palette.show();
        palette.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&palette));
        popUp(host);
        QTRY_VERIFY(host.box().hasFocus());
        QVERIFY(isOpen(host));
        host.key(Qt::Key_Return);
        QCOMPARE(host.marked(), u"Temp1|"_s);
    }

    void itFollowsTheWord_data()
    {
        QTest::addColumn<EditorAct>("move");
        QTest::newRow("the window moves") << EditorAct(
            [](EditorHost &host) { host.form.move(host.form.pos() + QPoint(60, 40)); });
        QTest::newRow("the layout moves the editor")
            << EditorAct([](EditorHost &host) { host.before->setMinimumHeight(90); });
        QTest::newRow("the text scrolls")
            << EditorAct([](EditorHost &host) { host.box().verticalScrollBar()->setValue(1); });
    }
    void itFollowsTheWord()
    {
        QFETCH(const EditorAct, move);
        EditorHost host;
        host.setText(u"a\r\nb\r\nc\r\nx te|"_s + u"\r\n"_s.repeated(100));
        popUp(host);
        const QPoint before = distance(host);
        const QPoint caret = caretOnScreen(host);
        move(host);
        QTRY_VERIFY(caretOnScreen(host) != caret);
        QTRY_COMPARE(distance(host), before);
        QVERIFY(isOpen(host));
        host.key(Qt::Key_Return);
        QVERIFY(host.box().Text().contains(u"x Temp1\r\n"_s));
    }

    void typingThatScrollsTheTextLeavesItOpen()
    {
        EditorHost host;
        host.setText(QString(300, u' ') + u'|');
        popUp(host);
        host.type(u"temp"_s);
        QTest::qWait(1);
        QVERIFY(isOpen(host));
        QCOMPARE(chosen(host), u"Temp1"_s);
    }

    void itClosesWhenTheWordScrollsOutOfSight()
    {
        EditorHost host;
        host.setText(u"te|"_s + u"\r\n"_s.repeated(100));
        popUp(host);
        host.box().verticalScrollBar()->setValue(20);
        QTRY_VERIFY(!isOpen(host));
        popUp(host); // which shows the caret
        QVERIFY(isOpen(host));
        QTest::qWait(1);
        QVERIFY(isOpen(host));
        QCOMPARE(host.box().verticalScrollBar()->value(), 0);
    }

    void itCloses_data()
    {
        QTest::addColumn<EditorAct>("act");
        const auto row = [](const char *name, auto act) { QTest::newRow(name) << EditorAct(act); };
        row("RichTextVisible", [](EditorHost &host) { host.list->setRichTextVisible(false); });
        row("RichTexteNable", [](EditorHost &host) { host.list->setRichTexteNable(false); });
        row("Enabled", [](EditorHost &host) { host.list->setEnabled(false); });
        row("read-only", [](EditorHost &host) { host.box().setReadOnly(true); });
        row("hidden control", [](EditorHost &host) { host.list->hide(); });
        row("hidden window", [](EditorHost &host) { host.form.hide(); });
        row("disabled window", [](EditorHost &host) { host.form.setEnabled(false); });
        row("undo", [](EditorHost &host) {
            QString errMsg;
            host.list->Undo(errMsg);
        });
        row("table type", [](EditorHost &host) { host.list->setListviewType(dsInput); });
        row("code type again", [](EditorHost &host) { host.list->setListviewType(dsCode); });
        row("appearance", [](EditorHost &host) { host.list->Init_RichTextBox(host.settings); });
        row("another parent", [](EditorHost &host) {
            host.list->setParent(nullptr);
            host.form.layout()->addWidget(host.list);
        });
    }
    void itCloses()
    {
        QFETCH(const EditorAct, act);
        EditorHost host;
        host.setText(u"x|"_s);
        host.type(u"y te"_s);
        popUp(host);
        QVERIFY(isOpen(host));
        act(host);
        QVERIFY(!isOpen(host) || !host.wordList().isWindow());
        host.form.show(); // whatever was done, it opens again afterwards
        host.form.setEnabled(true);
        host.list->show();
        host.list->setListviewType(dsCode);
        host.list->setEnabled(true);
        host.box().setReadOnly(false);
        host.setText(u"te|"_s);
        popUp(host);
        QVERIFY(isOpen(host));
    }

    void itClosesWithItsWindowsActivity()
    {
        EditorHost host;
        host.setText(u"te|"_s);
        popUp(host);
        QWidget other;
        other.show();
        other.activateWindow();
        QTRY_VERIFY(!isOpen(host));
    }

    void itStaysClosedWhereNobodyCanType_data()
    {
        QTest::addColumn<EditorAct>("act");
        const auto row = [](const char *name, auto act) { QTest::newRow(name) << EditorAct(act); };
        row("hidden", [](EditorHost &host) { host.list->setRichTextVisible(false); });
        row("disabled", [](EditorHost &host) { host.list->setRichTexteNable(false); });
        row("read-only", [](EditorHost &host) { host.box().setReadOnly(true); });
        row("hidden window", [](EditorHost &host) { host.form.hide(); });
        row("destined to be hidden", [](EditorHost &host) {
            host.after->setFocus();
            connect(qApp, &QApplication::focusChanged, &host.form,
                    [&host] { host.list->setRichTextVisible(false); });
        });
    }
    void itStaysClosedWhereNobodyCanType()
    {
        QFETCH(const EditorAct, act);
        EditorHost host;
        host.setText(u"te|"_s);
        act(host);
        popUp(host);
        QVERIFY(!isOpen(host));
        QCOMPARE(host.box().Text(), u"te"_s);
    }

    void oneOfTheThreadIsOpenAtMost()
    {
        EditorHost one;
        EditorHost two;
        one.setText(u"te|"_s);
        two.setText(u"fa|"_s);
        popUp(one);
        popUp(two); // while one is open, that closes it
        QVERIFY(!isOpen(one));
        QVERIFY(!isOpen(two));
        popUp(two);
        QVERIFY(isOpen(two));
        two.key(Qt::Key_Return);
        QCOMPARE(two.marked(), u"Fan1|"_s);
        QVERIFY(!isOpen(two));
        popUp(one);
        QVERIFY(isOpen(one));
    }

    void anEditorIsDestroyedWithItsListOpen()
    {
        EditorHost host;
        host.setText(u"te|"_s);
        auto other = std::make_unique<ORVListView>();
        other->setListviewType(dsCode);
        other->resize(300, 200);
        other->show();
        other->TryToPopupList();
        QVERIFY(other->listView()->isVisible());
        other.reset();
        popUp(host); // there is none that it would close
        QVERIFY(isOpen(host));
        host.key(Qt::Key_Return);
        QCOMPARE(host.marked(), u"Temp1|"_s);
    }

    void itMovesSoonAndOnlyWhileItIsOpen()
    {
        EditorHost host;
        host.setText(u"te|"_s);
        popUp(host);
        host.form.move(host.form.pos() + QPoint(9, 9));
        host.key(Qt::Key_Escape);
        QTest::qWait(1);
        QVERIFY(!isOpen(host));
    }

    void nearTheScreensEndItStandsOverTheLine()
    {
        EditorHost host;
        const QRect screen = host.form.screen()->availableGeometry();
        host.setText(u"te|"_s);
        host.form.move(screen.right() - 60, screen.bottom() - 120);
        popUp(host);
        QVERIFY(screen.contains(host.wordList().geometry()));
        QVERIFY(host.wordList().geometry().bottom() < caretOnScreen(host).y());
    }
};

ORVT_TEST(WordListWindowTest)
#include "WordListWindowTest.moc"
