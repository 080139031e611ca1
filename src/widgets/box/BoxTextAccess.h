#pragma once

#include <QtWidgets/QAccessibleWidget>

namespace ORVTListview {

class BoxText;
class RichTextBox;

// What assistive programs are told of a box, and what they do to its text: they type and
// remove as the user does. Places in the text are those of the document, line ends one
// character. The toolkit's own knows lines only where its own layout has put them.
class BoxTextAccess final : public QAccessibleWidget,
                            public QAccessibleTextInterface,
                            public QAccessibleEditableTextInterface
{
public:
    explicit BoxTextAccess(RichTextBox &box);

    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    int selectionCount() const override;
    void selection(int index, int *startOffset, int *endOffset) const override;
    void addSelection(int startOffset, int endOffset) override;
    void setSelection(int index, int startOffset, int endOffset) override;
    void removeSelection(int index) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;

    QString text(int startOffset, int endOffset) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType kind, int *startOffset,
                             int *endOffset) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType kind, int *startOffset,
                         int *endOffset) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType kind, int *startOffset,
                            int *endOffset) const override;
    int characterCount() const override;
    QString attributes(int offset, int *startOffset, int *endOffset) const override;

    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int startIndex, int endIndex) override;

    void insertText(int offset, const QString &text) override;
    void deleteText(int startOffset, int endOffset) override;
    void replaceText(int startOffset, int endOffset, const QString &text) override;

private:
    const BoxText &boxText() const;
    bool isThere(int offset) const;
    int inside(int offset) const;
    void select(int from, int to);

    RichTextBox &m_box;
};

} // namespace ORVTListview
