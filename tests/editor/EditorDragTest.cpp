// Text dragged inside the editor, into it and out of it: what is refused stays where
// it was.

#include "editor/OpeningHost.h"
#include "support/TestProgram.h"
#include "support/TextDrag.h"
#include "support/WidgetTest.h"

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;
using TextDrag::inWindow;

class EditorDragTest : public WidgetTest
{
    Q_OBJECT

private:
    static QPlainTextEdit &addField(EditorHost &host, const QString &text)
    {
        auto *field = new QPlainTextEdit(text);
        host.form.layout()->addWidget(field);
        host.form.resize(600, 500);
        QCoreApplication::processEvents();
        field->selectAll();
        return *field;
    }
    static QPoint inField(const QPlainTextEdit &field)
    {
        return field.viewport()->mapTo(field.window(), QPoint(10, 10));
    }

private Q_SLOTS:
    void aMoveInsideTheEditorMovesText();
    void aRefusedMoveInsideTheEditorChangesNothing();
    void theLineThatADragTakesFromIsFinished();
    void ctrlAIsForTheMiddleClickToo();
    void draggedTextEndsItsLinesInLf();
    void aMoveFromAnotherWidgetMovesText();
    void whatIsRefusedStaysInTheOtherWidget_data();
    void whatIsRefusedStaysInTheOtherWidget();
    void aMoveOutOfTheEditorMovesText();
    void aReadOnlyEditorTakesNoDrop();
    void aReadOnlyEditorGivesCopies();
    void theMessageIsShownInTheMiddleOfADrag();
    void aRefusedMiddleClickChangesNothing();
    void aMoveWhileColoursAreToComeIsAsEver();
};

void EditorDragTest::aMoveInsideTheEditorMovesText()
{
    EditorHost host;
    host.setText(u"|if temp1 |\r\nx"_s);
    TextDrag::drag(host.form, inWindow(host.box(), 2), inWindow(host.box(), 12));
    QCOMPARE(host.box().Text(), u"\r\nxIF Temp1 "_s);
    QVERIFY(messages().isEmpty());
}

void EditorDragTest::aRefusedMoveInsideTheEditorChangesNothing()
{
    EditorHost host;
    host.setText(u"|a\\b |\r\nx = 1"_s);
    TextDrag::drag(host.form, inWindow(host.box(), 1), inWindow(host.box(), 11));
    QCOMPARE(host.marked(), u"|a\\b |\r\nx = 1"_s);
    QCOMPARE(messages().size(), 1);
}

void EditorDragTest::theLineThatADragTakesFromIsFinished()
{
    EditorHost host;
    host.list->setCodeTextRTF(host.list->GetColorText(u"REM if temp1 > 2\r\nfan1 \r\nx"_s));
    for (const qint32 to : {23, 25}) { // the end of the second line, and the third
        host.list->setCodeTextRTF(host.list->GetColorText(u"REM if temp1 > 2\r\nfan1 \r\nx"_s));
        host.box().setSelStart(0);
        host.box().setSelLength(4);
        TextDrag::drag(host.form, inWindow(host.box(), 2), inWindow(host.box(), to));
        QVERIFY2(host.box().Text().startsWith(u"IF Temp1 > 2\r\n"_s),
                 qPrintable(host.box().Text()));
        QCOMPARE(host.colourOf(u"Temp1"_s), 0x0000FF);
        host.box().setSelStart(0); // leaves the line dropped on
        const qint32 rem = static_cast<qint32>(host.box().Text().indexOf(u"REM"_s));
        QVERIFY(rem > 0);
        if (to == 25)
            QCOMPARE(host.colourAt(rem), 0x008000);
    }
}

void EditorDragTest::ctrlAIsForTheMiddleClickToo()
{
    QClipboard &clipboard = *QGuiApplication::clipboard();
    for (int i = 0; i < 2; ++i) {
        EditorHost host;
        host.setText(u"a\r\nb|"_s);
        clipboard.setText(u"old"_s, QClipboard::Selection);
        QVERIFY(!host.list->CodeTextRTF().isEmpty()); // selects, but nobody did
        QCOMPARE(clipboard.text(QClipboard::Selection), u"old"_s);
        if (i == 0)
            host.key('A', Qt::ControlModifier);
        else
            host.list->RTextSelectAll();
        QCOMPARE(clipboard.text(QClipboard::Selection), u"a\nb"_s);
    }
    RichTextBox plain;
    plain.setText(u"p\r\nq"_s);
    QTest::keyClick(&plain, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(clipboard.text(QClipboard::Selection), u"p\nq"_s);
}

void EditorDragTest::draggedTextEndsItsLinesInLf()
{
    struct Field final : QPlainTextEdit
    {
        QString taken;
        void insertFromMimeData(const QMimeData *dropped) override { taken = dropped->text(); }
    };
    EditorHost host;
    host.setText(u"|Temp1\r\ny|x"_s);
    auto *field = new Field;
    host.form.layout()->addWidget(field);
    host.form.resize(600, 500);
    QCoreApplication::processEvents();
    TextDrag::drag(host.form, inWindow(host.box(), 2), inField(*field));
    QCOMPARE(field->taken, u"Temp1\ny"_s);
}

void EditorDragTest::aMoveFromAnotherWidgetMovesText()
{
    EditorHost host;
    host.setText(u"x = |"_s);
    const QPlainTextEdit &field = addField(host, u"temp1"_s);
    TextDrag::drag(host.form, inField(field), inWindow(host.box(), 4));
    QCOMPARE(host.box().Text(), u"x = Temp1"_s);
    QCOMPARE(field.toPlainText(), QString());
}

void EditorDragTest::whatIsRefusedStaysInTheOtherWidget_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("told");
    QTest::newRow("backslash") << u"a\\b"_s << 1;
    QTest::newRow("RTF that holds no text") << u"{\\rtf1\\b}"_s << 0;
}

void EditorDragTest::whatIsRefusedStaysInTheOtherWidget()
{
    QFETCH(const QString, text);
    QFETCH(const int, told);
    EditorHost host;
    host.setText(u"|x| = 1"_s);
    const QPlainTextEdit &field = addField(host, text);
    TextDrag::drag(host.form, inField(field), inWindow(host.box(), 3));
    QCOMPARE(host.marked(), u"|x| = 1"_s);
    QCOMPARE(field.toPlainText(), text);
    QCOMPARE(messages().size(), told);
}

void EditorDragTest::aMoveOutOfTheEditorMovesText()
{
    EditorHost host;
    host.setText(u"|Temp1 |x"_s);
    QPlainTextEdit &field = addField(host, {});
    TextDrag::drag(host.form, inWindow(host.box(), 2), inField(field));
    QCOMPARE(field.toPlainText(), u"Temp1 "_s);
    QCOMPARE(host.box().Text(), u"x"_s);
}

void EditorDragTest::aReadOnlyEditorTakesNoDrop()
{
    EditorHost host;
    host.setText(u"x = |"_s);
    host.box().setReadOnly(true);
    const QPlainTextEdit &field = addField(host, u"temp1"_s);
    TextDrag::drag(host.form, inField(field), inWindow(host.box(), 4));
    QCOMPARE(host.box().Text(), u"x = "_s);
    QCOMPARE(field.toPlainText(), u"temp1"_s);
}

void EditorDragTest::aReadOnlyEditorGivesCopies()
{
    EditorHost host;
    host.setText(u"|Temp1 |x"_s);
    host.box().setReadOnly(true);
    const QPlainTextEdit &field = addField(host, {});
    TextDrag::drag(host.form, inWindow(host.box(), 2), inWindow(host.box(), 7));
    QCOMPARE(host.marked(), u"|Temp1 |x"_s);
    TextDrag::drag(host.form, inWindow(host.box(), 2), inField(field));
    QCOMPARE(field.toPlainText(), u"Temp1 "_s);
    QCOMPARE(host.marked(), u"|Temp1 |x"_s);
}

void EditorDragTest::theMessageIsShownInTheMiddleOfADrag()
{
    EditorHost host;
    host.setText(u"x = |"_s);
    const QPlainTextEdit &field = addField(host, u"a\\b"_s);
    threadPart<Messages>().install(nullptr); // message boxes
    int shown = 0;
    QTimer closing;
    connect(&closing, &QTimer::timeout, this, [&shown] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            ++shown;
            QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
        }
    });
    closing.start(0);
    TextDrag::drag(host.form, inField(field), inWindow(host.box(), 4));
    QCOMPARE(shown, 1);
    QCOMPARE(host.box().Text(), u"x = "_s);
    QCOMPARE(field.toPlainText(), u"a\\b"_s);
}

void EditorDragTest::aRefusedMiddleClickChangesNothing()
{
    EditorHost host;
    host.setText(u"|x| = 1"_s);
    QGuiApplication::clipboard()->setText(u"a\\b"_s, QClipboard::Selection);
    QTest::mouseClick(host.form.windowHandle(), Qt::MiddleButton, {}, inWindow(host.box(), 1));
    QCOMPARE(host.box().Text(), u"x = 1"_s);
    QCOMPARE(messages().size(), 1);
}

// From lines that wait to one that does. One editor at a time: one that loses the focus
// finishes its line.
void EditorDragTest::aMoveWhileColoursAreToComeIsAsEver()
{
    const auto shownAfter = [](bool isLate) {
        OpeningHost host;
        if (isLate)
            host.open();
        else
            host.list->openProgram(longProgram());
        RichTextBox &box = host.box();
        box.verticalScrollBar()->setValue(1998);
        box.setSelStart(box.lineStart(2000) + 3);
        box.setSelLength(box.lineStart(2002) + 4 - box.SelStart());
        TextDrag::drag(host.form, inWindow(box, box.SelStart() + 3),
                       inWindow(box, box.lineStart(2005) + 7));
        const bool waits = host.colours().areWaiting();
        host.colours().giveAll();
        return waits == isLate ? QStringList(host.marked()) + pictureOf(box) : QStringList();
    };
    const QStringList atOnce = shownAfter(false);
    QVERIFY(atOnce.size() > 3000);
    QVERIFY(!atOnce.first().contains(longProgram()));
    comparePictures(shownAfter(true), atOnce);
}

ORVT_TEST(EditorDragTest)
#include "EditorDragTest.moc"
