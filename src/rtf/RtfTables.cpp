#include "rtf/RtfTables.h"

#include "rtf/RtfCodePages.h"
#include "rtf/RtfFormat.h"

#include <algorithm>

namespace ORVTListview {

void RtfFontTable::setDefault(qint32 number)
{
    m_defaultNumber = number;
    m_default = find(number);
}

void RtfFontTable::start(qint32 number)
{
    finishEntry();
    m_isOpen = true;
    m_number = number;
    m_entry = {};
}

void RtfFontTable::setCharset(qint32 charset)
{
    m_entry.codePage = rtfCodePageOfCharset(charset);
}

void RtfFontTable::setCodePage(qint32 codePage)
{
    if (codePage == 0 || isRtfCodePage(codePage))
        m_entry.codePage = codePage;
}

void RtfFontTable::addCharacters(QStringView text)
{
    const qsizetype room = maximumNameLength - m_entry.name.size();
    if (m_isOpen)
        m_entry.name.append(text.first(std::min(room, text.size())));
}

void RtfFontTable::addSource(QStringView text)
{
    const qsizetype end = text.indexOf(u';');
    addCharacters(text.first(end < 0 ? text.size() : end));
    if (end >= 0)
        finishEntry();
}

void RtfFontTable::finishEntry()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    const qint32 known = find(m_number);
    if (known != none) {
        m_fonts[static_cast<std::size_t>(known)] = m_entry;
    } else if (std::ssize(m_fonts) < rtfMaximumTableEntries) {
        m_positions.insert(m_number, static_cast<qint32>(m_fonts.size()));
        m_fonts.push_back(m_entry);
        m_default = find(m_defaultNumber);
    }
}

qint32 RtfFontTable::find(qint32 number) const
{
    return m_positions.value(number, none);
}

const RtfFontTable::Font &RtfFontTable::at(qint32 position) const
{
    return position == none ? m_unstated : m_fonts[static_cast<std::size_t>(position)];
}

void RtfColourTable::clear()
{
    m_colours.clear();
    m_isStated = false;
    m_entry = 0;
}

void RtfColourTable::set(Component component, qint32 value)
{
    const int shift = 8 * component;
    m_isStated = true;
    m_entry &= ~(0xFF << shift);
    m_entry |= std::clamp(value, 0, 0xFF) << shift;
}

void RtfColourTable::addSource(QStringView text)
{
    for (const QChar c : text) {
        if (c == u';')
            finishEntry();
    }
}

void RtfColourTable::finishEntry()
{
    if (std::ssize(m_colours) < rtfMaximumTableEntries)
        m_colours.push_back(m_isStated ? m_entry : RtfFormat::automatic);
    m_isStated = false;
    m_entry = 0;
}

Colour RtfColourTable::colour(qint32 index) const
{
    const bool isThere = index >= 0 && index < std::ssize(m_colours);
    return isThere ? m_colours[static_cast<std::size_t>(index)] : RtfFormat::automatic;
}

} // namespace ORVTListview
