#pragma once

#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/DataObject.h>
#include <ORVTListview/Export.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/RowContent.h>

#include <QtCore/QList>
#include <QtWidgets/QTableView>

#include <functional>
#include <memory>

namespace ORVTListview {

class ColumnHeaders;
class ListGrid;
class ListItems;
struct ReportListBody;
struct ReportRow;

// A list of rows with columns: row text in the first, sub-items in the others. A
// row is selected as a whole. X and Y are twips from the list's corner, indexes
// count from 1.
//
// Rows and columns are handed out as ListItem and ColumnHeader, which the list
// owns and which outlive what they stand for: see there.
//
// Events are raised before the list acts on what the user did, but for Click,
// DblClick, ItemClick, ItemCheck, ColumnClick and AfterLabelEdit, which tell what
// has happened. A receiver may do anything in them, destroying the list included.
// What the program changes raises no event.
//
// Keys: Home, End, Page Up and Down go through the rows, Left and Right through
// the cells of one; letters go to the next row whose current cell begins with
// them, or whose label does once labelColumn is set; Ctrl+Space selects the current
// row of a list with MultiSelect, or deselects it; Ctrl+C copies the selected rows as
// text with tabs and as HTML; F2 and a slow second click on a label edit it; Tab
// leaves the list.
class ORVT_EXPORT ReportList : public QTableView
{
    Q_OBJECT
    Q_PROPERTY(bool MultiSelect READ MultiSelect WRITE setMultiSelect NOTIFY multiSelectChanged)
    Q_PROPERTY(bool checkBoxes READ hasCheckBoxes WRITE setCheckBoxes)
    Q_PROPERTY(bool copiesRows READ copiesRows WRITE setCopiesRows)
    Q_PROPERTY(bool editsLabels READ editsLabels WRITE setEditsLabels)

public:
    // The picture of a row's picture key; a null icon for none.
    using PictureProvider = std::function<QIcon(const QString &key)>;

    // What FindItem looks at, and how much of it.
    enum FindWhere : qint32 { WhereText = 0, WhereSubItem = 1, WhereTag = 2 };
    Q_ENUM(FindWhere)
    enum FindMatch : qint32 { MatchWhole = 0, MatchBeginning = 1 };
    Q_ENUM(FindMatch)

    explicit ReportList(QWidget *parent = nullptr);
    ~ReportList() override;

    // All rows, and all columns. The collections live as long as the list.
    ORVTListview::ListItems *ListItems() const;
    ORVTListview::ColumnHeaders *ColumnHeaders() const;

    // As ListItems()->Add.
    ListItem *Add(qint32 Index = 0, const QString &Key = QString(),
                  const QString &Text = QString());

    // Removes all rows.
    void Clear();

    // Replaces all rows, which then shows the first, or adds some at the end, as one
    // change; an open label of a row that goes is dropped. A key used twice
    // raises Error (InvalidCall) and changes nothing.
    void setRows(QList<RowContent> rows);
    void appendRows(QList<RowContent> rows);

    // Gives sub-item SubIndex of every row this text and tag, as one change;
    // selection and scroll position stay. SubIndex runs from 1 to the number of
    // columns less 1; outside it Error (SubscriptOutOfRange) is raised.
    void UpdateSubItems(const QString &Value, const QString &TagValue, qint16 SubIndex);

    // The first row from Index on whose text, any shown sub-item or tag is sz or
    // begins with it, letter case ignored; null if there is none. An Index below 1
    // counts as 1. Another Where or fPartial raises Error (InvalidCall).
    ListItem *FindItem(const QString &sz, qint32 Where = WhereText, qint32 Index = 1,
                       qint32 fPartial = MatchWhole) const;

    // The row at the top, even if only a part of it shows; null for an empty list.
    ListItem *GetFirstVisible() const;

    // Null beside the rows, on the header and the frame.
    ListItem *HitTest(float X, float Y) const;

    // The current row if it is selected, else the first that is, else null. Setting
    // it selects that row alone, or none for null, and scrolls nothing. A row of
    // another list raises Error (InvalidCall), a removed one (ObjectNotSet).
    ListItem *SelectedItem() const;
    void setSelectedItem(ListItem *Item);

    // Selects the row alone and scrolls it into view; 0 deselects all. Outside the
    // rows Error (SubscriptOutOfRange) is raised.
    void goToRow(qint32 Index);

    // Whether several rows can be selected.
    bool MultiSelect() const;
    void setMultiSelect(bool MultiSelect);

    // Raises BeforeLabelEdit and edits the label of the selected row in place;
    // without one, or in a disabled list, nothing. See labelColumn.
    void StartLabelEdit();

    // Paints at once.
    void Refresh();

    // 1 starts a drag of the selected rows once the event at hand is over, if a
    // mouse button is down; 2 calls it off; anything else does nothing.
    void Drag(qint32 Action);

    // Makes every column as wide as its header and its cells need, with a margin,
    // and the last one at least as wide as the rest of the list.
    void fitColumns();

    // The width in twips of the column at Index, here counted from 0, as a whole
    // number (a half goes to the even one); 0 for an index outside the columns.
    qint32 GetSubItemWidth(qint16 Index) const;

    // The cells as a grid that users edit, off at first. It lives as long as the list.
    ListGrid *grid() const;

    // Where rows get their pictures from; none at first.
    void setPictureProvider(PictureProvider provider);

    // A box before each row, which the mouse and Space check and uncheck.
    bool hasCheckBoxes() const;
    void setCheckBoxes(bool on);

    // Whether Ctrl+C copies the selected rows; on at first.
    bool copiesRows() const;
    void setCopiesRows(bool on);

    // Whether users can begin to edit a label; StartLabelEdit always can.
    bool editsLabels() const;
    void setEditsLabels(bool on);

    // The column that label editing edits, counted from 0: 0, the row's own text, at
    // first. While the list has no such column it is 0. Raises Error
    // (SubscriptOutOfRange) below 0.
    qint16 labelColumn() const;
    void setLabelColumn(qint16 Index);

    // Whether the columns' heads are shown; on at first.
    bool isHeaderVisible() const;
    void setHeaderVisible(bool visible);

    QRect visualRect(const QModelIndex &index) const override;
    QModelIndex indexAt(const QPoint &place) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    // NewString is what was entered. Cancel other than 0 drops it; a changed
    // NewString is used in its place. Raised soon after the editor has closed, and
    // before anything else that the user does: SelectedItem() is still the row.
    void AfterLabelEdit(qint16 &Cancel, QString &NewString);

    // Cancel other than 0 keeps the editor from opening.
    void BeforeLabelEdit(qint16 &Cancel);

    // The left button was pressed and released in the list.
    void Click();

    // The head of a column was clicked.
    void ColumnClick(ORVTListview::ColumnHeader *ColumnHeader);

    // The left button was pressed twice in the list.
    void DblClick();

    // The user has checked or unchecked a row.
    void ItemCheck(ORVTListview::ListItem *Item);

    // A row was pressed with the left or right button, or reached by keyboard.
    void ItemClick(ORVTListview::ListItem *Item);

    // KeyCode is a virtual-key number; set to 0 it swallows the key. Shift holds
    // 1 for Shift, 2 for Ctrl, 4 for Alt.
    void KeyDown(qint16 &KeyCode, qint16 Shift);

    // KeyAscii is the UTF-16 code typed; set to 0 it swallows the key, another
    // value is typed in its place.
    void KeyPress(qint16 &KeyAscii);

    // A key was let go.
    void KeyUp(qint16 &KeyCode, qint16 Shift);

    // Button is 1 left, 2 right, 4 middle; MouseMove tells the sum of those held.
    void MouseDown(qint16 Button, qint16 Shift, float X, float Y);
    void MouseMove(qint16 Button, qint16 Shift, float X, float Y);
    void MouseUp(qint16 Button, qint16 Shift, float X, float Y);

    // Drag and drop, for lists that drag rows (dragEnabled, or Drag) and that
    // accept drops (acceptDrops). Effects are 0 none, 1 copy, 2 move, 4 link; State
    // is 0 enter, 1 leave, 2 over. What each tells of is written at InputComponent.
    void OLECompleteDrag(qint32 Effect);
    void OLEDragDrop(ORVTListview::DataObject *Data, qint32 &Effect, qint16 Button, qint16 Shift,
                     float X, float Y);
    void OLEDragOver(ORVTListview::DataObject *Data, qint32 &Effect, qint16 Button, qint16 Shift,
                     float X, float Y, qint16 State);
    void OLEGiveFeedback(qint32 Effect, bool &DefaultCursors);
    void OLESetData(ORVTListview::DataObject *Data, qint16 DataFormat);
    void OLEStartDrag(ORVTListview::DataObject *Data, qint32 &AllowedEffects);

    // Not events: another value was set.
    void multiSelectChanged();
    void labelColumnChanged();

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    // The model and the modes are the list's own affair.
    using QTableView::setModel;
    using QTableView::setSelectionMode;

    void setUpLook();
    void setUpConnections();
    void updateRowHeight();
    ListItem *itemOf(ReportRow *row) const;
    ListItem *itemOf(int position) const;
    ListItem *itemOf(const QModelIndex &index) const;
    bool isChosenLabel(const QModelIndex &index) const;
    void act(QKeyEvent &event);
    bool runCommand(const QKeyEvent &event);
    void pick(const std::function<void()> &act);
    void raiseColumnClick();
    void raiseItemCheck();
    void toggleCurrent();
    void copySelection() const;
    void noteLabel(ListItem &item, const QString &text);
    void setLabel(ListItem &item, const QString &label);

    std::unique_ptr<ReportListBody> d;
};

} // namespace ORVTListview
