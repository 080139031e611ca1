#pragma once

#include "platform/BoxFormats.h"
#include "platform/ColouredText.h"

#include <QtCore/QList>
#include <QtGui/QTextCursor>

namespace ORVTListview {

// Inserts text of changing formats at a cursor, replacing its selection, in one
// edit block. Line ends get the font of the text before them but no colour: what
// is typed into an empty line starts without one. The cursor ends behind the
// text when the sink is destroyed.
class ORVT_EXPORT BoxSink final : public RtfSink
{
public:
    BoxSink(QTextCursor &cursor, BoxFormats &formats);
    ~BoxSink() override;
    Q_DISABLE_COPY_MOVE(BoxSink) // one edit block

    void text(QStringView text, const RtfFormat &format) override;
    void lineEnd() override;

private:
    struct Span
    {
        int start;
        int length;
        QTextCharFormat format;
    };

    void setFormat(const RtfFormat &format);
    void append(QStringView text, const QTextCharFormat &format);
    void flush();

    QTextCursor &m_cursor;
    BoxFormats &m_formats;
    RtfFormat m_current;
    QTextCharFormat m_format;      // of m_current
    QTextCharFormat m_plainFormat; // of m_current without its colours

    // Text is inserted in chunks, the formats that differ from the chunk's are set
    // afterwards; this takes two thirds of the time of an insertion for each run.
    QString m_chunk;
    QTextCharFormat m_chunkFormat;
    QList<Span> m_spans;
};

// Hands coloured text to a sink. All of it gets the format but for the colour.
// Text behind the last run is of automatic colour.
ORVT_EXPORT void putColoured(const ColouredText &text, const RtfFormat &format, RtfSink &sink);

} // namespace ORVTListview
