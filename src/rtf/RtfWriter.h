#pragma once

#include "base/HouseExport.h"
#include "rtf/RtfFormat.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QStringList>

namespace ORVTListview {

// Writes a document in 7-bit characters: its opening group with the font table on
// the first line, a colour table on a line of its own where colours are used,
// then the paragraph and character settings and the text, a line of the file for
// each line of the text. It is the inverse of readRtf; NUL is dropped.
//
// A line end is \par, at the end of the document \line: other readers take a \par
// there for the end of the last paragraph and lose an empty line.
//
// A document has at most 4,096 fonts and 4,095 colours; text in a further one
// gets the default font or the automatic colour.
// Why it is so: docs/decisions/rtf.md.
class ORVT_HOUSE_EXPORT RtfWriter final : public RtfSink
{
public:
    // The format that stands for everything a run leaves unstated: its font is
    // the document's default font.
    explicit RtfWriter(const RtfFormat &base);

    void text(QStringView text, const RtfFormat &format) override;
    void lineEnd() override;

    // The whole document, ending in CR LF. The writer is used up.
    QString finish();

private:
    struct Settings
    {
        qsizetype font = 0;
        qint32 halfPoints = 0;
        qsizetype colour = 0;
        qsizetype backColour = 0;
        bool bold = false;
        bool italic = false;
        bool underline = false;
        bool strike = false;
    };

    Settings settingsOf(const RtfFormat &format);
    qsizetype fontIndex(const QString &name);
    qsizetype colourIndex(Colour colour);
    void start(const RtfFormat &format);
    void change(const RtfFormat &format);
    void writeChanges(const Settings &settings);
    void writeWord(QLatin1StringView word, qint64 number);
    void writeFlag(QLatin1StringView word, bool before, bool now);
    void keepLastLineEnds();
    void writeFontTable(QString &document) const;
    void writeColourTable(QString &document) const;

    RtfFormat m_base;
    RtfFormat m_format;
    Settings m_settings;
    bool m_isStarted = false;
    bool m_isBehindBlank = false; // of the text, with nothing else between
    QStringList m_fonts;
    QHash<QString, qsizetype> m_fontIndexes;
    QList<Colour> m_colours;
    QHash<Colour, qsizetype> m_colourIndexes;
    QString m_body;
};

} // namespace ORVTListview
