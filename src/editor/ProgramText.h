#pragma once

#include <QtCore/QString>

namespace ORVTListview {

class EditorUndo;
class RichTextBox;
class WordChoice;
struct EditorThread;
struct RichTextSettings;

// The program in the box as a text, and how it looks.
class ProgramText
{
public:
    ProgramText(RichTextBox &box, const EditorThread &thread, EditorUndo &undo, WordChoice &words);

    // Applies the appearance to the box and to all later colouring of the thread,
    // and colours the text again. A text that is kept as it is stays in the box, its
    // caret, marks and view with it; another one is set anew, the caret at its start.
    void Init_RichTextBox(const RichTextSettings &Setting);

    QString CodeText() const;
    void setCodeText(const QString &text);

    // Shows another program from its top, its lines finished, and begins the history
    // with it.
    void openProgram(const QString &text);

    // Reading selects the whole text.
    QString CodeTextRTF();
    void setCodeTextRTF(const QString &rtf);

    QString GetColorText(const QString &Text) const;
    void Clear();
    void RTextSelectAll();

private:
    void openInParts(const QString &program);
    void applyAppearance(const RichTextSettings &setting);
    void setFontName(const QString &name);
    void colourInPlace();
    void setAnew();
    void takeHead();

    RichTextBox &m_box;
    const EditorThread &m_thread;
    EditorUndo &m_undo;
    WordChoice &m_words;
};

} // namespace ORVTListview
