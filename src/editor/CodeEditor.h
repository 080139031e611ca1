#pragma once

#include "editor/ColourEngine.h"
#include "platform/ColouredText.h"

#include <ORVTListview/Export.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>

class QWidget;

namespace ORVTListview {

class RichTextBox;

// The code face: a rich-text box that holds a controller program and shows every
// word in the colour of its class. It owns the rules, its host widget the box.
class ORVT_EXPORT CodeEditor : public QObject
{
    Q_OBJECT

public:
    // Makes the box, named RichTextBox1, as a child of the host widget.
    explicit CodeEditor(QWidget *host);
    ~CodeEditor() override;

    RichTextBox &box() const { return *m_box; }

    // Applies the appearance to the box and to all later colouring of the thread,
    // and colours the text again.
    void Init_RichTextBox(const RichTextSettings &Setting);
    bool IsEditorReady() const { return m_isReady; }

    QString CodeText() const;
    void setCodeText(const QString &text);

    // Reading selects the whole text.
    QString CodeTextRTF();
    void setCodeTextRTF(const QString &rtf);

    QString GetColorText(const QString &Text) const;

    void Clear();

private:
    void applyAppearance(const RichTextSettings &setting);
    QString sampleRtf();
    ColouredText coloured(const QString &text, bool firstLineIsComment = false) const;

    RichTextBox *m_box;
    bool m_isReady = false;
};

} // namespace ORVTListview
