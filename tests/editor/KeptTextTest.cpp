// An editor that keeps the text as it is: nothing spaces or respells it unasked.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtTest/QSignalSpy>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class KeptTextTest : public WidgetTest
{
    Q_OBJECT

private:
    const QString m_program = u"Y=LIMIT(A,0,100)\r\nA\tB\r\n\t(1)  \r\nREM  if(\tx"_s;

    void open(EditorHost &host)
    {
        host.list->codeView()->setKeepsText(true);
        host.list->openProgram(m_program);
    }

private Q_SLOTS:
    void isOffAtFirst()
    {
        EditorHost host;
        if (EditorHost::hasAllOfTheView())
            host.list->codeView()->setKeepsText(false);
        QVERIFY(!host.list->codeView()->keepsText());
        const QSignalSpy changes(host.list->codeView(), &CodeView::keepsTextChanged);
        host.list->codeView()->setKeepsText(true);
        host.list->codeView()->setKeepsText(true);
        QCOMPARE(changes.size(), 1);
        QVERIFY(host.list->codeView()->keepsText());
    }

    void undoAndRedoKeepIt()
    {
        EditorHost host;
        open(host);
        host.type(u"Z "_s);
        host.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(host.box().Text(), m_program);
        host.key(Qt::Key_Y, Qt::ControlModifier);
        QVERIFY2(host.box().Text().endsWith(m_program), qPrintable(host.box().Text()));
        host.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(host.box().Text(), m_program);
    }

    void anotherAppearanceKeepsIt()
    {
        EditorHost host;
        open(host);
        host.list->Init_RichTextBox(host.settings);
        QCOMPARE(host.box().Text(), m_program);
    }

    void aPasteKeepsIt()
    {
        EditorHost host;
        host.list->codeView()->setKeepsText(true);
        host.setText(u"|"_s);
        QGuiApplication::clipboard()->setText(u"Y=LIMIT(A,0,100)\r\n"_s);
        host.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(host.box().Text(), u"Y=LIMIT(A,0,100)\r\n"_s);
    }

    void aPasteIntoACommentKeepsIt()
    {
        EditorHost host;
        host.list->codeView()->setKeepsText(true);
        host.setText(u"REM a|b"_s);
        QGuiApplication::clipboard()->setText(u" if(x)"_s);
        host.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(host.box().Text(), u"REM a if(x)b"_s);
    }

    void undoGoesBackToWhatWasTyped()
    {
        EditorHost host;
        open(host);
        host.type(u"if "_s);
        QVERIFY(host.box().Text().startsWith(u"IF Y=LIMIT(A,0,100)\r\n"_s));
        host.type(u"x "_s);
        host.key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(host.box().Text().startsWith(u"ifY="_s));
    }

    void tidyStillSpaces()
    {
        EditorHost host;
        open(host);
        host.list->codeView()->tidy();
        QVERIFY(host.box().Text().startsWith(u"Y=LIMIT(A,0,100 )\r\nA B\r\n"_s));
        host.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(host.box().Text(), m_program);
    }
};

ORVT_TEST(KeptTextTest)
#include "KeptTextTest.moc"
