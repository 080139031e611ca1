#pragma once

#include "editor/code_editor.h"
#include "support/keys.h"
#include "support/measure.h"
#include "support/painting.h"

#include <QtWidgets/QPlainTextEdit>

namespace ORVTListview {
class CodeView;
}

namespace ORVTListview::bench {

// A program of any length in our editor on the screen, opened in colours that come late.
class ShownEditor
{
public:
    explicit ShownEditor(const QString &program);

    double timeFirstPicture();

    // The text is in the box already when these begin.
    Times stopsUntilWhole();
    double timeUntilWhole();

    double timeAtOnce();

    // From the key to the picture: at work, and by the clock.
    double timeKey(const Key &key);
    double timeKeyByTheClock(const Key &key);

    void type(const QString &text);
    void open();
    void waitUntilIdle();
    void rest();

    CodeView &view();
    RichTextBox &box() { return m_face.box(); }
    ORVListView &widget() { return m_face.widget(); }

private:
    void giveKey(const Key &key);

    QString m_program;
    CodeEditorFace m_face;
    PaintWatch m_watch;
};

// The toolkit's own edit with the same program as plain text.
class PlainEdit
{
public:
    explicit PlainEdit(const QString &program);

    double timeFirstPicture();

    // In the place of a program that is as long.
    double timeOtherText();

private:
    double timeText();

    QString m_program;
    QPlainTextEdit m_edit;
    PaintWatch m_watch;
};

} // namespace ORVTListview::bench
