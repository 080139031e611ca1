#pragma once

#include "widgets/combo/ComboEntry.h"

#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtWidgets/QComboBox>

#include <functional>
#include <memory>

class QListView;

namespace ORVTListview {

class DragEvents;
class ImageList;
struct ImageComboParts;

// A drop-down list of entries with keys and pictures, and a field in which users
// find an entry by any part of its text. Indexes count from 1.
//
// Typing ends the selection and opens the list of those entries that hold what was
// typed, the best one marked. Enter, Tab and a click take the marked one, Escape
// brings back what was there before; a text that reads as an entry, in any letter
// case, selects it when Enter is pressed or the focus leaves. With the list closed
// Up and Down go through the entries. The wheel is left to what scrolls the form.
//
// A receiver may do anything in an event, destroying the combo included. What the
// program changes raises no event, but for Change at setText.
// Why it is so: docs/decisions/combo.md.
class ImageCombo : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(bool dragsEntry READ dragsEntry WRITE setDragsEntry)

public:
    explicit ImageCombo(QWidget *parent = nullptr);
    ~ImageCombo() override;

    // Kept by reference; null for no pictures.
    void setImageList(const ImageList *images);

    // Replaces all entries as one change. Nothing is selected then, and the text of
    // the entry that was is gone; other text stays.
    void setEntries(QList<ComboEntry> entries);

    // Raises Error (SubscriptOutOfRange) outside 1 to count().
    const ComboEntry &entry(qint32 index) const;

    // The index of the entry with that key; 0 for none.
    qint32 indexOf(const QString &key) const;

    // 0 stands for none. Setting it raises Error (SubscriptOutOfRange) outside 0 to
    // count().
    qint32 selectedIndex() const;
    void setSelectedIndex(qint32 index);

    // Setting another text than is shown ends the selection.
    QString text() const { return currentText(); }
    void setText(const QString &text);

    // Of the field while it is enabled; invalid for the palette's.
    QColor textColour() const;
    void setTextColour(const QColor &colour);

    // Whether the picture of the selected entry can be dragged, with its text.
    bool dragsEntry() const;
    void setDragsEntry(bool on);

    // Whether the arrow that opens the list is there.
    bool isArrowAt(QPoint position) const;

    bool isListOpen() const;
    QListView *listView() const;
    void showPopup() override;
    void hidePopup() override;

    // Raises the events of drags from here and onto it.
    const DragEvents &drags() const;

Q_SIGNALS:
    // The text was typed or set; not when an entry was chosen.
    void Change();

    // The user has chosen an entry, or gone on to it in the closed combo.
    void Click();

    // The user has decided for the selected entry: by Enter, or by a click in the list.
    void picked();

    // The left button was pressed twice in the field.
    void DblClick();

    // KeyCode is a virtual-key number; set to 0 it swallows the key. Shift holds
    // 1 for Shift, 2 for Ctrl, 4 for Alt.
    void KeyDown(qint16 &KeyCode, qint16 &Shift);

    // KeyAscii is the UTF-16 code typed; set to 0 it swallows the key, another
    // value is typed in its place.
    void KeyPress(qint16 &KeyAscii);
    void KeyUp(qint16 &KeyCode, qint16 &Shift);

    // For the control around the combo, which is not to be destroyed here. The focus
    // has gone to another control, and the list was not what took it.
    void focusLeft();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void initStyleOption(QStyleOptionComboBox *option) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    // The entries and the field are the combo's own affair.
    using QComboBox::setEditable;
    using QComboBox::setLineEdit;
    using QComboBox::setModel;

    void setUpField();
    void setUpDrag();
    void colourField();
    void select(int row);
    void endSelection();
    void remember();
    void choose(int row);
    void pick();
    void noteEdit(const QString &text);
    void act(QKeyEvent &event);
    bool actOnList(const QKeyEvent &event);
    void chooseMarked();
    void chooseTypedName();
    void bringBack();
    void raiseNoted();
    void raiseNotedAfter(const QEvent &event);
    void raiseChangeSoon();
    void letWork(const std::function<void()> &work);

    std::unique_ptr<ImageComboParts> d;
};

} // namespace ORVTListview
