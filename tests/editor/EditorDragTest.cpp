// Text dragged inside the editor, into it and out of it: what is refused stays where
// it was.

#include "editor/EditorHost.h"
#include "support/TextDrag.h"
#include "support/WidgetTest.h"

#include <QtGui/QClipboard>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPlainTextEdit>

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
    void aMoveFromAnotherWidgetMovesText();
    void whatIsRefusedStaysInTheOtherWidget_data();
    void whatIsRefusedStaysInTheOtherWidget();
    void aMoveOutOfTheEditorMovesText();
    void aReadOnlyEditorTakesNoDrop();
    void aReadOnlyEditorGivesCopies();
    void theMessageIsShownInTheMiddleOfADrag();
    void aRefusedMiddleClickChangesNothing();
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

QTEST_MAIN(EditorDragTest)
#include "EditorDragTest.moc"
