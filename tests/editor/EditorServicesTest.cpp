// Position, status, highlight, tool tips, events and the tab order.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtWidgets/QCheckBox>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class EditorServicesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void thePositionIsShownFromOne_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("position");
        QTest::newRow("empty") << u"|"_s << u"Row: 1, Col: 1"_s;
        QTest::newRow("start") << u"|abc"_s << u"Row: 1, Col: 1"_s;
        QTest::newRow("in the first line") << u"ab|c"_s << u"Row: 1, Col: 3"_s;
        QTest::newRow("end of a line") << u"abc|\r\nd"_s << u"Row: 1, Col: 4"_s;
        QTest::newRow("after a line break") << u"abc\r\n|d"_s << u"Row: 2, Col: 1"_s;
        QTest::newRow("empty line") << u"a\r\n\r\n|\r\nb"_s << u"Row: 3, Col: 1"_s;
        QTest::newRow("last line") << u"a\r\n\r\nxyz|"_s << u"Row: 3, Col: 4"_s;
    }
    void thePositionIsShownFromOne()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, position);
        EditorHost host;
        host.setText(text);
        QCOMPARE(host.list->GetPositionDisplay(), position);
    }

    void theStatusComesOnceHalfASecondAfterTheLastKey()
    {
        EditorHost host;
        host.setText(u"|"_s);
        QStringList shown;
        QObject::connect(host.list, &ORVListView::StatusUpdate, host.list,
                         [&](QString &text) { shown << text; });
        QElapsedTimer sinceLastKey;
        for (int i = 0; i < 4; ++i) {
            host.type(u"a"_s);
            sinceLastKey.start();
            QTest::qWait(300); // the keys' own rhythm
        }
        QVERIFY(shown.isEmpty());
        QTRY_COMPARE(shown, QStringList(u"Row: 1, Col: 5"_s));
        QVERIFY2(sinceLastKey.elapsed() >= 450,
                 qPrintable(QString::number(sinceLastKey.elapsed())));
        const auto *timer = host.list->findChild<QTimer *>(u"Status_Timer"_s);
        QVERIFY(timer);
        QVERIFY(!timer->isActive());
    }

    void textOfAnInputMethodRearmsTheTimerToo()
    {
        EditorHost host;
        host.setText(u"|"_s);
        QStringList shown;
        QObject::connect(host.list, &ORVListView::StatusUpdate, host.list,
                         [&](QString &text) { shown << text; });
        for (const QString &text : {u"é"_s, u"語の"_s}) {
            QInputMethodEvent event;
            event.setCommitString(text);
            QCoreApplication::sendEvent(&host.box(), &event);
            QVERIFY(shown.isEmpty());
        }
        QTRY_COMPARE(shown, QStringList(u"Row: 1, Col: 4"_s));
    }

    void everyKeyRearmsTheTimerEvenASwallowedOne()
    {
        EditorHost host;
        host.key('B', Qt::ControlModifier);
        const auto *timer = host.list->findChild<QTimer *>(u"Status_Timer"_s);
        QVERIFY(timer);
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 100);
    }

    void aTextOnTheLineIsHighlighted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("sought");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("expected");
        const QString three = u"ab cd\r\ncd ab\r\n\r\nlast"_s;
        QTest::newRow("first line") << three << u"cd"_s << 1 << u"ab |cd|\r\ncd ab\r\n\r\nlast"_s;
        QTest::newRow("its beginning")
            << three << u"ab"_s << 1 << u"|ab| cd\r\ncd ab\r\n\r\nlast"_s;
        QTest::newRow("second line") << three << u"AB"_s << 2 << u"ab cd\r\ncd |ab|\r\n\r\nlast"_s;
        QTest::newRow("last line") << three << u"last"_s << 4 << u"ab cd\r\ncd ab\r\n\r\n|last|"_s;
        QTest::newRow("not on the line")
            << three << u"zz"_s << 2 << u"ab cd\r\n|cd ab|\r\n\r\nlast"_s;
        QTest::newRow("not on the first line")
            << three << u"zz"_s << 1 << u"a|b cd|\r\ncd ab\r\n\r\nlast"_s;
        QTest::newRow("not on an empty line")
            << three << u"zz"_s << 3 << u"|ab cd\r\ncd ab\r\n\r\nlast"_s;
        QTest::newRow("line 0") << three << u"ab"_s << 0 << u"|ab cd\r\ncd ab\r\n\r\nlast"_s;
        QTest::newRow("beyond the text")
            << three << u"ab"_s << 5 << u"|ab cd\r\ncd ab\r\n\r\nlast"_s;
        QTest::newRow("negative") << three << u"ab"_s << -1 << u"|ab cd\r\ncd ab\r\n\r\nlast"_s;
    }
    void aTextOnTheLineIsHighlighted()
    {
        QFETCH(const QString, text);
        QFETCH(QString, sought);
        QFETCH(const int, line);
        QFETCH(const QString, expected);
        EditorHost host;
        host.list->setCodeText(text);
        auto number = static_cast<qint16>(line);
        host.list->HighLightText(sought, number);
        QCOMPARE(host.marked(), expected);
    }

    void toolTipsGoToTheButtonNamed()
    {
        EditorHost host;
        auto *read = host.list->findChild<QWidget *>(u"ImgRead"_s);
        auto *write = host.list->findChild<QWidget *>(u"ImgWrite"_s);
        QVERIFY(read);
        QVERIFY(write);
        const QString before = read->toolTip();
        QString text = u"left"_s;
        bool isLeft = false;
        host.list->ResetToolTipText(text, isLeft);
        QCOMPARE(write->toolTip(), u"left"_s);
        QCOMPARE(read->toolTip(), before);
        isLeft = true;
        text = u"right"_s;
        host.list->ResetToolTipText(text, isLeft);
        QCOMPARE(read->toolTip(), u"right"_s);
        QCOMPARE(write->toolTip(), u"left"_s);
    }

    void aMousePressIsRaised()
    {
        EditorHost host;
        QList<QVariantList> presses;
        QObject::connect(host.list, &ORVListView::MouseDown, host.list,
                         [&](qint16 button, qint16 shift, float x, float y) {
                             presses << QVariantList{button, shift, x, y};
                         });
        const QPoint place(20, 30);
        const QPoint inBox = host.box().viewport()->mapTo(&host.box(), place);
        QTest::mouseClick(host.box().viewport(), Qt::RightButton, Qt::ControlModifier, place);
        QCOMPARE(presses.size(), 1);
        QCOMPARE(presses[0][0].toInt(), 2);
        QCOMPARE(presses[0][1].toInt(), 2);
        QCOMPARE(presses[0][2].toFloat(), float(inBox.x() * 1440.0 / host.box().logicalDpiX()));
        QCOMPARE(presses[0][3].toFloat(), float(inBox.y() * 1440.0 / host.box().logicalDpiY()));
    }

    void neverRaisedEventsAreNeverRaised()
    {
        EditorHost host;
        int raised = 0;
        QObject::connect(host.list, &ORVListView::QuerySetWord, host.list, [&] { ++raised; });
        QObject::connect(host.list, &ORVListView::UpdateWordList, host.list, [&] { ++raised; });
        host.type(u"if temp1 \n"_s);
        host.key(Qt::Key_Space, Qt::ControlModifier);
        host.key(Qt::Key_Down);
        host.key(Qt::Key_Return);
        host.list->RefillListviewWithWordList();
        host.list->UpdateWordListItem(u"Temp1"_s, u"T"_s, dsInput);
        QCOMPARE(raised, 0);
    }

    void controlsOfTheFormAreNoTabStopsMeanwhile()
    {
        EditorHost host;
        host.after->setFocus();
        host.after->setProperty("TabStop", true);
        host.box().setFocus();
        QCOMPARE(host.before->focusPolicy() & Qt::TabFocus, 0);
        QCOMPARE(host.after->focusPolicy() & Qt::TabFocus, 0);
        QCOMPARE(host.before->property("TabStop"), QVariant(false));
        QCOMPARE(host.after->property("TabStop"), QVariant(false));
        host.after->setFocus();
        QCOMPARE(host.before->focusPolicy(), Qt::StrongFocus);
        QCOMPARE(host.after->focusPolicy(), Qt::StrongFocus);
        QCOMPARE(host.before->property("TabStop"), QVariant());
        QCOMPARE(host.after->property("TabStop"), QVariant(true));
    }

    void controlsMayGoWhileTheyAreNoTabStops()
    {
        EditorHost host;
        delete host.before;
        host.before = nullptr;
        host.after->setFocus();
        QCOMPARE(host.after->focusPolicy(), Qt::StrongFocus);
    }

    void destroyingTheEditorGivesTheTabStopsBack()
    {
        EditorHost host;
        QCOMPARE(host.after->focusPolicy() & Qt::TabFocus, 0);
        delete host.list;
        QCOMPARE(host.after->focusPolicy(), Qt::StrongFocus);
    }

    void theFormIsCodeParentElseFormParentElseTheWindow()
    {
        EditorHost host;
        QWidget codeParent;
        QWidget formParent;
        auto *inCode = new QCheckBox(&codeParent);
        auto *inForm = new QCheckBox(&formParent);
        const Qt::FocusPolicy usual = inCode->focusPolicy();
        const auto refocus = [&host] {
            host.after->setFocus();
            host.box().setFocus();
        };
        host.list->setFormParent(&formParent);
        refocus();
        QCOMPARE(inForm->focusPolicy() & Qt::TabFocus, 0);
        QCOMPARE(host.after->focusPolicy(), Qt::StrongFocus);
        host.list->SetCodeParent(&codeParent);
        refocus();
        QCOMPARE(inCode->focusPolicy() & Qt::TabFocus, 0);
        QCOMPARE(inForm->focusPolicy(), usual);
        host.list->SetCodeParent(nullptr);
        host.list->setFormParent(nullptr);
        refocus();
        QCOMPARE(inCode->focusPolicy(), usual);
        QCOMPARE(host.after->focusPolicy() & Qt::TabFocus, 0);
    }

    void aCodeParentMayGo()
    {
        EditorHost host;
        {
            QWidget codeParent;
            host.list->SetCodeParent(&codeParent);
        }
        host.after->setFocus();
        host.box().setFocus();
        QCOMPARE(host.after->focusPolicy() & Qt::TabFocus, 0);
    }
};

ORVT_TEST(EditorServicesTest)
#include "EditorServicesTest.moc"
