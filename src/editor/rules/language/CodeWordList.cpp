#include "editor/rules/language/CodeWordList.h"

#include "editor/rules/language/Vocabulary.h"
#include "shared/points/HostPoints.h"

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct Kind
{
    HostReference<PointCollection> Vocabulary::Collections::*points;
    qint32 colour;
};

// In the order of adding.
constexpr std::array kindsOfPoints{
    Kind{&Vocabulary::Collections::constants, ConstantColour},
    Kind{&Vocabulary::Collections::variables, VariableColour},
    Kind{&Vocabulary::Collections::inputs, InputColour},
    Kind{&Vocabulary::Collections::outputs, OutputColour},
    Kind{&Vocabulary::Collections::nvis, NviColour},
};

const HostReference<PointCollection> &pointsOf(std::size_t kind, const Vocabulary &vocabulary)
{
    return vocabulary.collections().*kindsOfPoints[kind].points;
}

void addWords(WordIndex &index, const QStringList &words, qint32 colour)
{
    for (const QString &word : words)
        index.add(word, colour);
}

QStringList namesOf(const HostReference<PointCollection> &points)
{
    QStringList names;
    for (const Point &point : HostPoints::read(points, u"RefillListviewWithWordList"_s))
        names.append(point.Name);
    return names;
}

QStringList reservedWords(const Vocabulary &vocabulary)
{
    return Vocabulary::KeywordList().words() + Vocabulary::TimeWordList().words() +
           vocabulary.FunctionWordList().words() + Vocabulary::FanInWordList().words() +
           vocabulary.IndexedNameList().words();
}

} // namespace

void CodeWordList::FillCodeWordList(const Vocabulary &vocabulary)
{
    Choice all{};
    all.fill(true);
    refill(all, vocabulary, reservedWords(vocabulary));
    m_isFilled = true;
}

void CodeWordList::follow(const Vocabulary &vocabulary)
{
    Choice stale{};
    for (std::size_t kind = 0; m_isFilled && kind < kinds; ++kind)
        stale[kind] = isStale(kind, vocabulary);
    if (std::find(stale.begin(), stale.end(), true) == stale.end())
        return;
    try {
        refill(stale, vocabulary, listed(ReservedWordColour));
    } catch (const Error &) {
        rememberContents(stale, vocabulary); // a heir that fails is not asked at every word
    }
}

// A host's own collection does not tell of its changes: its names stay until a refill.
bool CodeWordList::isStale(std::size_t kind, const Vocabulary &vocabulary) const
{
    const HostReference<PointCollection> &points = pointsOf(kind, vocabulary);
    const Contents &then = m_read[kind];
    if (const KeyedCollection<Point> *now = HostPoints::contents(points))
        return !then || !then->isSharedWith(*now);
    return then && !points;
}

void CodeWordList::rememberContents(const Choice &which, const Vocabulary &vocabulary)
{
    for (std::size_t kind = 0; kind < kinds; ++kind) {
        if (!which[kind])
            continue;
        const auto *contents = HostPoints::contents(pointsOf(kind, vocabulary));
        m_read[kind] = contents ? Contents(*contents) : std::nullopt;
    }
}

// Reads everything first: a failure leaves the index as it was.
void CodeWordList::refill(const Choice &which, const Vocabulary &vocabulary,
                          const QStringList &reserved)
{
    std::array<QStringList, kinds> names;
    for (std::size_t kind = 0; kind < kinds; ++kind)
        names[kind] =
            which[kind] ? namesOf(pointsOf(kind, vocabulary)) : listed(kindsOfPoints[kind].colour);
    WordIndex index;
    for (std::size_t kind = 0; kind < kinds; ++kind)
        addWords(index, names[kind], kindsOfPoints[kind].colour);
    addWords(index, reserved, ReservedWordColour);
    rememberContents(which, vocabulary);
    replaceIndex(std::move(index));
}

void CodeWordList::replaceIndex(WordIndex index)
{
    m_index = std::move(index);
    m_current = -1;
    ++m_changes;
}

QStringList CodeWordList::listed(qint32 colour) const
{
    QStringList words;
    for (qsizetype i = 0; i < m_index.count(); ++i) {
        if (m_index.at(i).data == colour)
            words.append(m_index.at(i).text);
    }
    return words;
}

void CodeWordList::UpdateWordListItem(const QString &OldName, const QString &NewName,
                                      qint32 TypeIndex)
{
    ClassStyle style;
    ClassStyleForType(TypeIndex, RichTextSettings(), style);
    if (style.ColourIndex == AutomaticColour || NewName.isEmpty())
        return;
    WordIndex index = m_index;
    index.remove(OldName, style.ColourIndex);
    index.remove(NewName, style.ColourIndex); // a ready collection may have it already
    index.add(NewName, style.ColourIndex);
    replaceIndex(std::move(index));
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
