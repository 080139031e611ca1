#include "rtf/RtfInterpreter.h"

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

constexpr qint32 maximumHalfPoints = 2 * 1638;

} // namespace

RtfInterpreter::RtfInterpreter(QStringView rtf, RtfSink &sink)
    : m_tokens(rtf)
    , m_pieces(sink, m_fonts)
{
}

void RtfInterpreter::read()
{
    RtfToken token = m_tokens.next();
    if (token.kind != RtfToken::GroupStart)
        return;
    do {
        interpret(token);
        token = m_tokens.next();
    } while (token.kind != RtfToken::End && !m_groups.isOutside());
    addBytes(token);
    m_pieces.flush();
}

void RtfInterpreter::interpret(RtfToken &token)
{
    if (token.kind != RtfToken::Byte)
        addBytes(token);
    const bool isFirst = std::exchange(m_isFirst, token.kind == RtfToken::GroupStart);
    if (token.kind == RtfToken::GroupStart || token.kind == RtfToken::GroupEnd) {
        m_fallbackLeft = 0;
        m_isOptional = false;
        return token.kind == RtfToken::GroupStart ? m_groups.start() : endGroup();
    }
    if (m_groups.isSkipping() || isFallback(token))
        return;
    if (token.kind == RtfToken::Word)
        return carryOut(token);
    m_isOptional = isFirst && token.kind == RtfToken::Symbol && token.symbol == u'*';
    if (token.kind == RtfToken::Text)
        addSource(token.text);
    else if (token.kind == RtfToken::Byte)
        m_bytes.add(static_cast<quint8>(token.symbol));
    else
        addSymbol(token.symbol);
}

void RtfInterpreter::endGroup()
{
    const bool wasFontTable = isIn(RtfDestination::FontTable);
    m_groups.end();
    if (wasFontTable && !isIn(RtfDestination::FontTable))
        m_fonts.finishEntry();
}

// True when nothing is left of the token behind a \u that the reader knows.
bool RtfInterpreter::isFallback(RtfToken &token)
{
    if (m_fallbackLeft == 0)
        return false;
    if (token.kind != RtfToken::Text) {
        --m_fallbackLeft;
        return true;
    }
    const qsizetype skipped = std::min<qsizetype>(m_fallbackLeft, token.text.size());
    m_fallbackLeft -= static_cast<qint32>(skipped);
    token.text = token.text.sliced(skipped);
    return token.text.isEmpty();
}

void RtfInterpreter::addSource(QStringView text)
{
    if (isPassedOver())
        return;
    switch (m_groups.current().destination) {
    case RtfDestination::FontTable:
        m_fonts.addSource(text);
        break;
    case RtfDestination::ColourTable:
        m_colours.addSource(text);
        break;
    case RtfDestination::Document:
        if (isShown())
            m_pieces.addSource(text, m_groups.current().characters);
    }
}

void RtfInterpreter::addCharacter(char16_t character)
{
    if (character == u'\0' || isPassedOver())
        return;
    if (character == u'\r' || character == u'\n')
        endLine();
    else if (isIn(RtfDestination::FontTable))
        m_fonts.addCharacters(QStringView(&character, 1));
    else if (isShown())
        m_pieces.addCharacter(character, m_groups.current().characters);
}

// A number beyond 16 bits is no UTF-16 unit, but some writers put a whole character.
void RtfInterpreter::addUnicode(qint32 number)
{
    if (number >= -0x8000 && number <= 0xFFFF) {
        addCharacter(static_cast<char16_t>(number));
    } else if (number > 0 && number <= 0x10FFFF) {
        const auto character = static_cast<char32_t>(number);
        addCharacter(QChar::highSurrogate(character));
        addCharacter(QChar::lowSurrogate(character));
    } else {
        addCharacter(QChar::ReplacementCharacter);
    }
    m_fallbackLeft = m_groups.current().fallbackLength;
}

void RtfInterpreter::addSymbol(char16_t symbol)
{
    switch (symbol) {
    case u'\\':
    case u'{':
    case u'}':
    case u'\t':
    case u'\r':
    case u'\n':
        return addCharacter(symbol);
    case u'~':
        return addCharacter(QChar::Nbsp);
    case u'-':
        return addCharacter(QChar::SoftHyphen);
    case u'_':
        return addCharacter(u'\u2011');
    default:
        return;
    }
}

// The second half of a character may stand unescaped behind the first.
void RtfInterpreter::addBytes(RtfToken &behind)
{
    if (m_bytes.isEmpty())
        return;
    if (behind.kind == RtfToken::Text && behind.text.front() < u'\x80' &&
        m_bytes.lacksTrail(codePage())) {
        m_bytes.add(static_cast<quint8>(behind.text.front().unicode()));
        behind.text = behind.text.sliced(1);
    }
    for (const QChar c : m_bytes.take(codePage()))
        addCharacter(c.unicode());
}

void RtfInterpreter::endLine()
{
    if (isShown())
        m_pieces.endLine();
}

bool RtfInterpreter::isShown() const
{
    const quint32 flags = m_groups.current().characters.flags;
    return isIn(RtfDestination::Document) && !isPassedOver() &&
           (flags & (RtfHidden | RtfDeleted)) == 0;
}

bool RtfInterpreter::isIn(RtfDestination destination) const
{
    return m_groups.current().destination == destination;
}

qint32 RtfInterpreter::codePage() const
{
    const qint32 font = m_fonts.orDefault(m_groups.current().characters.font);
    const qint32 page =
        isIn(RtfDestination::FontTable) ? m_fonts.entryCodePage() : m_fonts.codePage(font);
    return page ? page : m_codePage;
}

void RtfInterpreter::carryOut(const RtfToken &word)
{
    const RtfKeyword *keyword = findRtfKeyword(word.text);
    const bool isDestination = keyword && isRtfDestination(keyword->action);
    if (std::exchange(m_isOptional, false) && !isDestination)
        return m_groups.skipCurrent();
    if (!keyword)
        return;
    switch (keyword->action) {
    case RtfAction::AddCharacter:
        return addCharacter(static_cast<char16_t>(keyword->value));
    case RtfAction::AddUnicode:
        return word.hasNumber ? addUnicode(word.number) : void();
    case RtfAction::SetFallback:
        m_groups.current().fallbackLength = word.hasNumber ? std::max(word.number, 0) : 1;
        return;
    case RtfAction::EndLine:
        return endLine();
    case RtfAction::FixCodePage:
        m_codePage = static_cast<qint32>(keyword->value);
        return;
    case RtfAction::SetFont:
        return setFont(word.number);
    default:
        if (isDestination)
            return enter(keyword->action);
        carryOutInTable(keyword->action, word.number);
        carryOutOnCharacters(*keyword, word);
    }
}

void RtfInterpreter::enter(RtfAction destination)
{
    qint32 &passedOver = m_groups.current().passedOver;
    switch (destination) {
    case RtfAction::SkipDestination:
        return m_groups.skipCurrent();
    case RtfAction::PassOver:
        ++passedOver;
        return;
    case RtfAction::ShowAfterAll:
        passedOver = std::max(0, passedOver - 1);
        return;
    case RtfAction::StartFontTable:
        return startTable(RtfDestination::FontTable);
    case RtfAction::StartColourTable:
        m_colours.clear();
        return startTable(RtfDestination::ColourTable);
    default:
        return;
    }
}

void RtfInterpreter::carryOutInTable(RtfAction action, qint32 number)
{
    switch (action) {
    case RtfAction::SetDefaultFont:
        return m_fonts.setDefault(number);
    case RtfAction::SetCodePage:
        m_codePage = number > 0 ? number : m_codePage;
        return;
    case RtfAction::SetFontCharset:
        return m_fonts.setCharset(number);
    case RtfAction::SetFontCodePage:
        return m_fonts.setCodePage(number);
    case RtfAction::SetRed:
        return m_colours.set(RtfColourTable::Red, number);
    case RtfAction::SetGreen:
        return m_colours.set(RtfColourTable::Green, number);
    case RtfAction::SetBlue:
        return m_colours.set(RtfColourTable::Blue, number);
    default:
        return;
    }
}

void RtfInterpreter::carryOutOnCharacters(const RtfKeyword &keyword, const RtfToken &word)
{
    RtfCharacters &characters = m_groups.current().characters;
    const bool isOff = word.hasNumber && word.number == 0;
    switch (keyword.action) {
    case RtfAction::ResetCharacters:
        characters = {};
        return;
    case RtfAction::SetSize:
        characters.halfPoints = std::clamp(word.number, 0, maximumHalfPoints);
        return;
    case RtfAction::SetColour:
        characters.colour = m_colours.colour(word.number);
        return;
    case RtfAction::SetBackColour:
        characters.backColour = m_colours.colour(word.number);
        return;
    case RtfAction::SetFlag:
        characters.flags &= ~keyword.value;
        characters.flags |= isOff ? 0 : keyword.value;
        return;
    case RtfAction::ClearFlag:
        characters.flags &= ~keyword.value;
        return;
    default:
        return;
    }
}

void RtfInterpreter::startTable(RtfDestination destination)
{
    m_pieces.flush();
    m_groups.current().destination = destination;
}

void RtfInterpreter::setFont(qint32 number)
{
    if (isIn(RtfDestination::FontTable))
        m_fonts.start(number);
    else
        m_groups.current().characters.font = m_fonts.find(number);
}

} // namespace ORVTListview
