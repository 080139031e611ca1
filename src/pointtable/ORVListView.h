#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/Types.h>

#include <QtWidgets/QWidget>

#include <memory>

namespace ORVTListview {

class RichTextBox;

// One control with two faces, chosen by its type: for dsCode an editor for
// controller programs, for every other type a table of the controller's points.
//
// The editor's vocabulary, appearance and undo history are shared by all controls
// of a user-interface thread. Members raise Error and nothing else.
class ORVT_EXPORT ORVListView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(ORVTListview::LwType ListviewType READ ListviewType WRITE setListviewType)
    Q_PROPERTY(ORVTListview::LwType CurrentType READ CurrentType)
    Q_PROPERTY(QString Key READ Key)
    Q_PROPERTY(QString CodeText READ CodeText WRITE setCodeText DESIGNABLE false STORED false)
    Q_PROPERTY(
        QString CodeTextRTF READ CodeTextRTF WRITE setCodeTextRTF DESIGNABLE false STORED false)

public:
    explicit ORVListView(QWidget *parent = nullptr);
    ~ORVListView() override;

    // The type shown; dsInput at first. A value outside 0 to 12 is ignored.
    // Assigning dsCode also takes SQRT out of the editor's function words until
    // IsSqrtSupported is set again.
    LwType ListviewType() const;
    void setListviewType(ORVTListview::LwType type);
    LwType CurrentType() const;

    // The untranslated display name of the current type.
    QString Key() const;

    // --- The code editor ---

    // Applies the appearance to this editor and to all later colouring on this
    // thread, refills the word index, and colours the text again. To be called
    // once the editor is shown in code mode and whenever the settings change.
    Q_INVOKABLE void Init_RichTextBox(const ORVTListview::RichTextSettings &Setting);

    // The program as plain text, lines separated by CR LF. Setting it shows it
    // without colours, accepts CR LF, CR and LF as line ends, and puts the caret
    // at 0. To show a program coloured: setCodeTextRTF(GetColorText(text)).
    QString CodeText() const;
    void setCodeText(const QString &Text);

    // The program as RTF. Reading selects the whole text. Setting replaces it and
    // leaves the caret behind it; a text that does not begin with "{\rtf" is taken
    // as plain text.
    QString CodeTextRTF();
    void setCodeTextRTF(const QString &Rtf);

    // The coloured RTF document of a program. Listed words take their listed
    // spelling, and brackets one blank towards their neighbours. The text is not
    // escaped: "\", "{" and "}" keep their meaning in RTF. Before the first
    // Init_RichTextBox on this thread the document has no head.
    Q_INVOKABLE QString GetColorText(const QString &Text);

    Q_INVOKABLE void setRichTextVisible(bool Visible);
    Q_INVOKABLE void setRichTexteNable(bool Enable);

    // "true", "false" or a number: whether SQRT is a function word. Raises Error
    // (TypeMismatch) for any other text. Counts for the whole thread.
    Q_INVOKABLE void setIsSqrtSupported(const QString &Value);

    // The editor's box, owned by this control.
    Q_INVOKABLE ORVTListview::RichTextBox *RTextBox() const;

    // Rebuilds the index of known words from the vocabulary. Text already shown
    // keeps its colours.
    Q_INVOKABLE void RefillListviewWithWordList();

    // In code mode empties the editor.
    Q_INVOKABLE void Clear();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void switchToType(LwType type);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
