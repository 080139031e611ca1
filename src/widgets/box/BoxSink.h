#pragma once

#include "base/ColouredText.h"
#include "widgets/box/BoxFormats.h"

#include <QtGui/QTextCursor>

#include <cstddef>
#include <vector>

namespace ORVTListview {

// Inserts text of changing formats at a cursor, replacing its selection, in one
// edit block. Line ends get the font of the text before them but no colour: what
// is typed into an empty line starts without one. The cursor ends behind the
// text when the sink is destroyed.
class BoxSink final : public RtfSink
{
public:
    BoxSink(QTextCursor &cursor, BoxFormats &formats);
    ~BoxSink() override;
    Q_DISABLE_COPY_MOVE(BoxSink) // one edit block

    void text(QStringView text, const RtfFormat &format) override;
    void lineEnd() override;

private:
    // A format that came lately, and where the one without its colours stands.
    struct Known
    {
        RtfFormat stated;
        QTextCharFormat format;
        std::size_t plain = 0;
    };
    struct Piece
    {
        qsizetype length = 0; // 0: a line end
        std::size_t format = 0;
    };

    std::size_t know(const RtfFormat &format);
    void append(QStringView text);
    void flush();
    void insertLineEnds();
    void insertText();

    QTextCursor &m_cursor;
    BoxFormats &m_formats;
    std::vector<Known> m_known;
    std::size_t m_current = 0; // of the text that came last

    // What is not yet inserted.
    QString m_text; // without line ends
    std::vector<Piece> m_pieces;
    qsizetype m_lineEnds = 0;
    std::size_t m_lineEndFormat = 0;
};

// Hands coloured text to a sink. All of it gets the format but for the colour.
// Text behind the last run is of automatic colour.
void writeColoured(const ColouredText &text, const RtfFormat &format, RtfSink &sink);

} // namespace ORVTListview
