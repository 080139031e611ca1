#pragma once

#include "widgets/box/BoxCommands.h"

namespace ORVTListview {

// A plain editor, without undo. Who has rules for some commands derives from it.
class PlainCommands : public BoxCommands
{
public:
    explicit PlainCommands(RichTextBox &box);

    std::optional<bool> takesKey(const VirtualKey &key) const override;
    void type(const QString &text) override;
    Pasted paste(const QMimeData &data) override;
    void copy() override;
    void cut() override;
    void remove() override;
    void removeBefore(Extent extent) override;
    void removeAfter(Extent extent) override;
    void selectAll() override;
    void replace(const QList<TextPiece> &pieces, const QString &text) override;
    void beforeChange(bool losesPart) override;
    void edit(const std::function<void()> &change) override;
    void undo() override;
    void redo() override;
    void leave(bool forwards) override;
    void fillMenu(QMenu &menu) override;

protected:
    RichTextBox &box() const { return m_box; }

    // A menu's entry for what changes the text.
    void addChange(QMenu &menu, const QString &text, bool isPossible,
                   const std::function<void()> &change);
    void pasteClipboard();

private:
    RichTextBox &m_box;
};

} // namespace ORVTListview
