#pragma once

#include "platform/RtfFormat.h"

#include <QtCore/QList>

namespace ORVTListview {

// Writes a document: its opening group with the font table on the first line, a
// colour table on a line of its own where colours are used, then the paragraph
// and character settings and the text. It is the inverse of readRtf.
class ORVT_CORE_EXPORT RtfWriter final : public RtfSink
{
public:
    // The format that stands for everything a run leaves unstated: its font is
    // the document's default font.
    explicit RtfWriter(const RtfFormat &base);

    void text(QStringView text, const RtfFormat &format) override;
    void lineEnd() override;

    // The whole document. The writer is used up.
    QString finish();

private:
    qsizetype fontIndex(const QString &name);
    qsizetype colourIndex(qint32 colour);
    void writeSettings(const RtfFormat &format);
    void writeEscaped(QStringView text);

    RtfFormat m_base;
    RtfFormat m_current;
    bool m_started = false;
    QStringList m_fonts;
    QList<qint32> m_colours;
    QString m_body;
};

} // namespace ORVTListview
