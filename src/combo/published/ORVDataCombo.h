#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/InputComponent.h>
#include <ORVTListview/PointCollection.h>
#include <ORVTListview/PropertyBag.h>
#include <ORVTListview/Types.h>

#include <memory>

namespace ORVTListview {

// A drop-down list of the points of one type, each with its type's picture. Users
// find a point by typing any part of its name; the list then holds the points that
// match. Enter, Tab and a click take the marked one, Escape gives back what was
// there before.
//
// Entries are counted in 16 bits: beyond 32,767 of them ListCount and ListIndex
// say 32,767, and ItemData reaches the first 32,767.
//
// The text has the colour that the host gave the type of the selected point by
// Init_RichTextBox, from the choice on. It is the host's business that the colour
// can be read on the theme's background; before any Init_RichTextBox on the thread
// the text has the theme's own colour.
class ORVT_EXPORT ORVDataCombo : public InputComponent
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(
        qint16 ListCount READ ListCount NOTIFY listCountChanged DESIGNABLE false STORED false)
    Q_PROPERTY(
        qint16 ListIndex READ ListIndex NOTIFY listIndexChanged DESIGNABLE false STORED false)
    Q_PROPERTY(bool dragsEntry READ dragsEntry WRITE setDragsEntry NOTIFY dragsEntryChanged)

public:
    explicit ORVDataCombo(QWidget *parent = nullptr);
    ~ORVDataCombo() override;

    const MemberTable &Members() const override;

    // Shows the points of the type from the collections that were given to
    // ORVTreeview::SetCollectionRenamable: dsVariable, dsConst, dsInput or dsOutput.
    // Any other type changes nothing, a collection that is not set or gone empties
    // the list. Then nothing is selected, and the text of the point that was is
    // gone; text that the host has set stays. LvIndex may be null and is not used.
    // When the host's collection fails, ErrMsg receives the failure's description
    // and the list stays; else ErrMsg is left as it is.
    Q_INVOKABLE void FillDataListview(ORVTListview::LwType TypeIndex,
                                      ORVTListview::PointCollection *LvIndex, QString &ErrMsg);

    // Selects the point of that name, in the letter case of the collection. An
    // empty or unknown name changes nothing.
    Q_INVOKABLE void SetListIndex(const QString &Data);

    // The data value of the point at Index, counted from 0; 0 outside the list.
    Q_INVOKABLE qint32 ItemData(qint16 Index) const;

    // How many points are in the list, at most 32,767.
    qint16 ListCount() const;

    // The selected point, counted from 0; -1 for none.
    qint16 ListIndex() const;

    // What the field shows. Setting another text ends the selection and raises
    // Change.
    QString Text() const;
    void setText(const QString &Text);

    // The control's own state, whatever that of its parents. Set by this member it is
    // told of in a disabled parent, too; there QWidget's own setter keeps silent.
    bool Enabled() const;
    void setEnabled(bool Enabled);

    // Removes all entries, and the text of the selected one.
    Q_INVOKABLE void Clear();

    // Published; these do nothing.
    Q_INVOKABLE void ResetbackColor(qint32 Color);
    Q_INVOKABLE void UpdateListWidth();

    // Accepted and kept; nothing reads it.
    Q_INVOKABLE void setFormParentHandle(qint32 Handle);

    // The control has no texts of its own; ReInitializeStrings fetches those of the
    // thread when the provider's have changed.
    Q_INVOKABLE void InitStrings();
    Q_INVOKABLE void ReInitializeStrings();

    // The design-time properties "Text" (empty by default) and "Enabled" (true).
    void ReadProperties(const ORVTListview::PropertyBag &Bag);
    void WriteProperties(ORVTListview::PropertyBag &Bag) const;

    // Whether users can drag the picture of the selected point, with its name; off
    // at first. Drops need setAcceptDrops(true).
    bool dragsEntry() const;
    void setDragsEntry(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // The events, with those of InputComponent. By number: 1 Change, 2 Click, 3 DblClick,
    // 4 KeyDown, 5 KeyPress, 6 KeyUp, 7 OLECompleteDrag, 8 OLEDragDrop, 9 OLEDragOver,
    // 10 OLEGiveFeedback, 11 OLESetData, 12 OLEStartDrag, 13 picked.

    // The text was typed or set; not when a point was chosen.
    void Change();

    // The user has chosen a point, or gone on to it with a key in the closed combo.
    void Click();

    // The left button was pressed twice in the field.
    void DblClick();

    // Not events: a property has another value now, whoever changed it.
    void textChanged();
    void enabledChanged();
    void listCountChanged();
    void listIndexChanged();
    void dragsEntryChanged();

    // An addition, told after Change and Click: the user has decided for the point that is
    // selected now, by Enter, by a name typed and confirmed with Enter, or by a click in
    // the list; also for the one that was selected already.
    void picked();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void relayEvents();
    void tellProperties();
    void applyColour();
    void tell();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
