#pragma once

class QPlainTextEdit;

namespace ORVTListview {

// What a box had when its whole text was replaced, for the signals that it inherits: they
// come once, when all is done. A receiver in the middle would find half a text, and what it
// did to that would stay beside the rest.
class ReplacedText
{
public:
    explicit ReplacedText(const QPlainTextEdit &former);

    // A receiver may destroy the box, and what one throws ends in the log.
    void tellFrom(QPlainTextEdit &box) const;

private:
    int m_lines;
    bool m_isModified;
    bool m_couldUndo; // where a host has switched that on for the document
    bool m_couldRedo;
    bool m_wasSelected;
};

} // namespace ORVTListview
