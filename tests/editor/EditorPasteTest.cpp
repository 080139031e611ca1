// The checked paste, by call, key, drop, middle click and menu.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QDropEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethodEvent>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class EditorPasteTest : public WidgetTest
{
    Q_OBJECT

private:
    static void paste(EditorHost &host, QString text) { host.list->RTextPaste(text); }
    // Returns what became of it.
    static Qt::DropAction drop(EditorHost &host, const QMimeData &data)
    {
        const QPoint place = host.box().cursorRect().center();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(host.box().viewport(), &enter);
        QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(host.box().viewport(), &move);
        QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(host.box().viewport(), &dropped);
        return dropped.isAccepted() ? dropped.dropAction() : Qt::IgnoreAction;
    }
    static void commit(EditorHost &host, const QString &text, int from, int length)
    {
        QInputMethodEvent event;
        event.setCommitString(text, from, length);
        QApplication::sendEvent(&host.box(), &event);
    }

private Q_SLOTS:
    void rtfIsPastedAsItIs()
    {
        EditorHost host;
        host.setText(u"a|b"_s);
        paste(host, u"{\\rtf1 if\\par x}"_s);
        QCOMPARE(host.marked(), u"aif\r\nx|b"_s);
        host.setText(u"|"_s);
        paste(host, u"{\\RTF1 x}"_s);
        QCOMPARE(host.marked(), u"x|"_s);
        QVERIFY(messages().isEmpty());
    }

    void pastedRtfKeepsItsColours()
    {
        EditorHost host;
        host.setText(u"|"_s);
        paste(host, u"{\\rtf1{\\colortbl;\\red1\\green2\\blue3;}\\cf1 if}"_s);
        QCOMPARE(host.colourAt(0), 0x030201);
    }

    void theEndOfPastedRtfIsSeen()
    {
        EditorHost host;
        host.setText(u"|"_s);
        paste(host, u"{\\rtf1 "_s + u"x\\par "_s.repeated(500) + u"end}"_s);
        QVERIFY(host.box().Text().endsWith(u"end"_s));
        QVERIFY(host.box().viewport()->rect().contains(host.box().cursorRect()));
    }

    void aBackslashIsRefusedWhole()
    {
        EditorHost host;
        host.setText(u"x| y"_s);
        const ColouredText before = host.box().coloured(0, 3);
        paste(host, u"a\\b"_s);
        QCOMPARE(host.marked(), u"x| y"_s);
        QCOMPARE(host.box().coloured(0, 3), before);
        QCOMPARE(messages().size(), 1);
        QCOMPARE(messages()[0], (Message{Message::Icon::Exclamation, u"Paste"_s,
                                         u"Invalid letter: '\\' that is reserved to RTF!"_s}));
    }

    void aRefusedPasteByKeyHasTakenItsSnapshot()
    {
        EditorHost host;
        host.setText(u"x|"_s);
        QGuiApplication::clipboard()->setText(u"a\\b"_s);
        QSignalSpy menu(host.list, &ORVListView::UpdateUndoMenu);
        host.key('V', Qt::ControlModifier);
        QCOMPARE(menu.size(), 1);
        QCOMPARE(host.ring().UndoNewest(), 1);
        QCOMPARE(messages().size(), 1);
        QCOMPARE(host.marked(), u"x|"_s);
    }

    void noWaitCursorStaysOverTheMessage()
    {
        EditorHost host;
        host.setText(u"x|"_s);
        threadPart<Messages>().install(nullptr); // message boxes
        QGuiApplication::clipboard()->setText(u"a\\b"_s);
        QList<Qt::CursorShape> shapes;
        QTimer closing;
        connect(&closing, &QTimer::timeout, this, [&shapes] {
            const QCursor *pointer = QGuiApplication::overrideCursor();
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            shapes << (pointer ? pointer->shape() : Qt::ArrowCursor);
            box->accept();
        });
        closing.start(0);
        host.key('V', Qt::ControlModifier);
        QCOMPARE(shapes, QList<Qt::CursorShape>{Qt::ArrowCursor});
        QVERIFY(!QGuiApplication::overrideCursor());
        QGuiApplication::setOverrideCursor(Qt::WaitCursor); // the host's
        host.key('V', Qt::ControlModifier);
        QCOMPARE(shapes.size(), 2);
        QCOMPARE(shapes.constLast(), Qt::ArrowCursor);
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QGuiApplication::restoreOverrideCursor();
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void aRefusedTextLeavesTheSelection()
    {
        EditorHost host;
        host.setText(u"x |y| z"_s);
        QGuiApplication::clipboard()->setText(u"a\\b"_s);
        host.key('V', Qt::ControlModifier);
        QCOMPARE(host.marked(), u"x |y| z"_s);
        commit(host, u"a\\b"_s, 0, 0);
        QCOMPARE(host.marked(), u"x |y| z"_s);
        commit(host, u"a\\b"_s, -2, 3); // in the place of other text
        QCOMPARE(host.marked(), u"x |y| z"_s);
        QCOMPARE(messages().size(), 3);
    }

    void noKeyPastesIntoAReadOnlyEditor()
    {
        EditorHost host;
        host.setText(u"x |y| z"_s);
        host.box().setReadOnly(true);
        QGuiApplication::clipboard()->setText(u"w"_s);
        QSignalSpy menu(host.list, &ORVListView::UpdateUndoMenu);
        host.key('V', Qt::ControlModifier);
        host.key(Qt::Key_Insert, Qt::ShiftModifier);
        QCOMPARE(host.marked(), u"x |y| z"_s);
        QCOMPARE(menu.size(), 0);
        QCOMPARE(host.ring().UndoNewest(), 0);
    }

    void plainTextIsColoured()
    {
        EditorHost host;
        host.setText(u"|"_s);
        paste(host, u"if (temp1 > 2)\r\nREM x"_s);
        QCOMPARE(host.box().Text(), u"IF ( Temp1 > 2 )\r\nREM x"_s);
        QCOMPARE(host.colourOf(u"Temp1"_s), 0x0000FF);
        QCOMPARE(host.colourOf(u"REM"_s), 0x008000);
    }

    void everyLineEndIsALineEnd()
    {
        EditorHost host;
        host.setText(u"|"_s);
        paste(host, u"a\nb\rc"_s);
        QCOMPARE(host.box().Text(), u"a\r\nb\r\nc"_s);
    }

    void aPasteIntoACommentContinuesIt()
    {
        EditorHost host;
        host.list->setCodeTextRTF(host.list->GetColorText(u"REM start end"_s));
        host.box().setSelStart(10);
        paste(host, u"x = 1\r\nif temp1\r\nrem y"_s);
        QCOMPARE(host.box().Text(), u"REM start x = 1\r\nIF Temp1\r\nrem yend"_s);
        for (qint32 i = 0; i < 15; ++i)
            QCOMPARE(host.colourAt(i), 0x008000);
        QCOMPARE(host.colourOf(u"Temp1"_s), 0x0000FF);
        QCOMPARE(host.colourOf(u"rem y"_s), 0x008000);
    }

    void pastingReplacesTheSelection()
    {
        EditorHost host;
        host.setText(u"a|bc|d"_s);
        paste(host, u"x"_s);
        QCOMPARE(host.marked(), u"ax|d"_s);
    }

    void aCallTakesNoSnapshot()
    {
        EditorHost host;
        host.setText(u"a|"_s);
        paste(host, u"x"_s);
        QString errMsg;
        QCOMPARE(host.ring().UndoNewest(), 0);
    }

    void anEnormousTextIsRefusedBeforeAnything()
    {
        EditorHost host;
        host.setText(u"x|"_s);
        QSignalSpy menu(host.list, &ORVListView::UpdateUndoMenu);
        QMimeData data;
        data.setText(QString(32 * 1024 * 1024 + 1, u'a'));
        QCOMPARE(drop(host, data), Qt::IgnoreAction);
        QCOMPARE(host.marked(), u"x|"_s);
        QCOMPARE(menu.size(), 0);
        QCOMPARE(host.ring().UndoNewest(), 0);
        QCOMPARE(messages().size(), 1);
        QCOMPARE(messages()[0].title, u"Paste"_s);
    }

    void aDropEndsInTheSamePaste()
    {
        EditorHost host;
        host.setText(u"|"_s);
        QMimeData good;
        good.setText(u"if temp1"_s);
        good.setHtml(u"<b>if temp1</b>"_s);
        QCOMPARE(drop(host, good), Qt::CopyAction);
        QCOMPARE(host.box().Text(), u"IF Temp1"_s);
        QCOMPARE(host.colourOf(u"Temp1"_s), 0x0000FF);
        QMimeData bad;
        bad.setText(u"a\\b"_s);
        QCOMPARE(drop(host, bad), Qt::IgnoreAction);
        QCOMPARE(host.box().Text(), u"IF Temp1"_s);
        QCOMPARE(messages().size(), 1);
    }

    void htmlAndPicturesAreNoText()
    {
        EditorHost host;
        host.setText(u"x|"_s);
        QMimeData html;
        html.setHtml(u"<table><tr><td>y</td></tr></table>"_s);
        html.setImageData(QImage(4, 4, QImage::Format_RGB32));
        drop(host, html);
        QVERIFY(!host.box().Text().contains(QChar::ObjectReplacementCharacter));
        auto *clipboardData = new QMimeData;
        clipboardData->setImageData(QImage(4, 4, QImage::Format_RGB32));
        QGuiApplication::clipboard()->setMimeData(clipboardData);
        host.setText(u"x|"_s);
        host.key('V', Qt::ControlModifier);
        QCOMPARE(host.marked(), u"x|"_s);
    }

    void theContextMenuShowsTheEditorsCommands()
    {
        EditorHost host;
        host.setText(u"a|b|c"_s);
        QStringList texts;
        QTimer::singleShot(0, &host.form, [&texts] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu);
            for (QAction *action : menu->actions())
                texts << action->text().remove(u'&');
            for (QAction *action : menu->actions()) {
                if (action->text().remove(u'&') == u"Cut"_s)
                    action->trigger();
            }
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5},
                                host.box().viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(host.box().viewport(), &event);
        QTRY_VERIFY(!texts.isEmpty());
        for (const QString &text :
             {u"Undo"_s, u"Redo"_s, u"Cut"_s, u"Copy"_s, u"Paste"_s, u"Select All"_s})
            QVERIFY2(texts.contains(text), qPrintable(texts.join(u',')));
        QTRY_COMPARE(host.marked(), u"a|c"_s);
        QCOMPARE(host.ring().UndoNewest(), 1); // the same ring as the keys
        QCOMPARE(QGuiApplication::clipboard()->text(), u"b"_s);
    }
};

ORVT_TEST(EditorPasteTest)
#include "EditorPasteTest.moc"
