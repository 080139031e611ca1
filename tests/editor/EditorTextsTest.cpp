// Every text of the editor is looked up.

#include "editor/EditorHost.h"
#include "support/PseudoTexts.h"
#include "support/ShownTexts.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QMenu>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class EditorTextsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theEditorsOwn()
    {
        setTextProvider(&m_pseudo);
        EditorHost host;
        QCOMPARE(shownWithoutLookup(*host.list), QStringList());
    }

    void thePosition()
    {
        setTextProvider(&m_pseudo);
        EditorHost host;
        host.setText(u"a\r\nb|"_s);
        QCOMPARE(host.list->GetPositionDisplay(), u"\u27e6Row:\u27e7 2\u27e6, Col:\u27e7 2"_s);
    }

    void theMessageOfARefusedPaste()
    {
        setTextProvider(&m_pseudo);
        EditorHost host;
        QString data = u"a\\b"_s;
        host.list->RTextPaste(data);
        QCOMPARE(messages().size(), 1);
        QCOMPARE(messages()[0].title, u"\u27e6Paste\u27e7"_s);
        QCOMPARE(messages()[0].text,
                 u"\u27e6Invalid letter: '\\' that is reserved to RTF!\u27e7"_s);
    }

    void theContextMenuWithAccessKeysOfItsOwn()
    {
        setTextProvider(&m_pseudo);
        EditorHost host;
        host.setText(u"|a|"_s);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                                host.box().viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(host.box().viewport(), &event);
        const auto *menu = host.box().findChild<QMenu *>();
        QVERIFY(menu);
        QCOMPARE(shownWithoutLookup(*menu), QStringList());

        QStringList keys;
        for (const QAction *action : menu->actions()) {
            const qsizetype mark = action->text().indexOf(u'&');
            if (!action->isSeparator())
                keys << action->text().sliced(mark + 1, 1).toUpper();
        }
        QCOMPARE(keys.size(), 7);
        QCOMPARE(keys.removeDuplicates(), 0);
    }

private:
    PseudoTexts m_pseudo;
};

ORVT_TEST(EditorTextsTest)
#include "EditorTextsTest.moc"
