#pragma once

#include <QtCore/QString>

#include <memory>

class QTextDocument;

namespace ORVTListview {

class PaperColours;
class RichTextBox;

// A text of a box, or what is selected in it, as it stands on paper: the same letters, in
// the colours of paper.
class PaperText
{
public:
    enum Extent { All, Selected };

    PaperText(const RichTextBox &box, const PaperColours &colours, Extent extent);
    ~PaperText();
    Q_DISABLE_COPY_MOVE(PaperText) // owns a box

    QString rtf() const { return m_rtf; }

    // A page with the title, if there is one. Nothing else is made up: the lines stand in
    // <pre>, so that indents and blanks are kept by whatever shows it.
    QString html(const QString &title) const;

    // In the editor's font, to be printed.
    const QTextDocument &document() const;

private:
    QString m_rtf;
    std::unique_ptr<RichTextBox> m_paper; // never shown
};

} // namespace ORVTListview
