#pragma once

#include <QtCore/QStringView>
#include <QtGui/QTextBlock>

namespace ORVTListview {

class RichTextBox;

// Colours what is typed: a word once it is finished, a line once it is left. Only
// colours and listed letter case change, never a blank, a tab or a bracket, and
// nothing while an input method composes.
// Why it is so: docs/decisions/editor-typing.md.
class TypedColouring
{
public:
    explicit TypedColouring(RichTextBox &box);

    void finishLine(qint32 line);
    void finishCaretLine();

    // The user changed the line of the caret; it is finished once it is left.
    void noteEdit();

    // The text was replaced by one that has its colours.
    void forgetEdit();

    void finishEdit();

    // Finishes the edited line when the caret has left it.
    void followCaret();

    // Gives text typed next the colour that an unfinished word has at the caret.
    void prepareTyping(QStringView text);

    // Whether typing the text finishes the word before it.
    static bool finishesWord(QStringView text);

private:
    void finish(const QTextBlock &block);

    RichTextBox &m_box;
    QTextBlock m_edited;
};

} // namespace ORVTListview
