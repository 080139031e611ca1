#pragma once

#include "base/ColouredText.h"
#include "widgets/box/BoxFormats.h"

#include <QtGui/QTextBlockFormat>
#include <QtGui/QTextCursor>

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
    void setFormat(const RtfFormat &format);
    void flush();

    QTextCursor &m_cursor;
    BoxFormats &m_formats;
    QTextBlockFormat m_lineFormat;
    RtfFormat m_current;
    RtfFormat m_plain;             // m_current without its colours
    QTextCharFormat m_format;      // of m_current
    QTextCharFormat m_plainFormat; // of m_plain
    QString m_waiting;             // text of m_format, not yet inserted
};

// Hands coloured text to a sink. All of it gets the format but for the colour.
// Text behind the last run is of automatic colour.
void putColoured(const ColouredText &text, const RtfFormat &format, RtfSink &sink);

} // namespace ORVTListview
