// What ends an opening before all colours have come: the user, another text, a host.

#include "editor/OpeningHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <stdexcept>
#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class OpeningEndsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cancellingKeepsTheText()
    {
        OpeningHost host;
        host.list->openProgram(longProgram());
        const QString text = host.list->CodeText();
        host.list->Clear();
        QSignalSpy progress(&host.view(), &CodeView::openingProgress);
        host.open();
        host.box().viewport()->repaint();
        host.view().cancelOpening();
        QVERIFY(!host.view().isOpening());
        QTRY_COMPARE(progress.size(), 1);
        QCOMPARE(progress.last().first().toInt(), 100);
        QVERIFY(host.list->CodeText() == text);
        QVERIFY(host.hasColours(0));
        QVERIFY(!host.hasColours(3000));
        QVERIFY(!host.list->IsUndoAvailable());
        putCaret(host, 3000, 2);
        host.key(Qt::Key_Down); // a line that is worked on
        QVERIFY(host.hasColours(3000));
        QVERIFY(!host.hasColours(3010));
        host.view().cancelOpening();
        host.list->Init_RichTextBox(host.settings);
        QVERIFY(host.hasColours(3010));
    }

    void anotherTextEndsAnOpening()
    {
        OpeningHost host;
        QSignalSpy progress(&host.view(), &CodeView::openingProgress);
        host.open();
        host.list->setCodeText(u"if temp1"_s);
        QVERIFY(!host.view().isOpening());
        QTRY_COMPARE(progress.size(), 1);
        QCOMPARE(progress.last().first().toInt(), 100);
        QCOMPARE(host.colourOf(u"temp1"_s), -1);
    }

    void anotherProgramTakesOver()
    {
        OpeningHost host;
        host.open();
        host.pass();
        QSignalSpy progress(&host.view(), &CodeView::openingProgress);
        host.open(longProgram().replace(u"fan1"_s, u"temp2"_s));
        QVERIFY(host.view().isOpening());
        host.finish();
        QTRY_COMPARE(progress.isEmpty() ? -1 : progress.last().first().toInt(), 100);
        QVERIFY(!host.list->CodeText().contains(u"Fan1"_s));
        const QStringList late = pictureOf(host.box());
        host.list->openProgram(longProgram().replace(u"fan1"_s, u"temp2"_s));
        QCOMPARE(late, pictureOf(host.box()));
    }

    void theHostMayDestroyTheControl()
    {
        OpeningHost host;
        connect(&host.view(), &CodeView::openingProgress, &host.form, [&](int percent) {
            if (percent > 3)
                delete std::exchange(host.list, nullptr);
        });
        host.open();
        QTRY_VERIFY(!host.list);
        QTest::qWait(20);
    }

    void theHostMayDestroyTheControlInChange()
    {
        OpeningHost host;
        connect(&host.box(), &RichTextBox::Change, &host.form,
                [&] { delete std::exchange(host.list, nullptr); });
        host.open();
        QVERIFY(!host.list);
        QTest::qWait(20);
    }

    void theHostMayThrow()
    {
        OpeningHost host;
        connect(&host.view(), &CodeView::openingProgress, &host.form, [](int percent) {
            if (percent == 5)
                throw std::runtime_error("the host");
        });
        QTest::ignoreMessage(QtWarningMsg, "An event handler failed: the host");
        host.open();
        host.finish();
        QVERIFY(host.hasColours(3000));
    }

    void theHostMayOpenAnotherInTheMiddle()
    {
        OpeningHost host;
        bool isFirst = true;
        connect(&host.view(), &CodeView::openingProgress, &host.form, [&](int percent) {
            if (percent > 5 && std::exchange(isFirst, false))
                host.open(longProgram().replace(u"fan1"_s, u"temp2"_s));
        });
        host.open();
        QTRY_VERIFY(!isFirst);
        host.finish();
        QVERIFY(!host.list->CodeText().contains(u"Fan1"_s));
        QVERIFY(host.hasColours(3000));
    }

    // What goes past the box stays as it was set.
    void theDocumentChangedDirectly()
    {
        OpeningHost host;
        host.open();
        QTextCursor cursor(host.box().document()->findBlockByNumber(3000));
        cursor.insertText(u"temp2 "_s);
        QTextCursor other(host.box().document()->findBlockByNumber(3005));
        other.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        other.removeSelectedText();
        host.finish();
        QVERIFY(host.box().lineText(3000).startsWith(u"temp2 "_s));
        QCOMPARE(host.box().lineText(3005), QString());
        QVERIFY(host.hasColours(3010));
    }
};

ORVT_TEST(OpeningEndsTest)
#include "OpeningEndsTest.moc"
