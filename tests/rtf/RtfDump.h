#pragma once

#include "rtf/RtfFormat.h"

namespace ORVTListview::Testing {

// Shows a format in one line, what is not stated left out:
// "Arial 17 colour 0000ff back 00ffff bold italic underline strike".
QString describe(const RtfFormat &format);

// Keeps what a document gives as text, a line for each piece and each line end.
class RtfDump final : public RtfSink
{
public:
    void text(QStringView text, const RtfFormat &format) override;
    void lineEnd() override;

    const QString &lines() const { return m_lines; }

private:
    QString m_lines;
};

// Hands pieces on to a sink, those in a row of one format as one.
class RtfMerger final : public RtfSink
{
public:
    explicit RtfMerger(RtfSink &sink)
        : m_sink(sink)
    {
    }

    void text(QStringView text, const RtfFormat &format) override;
    void lineEnd() override;
    void flush(); // needed at the end

private:
    RtfSink &m_sink;
    QString m_text;
    RtfFormat m_format;
};

// The text of a document, lines separated by CR LF.
QString plainText(QStringView rtf);

// The dump of a document.
QString dump(QStringView rtf);

} // namespace ORVTListview::Testing
