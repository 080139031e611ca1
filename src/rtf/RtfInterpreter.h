#pragma once

#include "rtf/RtfCodePages.h"
#include "rtf/RtfGroups.h"
#include "rtf/RtfKeywords.h"
#include "rtf/RtfPieces.h"
#include "rtf/RtfTables.h"
#include "rtf/RtfTokenizer.h"

namespace ORVTListview {

// Carries out the tokens of one document. The document is the group that begins
// the input; what stands behind it is no part of it.
class RtfInterpreter
{
public:
    RtfInterpreter(QStringView rtf, RtfSink &sink);

    void read();

private:
    void interpret(RtfToken &token);
    void endGroup();
    bool isFallback(RtfToken &token);

    void addSource(QStringView text);
    void addCharacter(char16_t character);
    void addUnicode(qint32 number);
    void addSymbol(char16_t symbol);
    void addBytes(RtfToken &behind);
    void endLine();
    bool isPassedOver() const { return m_groups.current().passedOver > 0; }
    bool isShown() const;
    bool isIn(RtfDestination destination) const;
    qint32 codePage() const;

    void carryOut(const RtfToken &word);
    void enter(RtfAction destination);
    void carryOutInTable(RtfAction action, qint32 number);
    void carryOutOnCharacters(const RtfKeyword &keyword, const RtfToken &word);
    void startTable(RtfDestination destination);
    void setFont(qint32 number);

    RtfTokenizer m_tokens;
    RtfFontTable m_fonts;
    RtfColourTable m_colours;
    RtfPieces m_pieces;
    RtfGroups m_groups;
    RtfBytes m_bytes;
    qint32 m_codePage = 1252;
    qint32 m_fallbackLeft = 0; // characters behind \u still to be skipped
    bool m_isFirst = false;    // a group began last
    bool m_isOptional = false; // and then came \*: skip it if its word is unknown
};

} // namespace ORVTListview
