// The field that asks for a line.

#include "editor/view/ViewFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/TextProvider.h>
#include <ORVTListview/TranslatedTexts.h>

#include <QtCore/QLocale>
#include <QtGui/QAccessible>
#include <QtWidgets/QSpinBox>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class GoToLineTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<ViewHost> m_host;

    RichTextBox &box() { return m_host->box(); }
    QWidget *bar() { return box().findChild<QWidget *>(u"GoToLineBar"_s); }
    QSpinBox &field() { return *bar()->findChild<QSpinBox *>(); }
    bool isShown() { return bar() && bar()->isVisible(); }

    void ask()
    {
        m_host->view().showGoToLine();
        QVERIFY(isShown());
        QVERIFY(field().hasFocus());
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        m_host = std::make_unique<ViewHost>();
        m_host->setLines(100);
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void isNotThereAtFirst() { QVERIFY(!isShown()); }

    void enterGoesThere()
    {
        const QString text = box().Text();
        ask();
        QTest::keyClicks(&field(), u"57"_s);
        QTest::keyClick(&field(), Qt::Key_Return);
        QVERIFY(!isShown());
        QVERIFY(box().hasFocus());
        QCOMPARE(box().SelStart(), box().lineStart(56));
        QVERIFY(box().viewport()->rect().contains(box().cursorRect()));
        ask(); // a second time, with the line of now
        QCOMPARE(field().text(), u"57"_s);
        QTest::keyClicks(&field(), u"3"_s);
        QTest::keyClick(&field(), Qt::Key_Enter);
        QCOMPARE(box().textCursor().blockNumber(), 2);
        QCOMPARE(box().Text(), text);
    }

    void screenReadersAreToldWhatItAsks()
    {
        ask();
        const QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&field());
        QCOMPARE(access->role(), QAccessible::SpinBox);
        QCOMPARE(access->text(QAccessible::Name), u"Go to line:"_s);
        access = QAccessible::queryAccessibleInterface(bar());
        QCOMPARE(access->text(QAccessible::Name), u"Go to line:"_s);
    }

    void speaksTheLanguageInForce()
    {
        ask();
        TranslatedTexts texts(QLocale(QLocale::German));
        setTextProvider(&texts);
        m_host->list->ReInitializeStrings();
        QCOMPARE(bar()->accessibleName(), u"Gehe zu Zeile:"_s);
        QVERIFY(field().hasFocus());
        setTextProvider(nullptr);
    }

    void escCloses()
    {
        box().setSelStart(3);
        ask();
        QTest::keyClicks(&field(), u"57"_s);
        QTest::keyClick(&field(), Qt::Key_Escape);
        QVERIFY(!isShown());
        QVERIFY(box().hasFocus());
        QCOMPARE(box().SelStart(), 3);
    }

    void noKeyOrClickGetsToTheProgram()
    {
        const QString text = box().Text();
        ask();
        for (const int key : {int(Qt::Key_X), int(Qt::Key_Delete), int(Qt::Key_Backspace),
                              int(Qt::Key_PageDown), int(Qt::Key_F6)})
            QTest::keyClick(&field(), static_cast<Qt::Key>(key));
        QVERIFY(isShown());
        QTest::mouseClick(bar(), Qt::LeftButton, {}, QPoint(bar()->width() - 5, 5));
        QCOMPARE(box().Text(), text);
        QCOMPARE(box().SelStart(), 0);
        QVERIFY(isShown());
    }

    void closesWhenTheFocusGoes()
    {
        ask();
        m_host->after->setFocus();
        QVERIFY(!isShown());
        QVERIFY(m_host->after->hasFocus());
    }

    void closesWithItsEditor()
    {
        ask();
        m_host->list->setListviewType(dsInput);
        m_host->list->setListviewType(dsCode);
        QVERIFY(!isShown());
        m_host->list->setListviewType(dsInput);
        m_host->view().showGoToLine();
        QVERIFY(!isShown());
    }

    void standsBelowTheText()
    {
        m_host->view().setLineNumbersVisible(true);
        QCoreApplication::processEvents();
        ask();
        m_host->form.resize(700, 500);
        QCoreApplication::processEvents();
        const QRect text = box().viewport()->geometry();
        QCOMPARE(bar()->geometry().top(), text.bottom() + 1);
        QCOMPARE(bar()->geometry().left(), m_host->margin().geometry().left());
        QCOMPARE(bar()->geometry().right(), text.right());
        const int room = text.height();
        QTest::keyClick(&field(), Qt::Key_Escape);
        QCOMPARE(box().viewport()->height(), room + bar()->height());
    }

    void onlyOneBarIsShown()
    {
        m_host->view().showFindBar();
        auto *find = box().findChild<QWidget *>(u"FindBar"_s);
        QVERIFY(find->isVisible());
        ask();
        QVERIFY(!find->isVisible());
        QCOMPARE(bar()->geometry().top(), box().viewport()->geometry().bottom() + 1);
        m_host->view().showFindBar();
        QVERIFY(!isShown());
        QVERIFY(find->isVisible());
        QVERIFY(find->isAncestorOf(QApplication::focusWidget()));
        QCOMPARE(find->geometry().top(), box().viewport()->geometry().bottom() + 1);
    }

    void noNumberOutsideTheProgramCanBeTyped()
    {
        ask();
        QTest::keyClicks(&field(), u"101"_s);
        QTest::keyClick(&field(), Qt::Key_Return);
        QCOMPARE(box().textCursor().blockNumber(), 9); // without the digit too many
    }

    void asksInAReadOnlyEditor()
    {
        box().setReadOnly(true);
        ask();
        QTest::keyClicks(&field(), u"9"_s);
        QTest::keyClick(&field(), Qt::Key_Return);
        QCOMPARE(box().textCursor().blockNumber(), 8);
    }

    void aHostMayDestroyTheComponentAsItGoes()
    {
        ask();
        QPointer<ORVListView> list(m_host->list);
        connect(&box(), &RichTextBox::cursorPositionChanged, this, [this] {
            QMetaObject::invokeMethod(
                m_host->list, [list = m_host->list] { delete list; }, Qt::QueuedConnection);
        });
        QTest::keyClick(&field(), Qt::Key_Up);
        QTest::keyClicks(&field(), u"9"_s);
        QTest::keyClick(&field(), Qt::Key_Return);
        QTRY_VERIFY(!list);
    }
};

ORVT_TEST(GoToLineTest)
#include "GoToLineTest.moc"
