#include "editor/rules/language/Vocabulary.h"

#include "base/TextRules.h"
#include "shared/points/HostPoints.h"
#include <ORVTListview/Error.h>

#include <array>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

QString baseFunctionWords()
{
    return u"|AVERAGE|SWITCH|HISEL|LIMIT|LOWSEL|"_s;
}

} // namespace

Vocabulary::Vocabulary()
    : m_functionWords(baseFunctionWords())
    , m_indexedNames(u"|"_s)
{
}

const BarList &Vocabulary::KeywordList()
{
    static const BarList list(u"|IF|>|<|>=|<=|==|!=|+|-|*|/|=|AND|OR|ELSE|END|ENDIF|"_s);
    return list;
}

const BarList &Vocabulary::TimeWordList()
{
    static const BarList list(u"|DAY|DAYOFWEEK|HOUR|SECOND|MINUTE|MONTH|YEAR|ON|OFF|"_s);
    return list;
}

const BarList &Vocabulary::FanInWordList()
{
    static const BarList list(u"|FAN_IN_AV|FAN_IN_HISEL|FAN_IN_LOWSEL|CLEAR|"_s);
    return list;
}

void Vocabulary::setIsSqrtSupported(const QString &Value)
{
    const std::optional<bool> supported = toBoolean(Value);
    if (!supported)
        throw Error(TypeMismatch, u"IsSqrtSupported"_s, u"Type mismatch"_s);
    m_sqrtSupported = *supported;
    m_functionWords =
        BarList(m_sqrtSupported ? baseFunctionWords() + u"SQRT|"_s : baseFunctionWords());
}

void Vocabulary::resetFunctionWords()
{
    m_functionWords = BarList(baseFunctionWords());
}

void Vocabulary::setIndexedNames(IndexedNameCollection *names)
{
    const HostReference<IndexedNameCollection> families(names); // may go while it is read
    QString text = u"|"_s;
    for (const QString &name : HostPoints::read(families, u"StringIndexCollection"_s))
        text += name + u'|';
    m_indexedNames = BarList(text);
    m_indexedNameFamilies = families;
}

ClassifiedWord Vocabulary::classify(QStringView word) const
{
    const QString text = trimmedSpaces(word).toString();
    if (text.isEmpty() || isNumeric(text))
        return {WordClass::Other, text};
    const QString upper = text.toUpper();
    if (KeywordList().contains(text))
        return {WordClass::Keyword, upper};

    struct Lookup
    {
        const HostReference<PointCollection> &points;
        WordClass wordClass;
    };
    // Network variable inputs are known to the word index only.
    const std::array lookups{Lookup{m_collections.constants, WordClass::Constant},
                             Lookup{m_collections.inputs, WordClass::Input},
                             Lookup{m_collections.outputs, WordClass::Output},
                             Lookup{m_collections.variables, WordClass::Variable}};
    for (const Lookup &lookup : lookups) {
        if (const std::optional<Point> found = HostPoints::find(lookup.points, text))
            return {lookup.wordClass, found->Name};
    }

    if (FanInWordList().contains(text) || m_indexedNames.contains(text))
        return {WordClass::FanIn, upper};
    // Time words keep the letter case they were typed in.
    if (TimeWordList().contains(text))
        return {WordClass::TimeWord, text};
    return {WordClass::Other, text};
}

Colour Vocabulary::ClassifyWord(const QString &Word, QString &Shown,
                                const RichTextSettings &settings) const
{
    const ClassifiedWord word = classify(Word);
    Shown = word.shown;
    return styleOf(word.wordClass, settings).Colour;
}

bool Vocabulary::IsFunctionCall(const QString &Text) const
{
    const qsizetype bracket = Text.indexOf(u'(');
    if (bracket < 0)
        return false;
    const QStringView before = trimmedSpaces(QStringView(Text).first(bracket));
    return m_functionWords.contains(before.sliced(before.lastIndexOf(u' ') + 1));
}

} // namespace ORVTListview
