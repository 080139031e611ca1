// Names dragged into a program from the tables, the combo and the tree.

#include "editor/EditorHost.h"
#include "support/InTurn.h"
#include "support/TestProgram.h"
#include "support/TextDrag.h"
#include "support/WidgetTest.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/ORVDataCombo.h>

#include <QtGui/QWindow>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTreeView>

#include <memory>
#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;
using TextDrag::inWindow;

class NameDragTest : public WidgetTest
{
    Q_OBJECT

private:
    std::unique_ptr<EditorHost> m_host;

    template <typename Widget>
    Widget *add(int height)
    {
        auto *widget = new Widget;
        widget->setMinimumHeight(height);
        m_host->form.layout()->addWidget(widget);
        return widget;
    }
    void layOut()
    {
        m_host->form.resize(700, 760);
        QTest::qWait(50);
    }

    ORVListView *addTable(LwType type, int nameColumn)
    {
        auto *table = add<ORVListView>(200);
        table->setListviewType(type);
        for (int row = 1; row <= 3; ++row)
            table->ListItems()->Item(row)->setSubItem(nameColumn, u"temp%1"_s.arg(row));
        table->ListItems()->Item(3)->setSubItem(nameColumn, QString());
        table->listView()->setDragEnabled(true);
        layOut();
        return table;
    }
    static QPoint cell(const ORVListView &table, int row)
    {
        const ReportList &list = *table.listView();
        const QPoint middle = list.visualRect(list.model()->index(row - 1, 0)).center();
        return list.viewport()->mapTo(list.window(), middle);
    }

    // In small steps; the drag runs in a loop of its own.
    void drag(const QPoint &from, const QPoint &to)
    {
        QWindow *window = m_host->form.windowHandle();
        QList<InTurn::Step> steps;
        steps.append([=] { QTest::mousePress(window, Qt::LeftButton, {}, from); });
        for (int i = 1; i <= 8; ++i)
            steps.append([=] { QTest::mouseMove(window, from + (to - from) * i / 8); });
        steps.append([=] { QTest::mouseRelease(window, Qt::LeftButton, {}, to); });
        InTurn::take(std::move(steps));
    }
    void dragToBox(const QPoint &from, qint32 position)
    {
        drag(from, inWindow(m_host->box(), position));
    }

private Q_SLOTS:
    void init() override
    {
        WidgetTest::init();
        QVERIFY2(QGuiApplication::platformName() != u"offscreen"_s,
                 "needs a display that can drag");
        m_host = std::make_unique<EditorHost>();
        m_host->setText(u"x = \r\nfan1|"_s);
    }
    void cleanup() override
    {
        m_host.reset();
        WidgetTest::cleanup();
    }

    void aRowIsItsName_data()
    {
        QTest::addColumn<LwType>("type");
        QTest::addColumn<int>("column");
        QTest::newRow("Label") << dsInput << 1;
        QTest::newRow("Name") << dsNvo << 1;
    }
    void aRowIsItsName()
    {
        QFETCH(const LwType, type);
        QFETCH(const int, column);
        const ORVListView *table = addTable(type, column);
        const qint64 snapshots = m_host->ring().snapshotCount();
        QSignalSpy menu(m_host->list, &ORVListView::UpdateUndoMenu);
        dragToBox(cell(*table, 2), 4);
        QCOMPARE(m_host->marked(), u"x = Temp2|\r\nfan1"_s);
        QCOMPARE(m_host->colourOf(u"Temp2"_s), 0x0000FF);
        QCOMPARE(m_host->ring().snapshotCount(), snapshots + 1);
        QCOMPARE(menu.size(), 1);
        QCOMPARE(table->ListItems()->Item(2)->SubItem(column), u"temp2"_s);
        QString error;
        m_host->list->Undo(error);
        QCOMPARE(m_host->box().Text(), u"x = \r\nFan1"_s); // in its colours
    }

    void theLabelColumnIsTheName()
    {
        ORVListView *table = addTable(dsTimer, 1);
        table->ListItems()->Item(1)->setSubItem(3, u"fan1"_s);
        table->setLabelColumn(3);
        dragToBox(cell(*table, 1), 4);
        QCOMPARE(m_host->box().Text(), u"x = Fan1\r\nfan1"_s);
    }

    void aRowWithoutANameIsItsText()
    {
        const ORVListView *table = addTable(dsTimer, 1); // a number, and no names
        dragToBox(cell(*table, 1), 4);
        QVERIFY(m_host->box().Text().contains(u"01"_s));
        const ORVListView *inputs = addTable(dsInput, 1);
        m_host->setText(u"x = |"_s);
        dragToBox(cell(*inputs, 3), 4);
        QVERIFY(m_host->box().Text().startsWith(u"x = 03"_s));
    }

    void severalRowsAreNamesInALine()
    {
        ORVListView *table = addTable(dsInput, 1);
        table->setMultiSelect(true);
        table->listView()->selectAll();
        const qint64 snapshots = m_host->ring().snapshotCount();
        dragToBox(cell(*table, 1), 4);
        QCOMPARE(m_host->box().Text(), u"x = Temp1 Temp2\r\nfan1"_s);
        QCOMPARE(m_host->ring().snapshotCount(), snapshots + 1);
    }

    void aNameWithABackslashIsRefused()
    {
        ORVListView *table = addTable(dsInput, 1);
        table->ListItems()->Item(1)->setSubItem(1, u"a\\b"_s);
        dragToBox(cell(*table, 1), 4);
        QCOMPARE(m_host->marked(), u"x = \r\nfan1|"_s);
        QCOMPARE(messages().size(), 1);
    }

    void aReadOnlyProgramTakesNone()
    {
        const ORVListView *table = addTable(dsInput, 1);
        m_host->box().setReadOnly(true);
        dragToBox(cell(*table, 1), 4);
        QCOMPARE(m_host->marked(), u"x = \r\nfan1|"_s);
    }

    void theHostsTextGoesBeforeTheName()
    {
        const ORVListView *table = addTable(dsInput, 1);
        connect(table, &ORVListView::OLEStartDrag, this,
                [](DataObject *data, qint32 &) { data->SetData(u"limit1"_s, DataObject::Text); });
        dragToBox(cell(*table, 1), 4);
        QCOMPARE(m_host->box().Text(), u"x = Limit1\r\nfan1"_s);
    }

    void elsewhereARowIsItsTextAsEver()
    {
        const ORVListView *table = addTable(dsInput, 1);
        auto *field = add<QPlainTextEdit>(60);
        layOut();
        drag(cell(*table, 1), field->viewport()->mapTo(&m_host->form, QPoint(10, 10)));
        QVERIFY2(field->toPlainText().startsWith(u"01\ttemp1\t"_s),
                 qPrintable(field->toPlainText()));
    }

    void thePointOfACombo()
    {
        auto *combo = add<ORVDataCombo>(30);
        QString error;
        combo->FillDataListview(dsInput, nullptr, error);
        combo->setDragsEntry(true);
        combo->SetListIndex(u"Temp2"_s);
        layOut();
        const QPoint picture(combo->mapTo(&m_host->form, QPoint(10, combo->height() / 2)));
        dragToBox(picture, 4);
        QCOMPARE(m_host->box().Text(), u"x = Temp2\r\nfan1"_s);
    }

    void aNodeBelowACategory_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("text");
        QTest::newRow("a point") << u"MyPoint"_s << u"x = Temp1\r\nfan1"_s;
        QTest::newRow("a category") << u"Inputs"_s << u"x = \r\nfan1"_s;
    }
    void aNodeBelowACategory()
    {
        QFETCH(const QString, key);
        QFETCH(const QString, text);
        auto *tree = add<ORVTreeview>(300);
        Node *category = tree->Nodes()->Item(u"Inputs"_s);
        tree->Nodes()->Add(u"Inputs"_s, NodeRelationship::Child, u"MyPoint"_s, u"temp1"_s);
        category->setExpanded(true);
        layOut();
        tree->Nodes()->Item(u"MyPoint"_s)->EnsureVisible();
        auto *view = tree->findChild<QTreeView *>(u"TreeView1"_s);
        const QString shown = tree->Nodes()->Item(key)->Text();
        const QModelIndexList found =
            view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, shown, 1,
                                 Qt::MatchExactly | Qt::MatchRecursive);
        QCOMPARE(found.size(), 1);
        const QPoint at = view->visualRect(found.first()).center();
        dragToBox(view->viewport()->mapTo(&m_host->form, at), 4);
        QCOMPARE(m_host->box().Text(), text);
    }
};

ORVT_TEST(NameDragTest)
#include "NameDragTest.moc"
