#include "component/DragScene.h"

#include "widgets/nodes/NodeTree.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/ReportList.h>

#include <QtTest/QTest>

#include <algorithm>
#include <array>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The toolkit's own, scrolling by its timer, begins drags with no button held.
class StillField final : public QPlainTextEdit
{
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void timerEvent(QTimerEvent *) override {}
};

} // namespace

const char *DragScene::nameOf(Side side)
{
    static constexpr const char *names[] = {"field", "box",  "editor", "table",
                                            "combo", "tree", "beside"};
    return names[side];
}

DragScene::DragScene()
    : m_field(new StillField(&form))
    , m_box(new RichTextBox(&form))
    , m_editor(new ORVListView(&form))
    , m_table(new ORVListView(&form))
    , m_combo(new ORVDataCombo(&form))
    , m_tree(new ORVTreeview(&form))
{
    for (const QString &name : {u"temp1"_s, u"temp2"_s, u"fan1"_s})
        m_inputs.Add(name);
    m_tree->SetCollectionRenamable(nullptr, &m_others, &m_others, &m_inputs, &m_others, &m_others);
    // None takes the place of another that is hidden or gone.
    m_field->setGeometry(30, 30, 240, 150);
    m_box->setGeometry(30, 190, 240, 150);
    m_editor->setGeometry(30, 350, 240, 180);
    m_table->setGeometry(290, 30, 240, 310);
    m_combo->setGeometry(290, 350, 240, 30);
    m_tree->setGeometry(550, 30, 240, 500);
    fillTable();
    fillTree();
    m_editor->setListviewType(dsCode);
    m_editor->Init_RichTextBox({});
    QString error;
    m_combo->FillDataListview(dsInput, nullptr, error);
    m_combo->SetListIndex(u"temp2"_s);
    m_combo->setDragsEntry(true);
    form.resize(820, 560);
    form.show();
    form.activateWindow();
    if (!QTest::qWaitForWindowActive(&form))
        qFatal("the window does not become active");
}

DragScene::~DragScene() = default;

void DragScene::fillTable()
{
    m_table->setListviewType(dsInput);
    m_table->ChangeListviewNumber(4);
    for (int row = 1; row <= 4; ++row)
        m_table->ListItems()->Item(row)->setSubItem(1, u"name%1"_s.arg(row));
    m_table->listView()->setDragEnabled(true);
}

void DragScene::fillTree()
{
    m_tree->Nodes()->Add(u"Inputs"_s, NodeRelationship::Child, u"MyPoint"_s, u"temp1"_s);
    m_tree->Nodes()->Item(u"Inputs"_s)->setExpanded(true);
}

QWidget *DragScene::component(Side side) const
{
    const std::array<QWidget *, targets> all{m_field, m_box,  m_editor, m_table,
                                             m_combo, m_tree, nullptr};
    return all[static_cast<std::size_t>(side)];
}

bool DragScene::isWhole() const
{
    return m_field && m_box && m_editor && m_table && m_combo && m_tree;
}

QPlainTextEdit *DragScene::textOf(Side side) const
{
    if (side == Field)
        return m_field;
    if (side == Box)
        return m_box;
    return side == Editor && m_editor ? m_editor->RTextBox() : nullptr;
}

QString DragScene::text(Side side) const
{
    const QPlainTextEdit *edit = textOf(side);
    return edit ? edit->toPlainText() : QString();
}

void DragScene::setText(Side side, const QString &text)
{
    if (side == Field)
        m_field->setPlainText(text);
    else if (side == Box)
        m_box->setText(text);
    else if (side == Editor)
        m_editor->setCodeText(QString(text).replace(u'\n', u"\r\n"_s));
}

bool DragScene::mayChange(Side side) const
{
    const QPlainTextEdit *edit = textOf(side);
    return edit && !edit->isReadOnly() && edit->isEnabled();
}

void DragScene::setReadOnly(Side side, bool on)
{
    if (QPlainTextEdit *edit = textOf(side))
        edit->setReadOnly(on);
}

QWidget *DragScene::surface(Side side) const
{
    if (isText(side))
        return textOf(side)->viewport();
    if (side == Table)
        return m_table->listView()->viewport();
    if (side == Tree)
        return m_tree->findChild<NodeTree *>()->viewport();
    return m_combo;
}

std::optional<QPoint> DragScene::over(Side side, int across, int down) const
{
    if (side == Beside)
        return QPoint(5, 5);
    const QWidget *where = surface(side);
    const QRect rect = where->rect().adjusted(6, 6, -6, -6);
    if (!where->isVisible() || !rect.isValid())
        return std::nullopt;
    const QPoint at(rect.left() + rect.width() * across / 100,
                    rect.top() + rect.height() * down / 100);
    const QPoint inForm = where->mapTo(&form, at);
    return isSeen(inForm) ? std::optional(inForm) : std::nullopt;
}

bool DragScene::isSeen(const QPoint &place) const
{
    return form.rect().contains(place) && form.childAt(place);
}

std::optional<DragScene::Held> DragScene::hold(Side side, int start, int length)
{
    const std::optional<Held> held = isText(side)    ? holdText(side, start, length)
                                     : side == Table ? holdRow(start)
                                     : side == Tree  ? holdNode(start)
                                                     : holdEntry();
    return held && isSeen(held->at) ? held : std::nullopt;
}

DragScene::Held DragScene::holdEntry() const
{
    const bool mirrored = m_combo->layoutDirection() == Qt::RightToLeft;
    const QPoint picture(mirrored ? m_combo->width() - 12 : 12, m_combo->height() / 2);
    return Held{.at = m_combo->mapTo(&form, picture), .text = u"temp2"_s, .name = u"temp2"_s};
}

std::optional<DragScene::Held> DragScene::holdText(Side side, int start, int length)
{
    QPlainTextEdit &edit = *textOf(side);
    const QString text = edit.toPlainText();
    const int first = static_cast<int>(text.size()) * start / 100;
    const int end = std::min(first + 1 + length, static_cast<int>(text.size()));
    if (first >= end || text[first] == u'\n')
        return std::nullopt;
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(first);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor); // which may scroll
    cursor.setPosition(first);
    const QRect at = edit.cursorRect(cursor);
    cursor.setPosition(first + 1);
    const QRect next = edit.cursorRect(cursor);
    const QPoint place((at.center().x() + next.center().x()) / 2, at.center().y());
    const bool isInOneRow = at.top() == next.top(); // long lines are wrapped
    if (!isInOneRow || !edit.viewport()->rect().adjusted(2, 2, -2, -2).contains(place))
        return std::nullopt;
    const QString held = text.mid(first, end - first);
    return Held{
        .at = edit.viewport()->mapTo(&form, place), .text = held, .name = held, .start = first};
}

std::optional<DragScene::Held> DragScene::holdRow(int hundredth)
{
    ReportList &list = *m_table->listView();
    const int row = list.model()->rowCount() * hundredth / 100;
    const QRect cell = list.visualRect(list.model()->index(row, 0));
    if (!list.viewport()->rect().contains(cell.center()))
        return std::nullopt;
    return Held{.at = list.viewport()->mapTo(&form, cell.center()),
                .text = {},
                .name = m_table->ListItems()->Item(row + 1)->SubItem(1)};
}

std::optional<DragScene::Held> DragScene::holdNode(int hundredth)
{
    auto &view = *m_tree->findChild<NodeTree *>();
    const QPoint at(view.viewport()->width() / 2, view.viewport()->height() * hundredth / 100);
    const Node *node = view.nodeAt(at);
    if (!node)
        return std::nullopt;
    const QPoint middle(view.visualRect(view.indexAt(at)).center());
    if (!view.viewport()->rect().contains(middle))
        return std::nullopt;
    const QString name = node->Key() == u"MyPoint"_s ? node->Text() : QString();
    return Held{.at = view.viewport()->mapTo(&form, middle), .text = name, .name = name};
}
