#pragma once

#include <ORVTListview/Colour.h>

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringView>

#include <vector>

namespace ORVTListview {

// Entries of a document's font table, and of its colour table, at most. Further
// ones are read over.
constexpr qsizetype rtfMaximumTableEntries = 4096;

// The fonts of a document. An entry is described by its number, its properties
// and its name, and counts from the ";" on, from the next one or from the end of
// the table.
class RtfFontTable
{
public:
    static constexpr qint32 none = -1;
    static constexpr qsizetype maximumNameLength = 255;

    void setDefault(qint32 number);
    void start(qint32 number);
    void setCharset(qint32 charset);
    void setCodePage(qint32 codePage);
    void addCharacters(QStringView text); // of the name
    void addSource(QStringView text);     // of the name, where ";" ends the entry
    void finishEntry();

    qint32 entryCodePage() const { return m_entry.codePage; }

    // The position of a font, or none.
    qint32 find(qint32 number) const;

    // The position itself; for none, that of the default font, if there is one.
    qint32 orDefault(qint32 position) const { return position == none ? m_default : position; }

    // What stands at a position; empty and 0 for none.
    const QString &name(qint32 position) const { return at(position).name; }
    qint32 codePage(qint32 position) const { return at(position).codePage; }

private:
    struct Font
    {
        QString name;
        qint32 codePage = 0; // 0: the document's
    };

    const Font &at(qint32 position) const;

    std::vector<Font> m_fonts;
    QHash<qint32, qint32> m_positions;
    qint32 m_defaultNumber = 0;
    qint32 m_default = none;
    bool m_isOpen = false;
    qint32 m_number = 0;
    Font m_entry;
    Font m_unstated;
};

// The colours of a document; none of them a system colour.
class RtfColourTable
{
public:
    enum Component { Red, Green, Blue };

    void clear();
    void set(Component component, qint32 value); // of the entry that comes
    void addSource(QStringView text);            // each ";" ends an entry

    // Automatic for an entry without components and for one that is not there.
    Colour colour(qint32 index) const;

private:
    void finishEntry();

    std::vector<Colour> m_colours;
    bool m_isStated = false;
    Colour m_entry = 0;
};

} // namespace ORVTListview
