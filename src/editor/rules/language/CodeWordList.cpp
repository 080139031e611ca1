#include "editor/rules/language/CodeWordList.h"

#include "editor/rules/language/Vocabulary.h"

namespace ORVTListview {
namespace {

void addPoints(const HostReference<PointCollection> &reference, qint32 colour, WordIndex &index)
{
    const PointCollection *points = reference.get();
    const qint32 count = points ? points->Count() : 0;
    for (qint32 i = 1; i <= count; ++i) {
        if (const std::optional<Point> point = points->Item(i))
            index.add(point->Name, colour);
    }
}

void addWords(const BarList &list, WordIndex &index)
{
    for (const QString &word : list.words())
        index.add(word, ReservedWordColour);
}

} // namespace

void CodeWordList::FillCodeWordList(const Vocabulary &vocabulary)
{
    m_index.clear();
    m_current = -1;
    const Vocabulary::Collections &points = vocabulary.collections();
    addPoints(points.constants, ConstantColour, m_index);
    addPoints(points.variables, VariableColour, m_index);
    addPoints(points.inputs, InputColour, m_index);
    addPoints(points.outputs, OutputColour, m_index);
    addPoints(points.nvis, NviColour, m_index);
    addWords(Vocabulary::KeywordList(), m_index);
    addWords(Vocabulary::TimeWordList(), m_index);
    addWords(vocabulary.FunctionWordList(), m_index);
    addWords(Vocabulary::FanInWordList(), m_index);
    addWords(vocabulary.IndexedNameList(), m_index);
}

void CodeWordList::UpdateWordListItem(const QString &OldName, const QString &NewName,
                                      qint32 TypeIndex)
{
    ClassStyle style;
    ClassStyleForType(TypeIndex, RichTextSettings(), style);
    if (style.ColourIndex == AutomaticColour || NewName.isEmpty())
        return;
    m_index.remove(OldName, style.ColourIndex);
    m_index.add(NewName, style.ColourIndex);
    m_current = -1;
}

bool CodeWordList::FindInWordList(QStringView Text, bool Exact)
{
    const qsizetype found = Exact ? m_index.findExact(Text) : m_index.findPrefix(Text);
    if (found >= 0)
        m_current = found;
    return found >= 0;
}

const WordIndex::Entry *CodeWordList::current() const
{
    return m_current < 0 ? nullptr : &m_index.at(m_current);
}

} // namespace ORVTListview
