// An editor that keeps the text as it is: nothing spaces or respells it unasked.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextBlock>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QScrollBar>

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

    void anotherAppearanceLeavesAllThatBelongsToTheText()
    {
        EditorHost host;
        CodeView &view = *host.list->codeView();
        view.setKeepsText(true);
        view.setFoldingEnabled(true);
        QStringList lines{u"IF a"_s, u"b"_s, u"ENDIF"_s};
        for (int i = 0; i < 200; ++i)
            lines.append(u"Temp1 = 1"_s);
        host.list->openProgram(lines.join(u"\r\n"_s));
        view.goToLine(150);
        view.toggleBookmark();
        view.foldAll();
        QTextCursor backwards = host.box().textCursor();
        backwards.movePosition(QTextCursor::EndOfLine);
        backwards.movePosition(QTextCursor::PreviousWord, QTextCursor::KeepAnchor);
        host.box().setTextCursor(backwards);
        host.box().verticalScrollBar()->setValue(20);
        const int top = host.box().verticalScrollBar()->value();
        QVERIFY(top > 0);
        const QSignalSpy changes(&host.box(), &RichTextBox::Change);
        const QString former = host.list->GetColorText(u"Temp1"_s);
        host.settings.InputColor = 0x123456;
        host.settings.FontSize = 13;
        host.list->Init_RichTextBox(host.settings);
        QCOMPARE(changes.size(), 0);
        QVERIFY(!host.list->IsUndoAvailable());
        QCOMPARE(host.box().verticalScrollBar()->value(), top);
        QCOMPARE(host.box().textCursor().anchor(), backwards.anchor());
        QCOMPARE(host.box().textCursor().position(), backwards.position());
        QVERIFY(!host.box().document()->findBlockByNumber(1).isVisible());
        QCOMPARE(host.colourAt(host.box().lineStart(3)), 0x123456);
        QVERIFY(host.list->GetColorText(u"Temp1"_s) != former);
        view.goToLine(1);
        view.nextBookmark();
        QCOMPARE(host.box().textCursor().blockNumber(), 149);
    }

    // As a table that is written of another box.
    void theHeadIsThatOfATextSetAnew()
    {
        EditorHost host;
        const QString former = host.list->GetColorText(u"Temp1"_s);
        open(host);
        host.list->Init_RichTextBox(host.settings);
        QCOMPARE(host.list->GetColorText(u"Temp1"_s), former);
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
