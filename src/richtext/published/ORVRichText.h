#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/InputComponent.h>

namespace ORVTListview {

// The interface of a stand-alone code editor, for hosts to be built against. Every
// member accepts its call and does nothing, and no event is ever raised. The
// editor that works is ORVListView with the type dsCode.
class ORVT_EXPORT ORVRichText : public InputComponent
{
    Q_OBJECT

public:
    explicit ORVRichText(QWidget *parent = nullptr);
    ~ORVRichText() override;

    const MemberTable &Members() const override;

    // Do nothing.
    Q_INVOKABLE void InitControl(QObject *FormParent);
    Q_INVOKABLE void RichTextCut();
    Q_INVOKABLE void RichTextCopy();
    Q_INVOKABLE void RichTextSelectAll();
    Q_INVOKABLE void ReinitializeWordCollection();

    // Always false.
    Q_INVOKABLE bool IsWordFound(const QString &Name);

    // Always false; IndexLine and IndexPosition stay as they are.
    Q_INVOKABLE bool Find(const QString &Name, qint32 &IndexLine, qint32 &IndexPosition);

    // Always empty.
    Q_INVOKABLE QString ReplaceSpaceEquivalent(const QString &Data);

    // Does nothing.
    Q_INVOKABLE void Clear();

    // Always empty.
    Q_INVOKABLE QString GetData();

    // Does nothing.
    Q_INVOKABLE void ValidateTextColor();

    // Always false.
    Q_INVOKABLE bool ReloadData(const QString &Data);

    // Does nothing.
    Q_INVOKABLE void InitStrings();

    // The one member with an effect: fetches the thread's texts when the provider's
    // have changed.
    Q_INVOKABLE void ReInitializeStrings();

Q_SIGNALS:
    // By number: 1 Change, 2 SelChange, 3 Click, 4 DblClick, 5 KeyDown, 6 KeyPress, 7 KeyUp,
    // 8 MouseDown, 9 MouseMove, 10 MouseUp, 11 OLECompleteDrag, 12 OLEDragDrop,
    // 13 OLEDragOver, 14 OLEGiveFeedback, 15 OLESetData, 16 OLEStartDrag, 17 MessageEvent,
    // 18 StatusUpdate, 19 UpdateUndoMenu, 20 QueryAnalyze, 21 QueryCompile,
    // 22 MoveOutCursorEvent.

    // Published; never raised.
    void Change();
    void SelChange();
    void Click();
    void DblClick();
    void MouseDown(qint16 Button, qint16 Shift, float X, float Y);
    void MouseMove(qint16 Button, qint16 Shift, float X, float Y);
    void MouseUp(qint16 Button, qint16 Shift, float X, float Y);
    void MessageEvent(QString &MSG, qint32 &Number, QString &Routine);
    void StatusUpdate(QString &Description);
    void UpdateUndoMenu();
    void QueryAnalyze();
    void QueryCompile();
    void MoveOutCursorEvent();
};

} // namespace ORVTListview
