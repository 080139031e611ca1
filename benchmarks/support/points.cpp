#include "support/points.h"

#include "base/ThreadState.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/language/Vocabulary.h"

#include <array>

namespace ORVTListview::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype pointCount = 350;

const QStringList &places()
{
    static const QStringList all{u"Supply"_s, u"Return"_s, u"Mixed"_s,  u"Outdoor"_s,
                                 u"Room"_s,   u"Zone"_s,   u"Coil"_s,   u"Boiler"_s,
                                 u"Pump"_s,   u"Tower"_s,  u"Office"_s, u"Exhaust"_s};
    return all;
}

const QStringList &things()
{
    static const QStringList all{u"Temp"_s,   u"Humidity"_s, u"Pressure"_s, u"Flow"_s,
                                 u"Valve"_s,  u"Damper"_s,   u"Fan"_s,      u"Alarm"_s,
                                 u"Demand"_s, u"Limit"_s,    u"Mode"_s,     u"Setpoint"_s};
    return all;
}

// Of seven names two are variables, two are inputs, one is of each other class.
qint32 colourOfPoint(qsizetype index)
{
    static constexpr std::array<qint32, 7> cycle{VariableColour, InputColour,  ConstantColour,
                                                 VariableColour, OutputColour, InputColour,
                                                 NviColour};
    return cycle[static_cast<std::size_t>(index % 7)];
}

QStringList reservedWords()
{
    QStringList words = Vocabulary::KeywordList().words() + Vocabulary::TimeWordList().words() +
                        Vocabulary::FanInWordList().words() +
                        Vocabulary().FunctionWordList().words();
    for (int i = 1; i <= timerCount; ++i)
        words.append(timerName(i));
    return words;
}

} // namespace

QString pointName(qsizetype index)
{
    const qsizetype place = index % places().size();
    const qsizetype thing = index / places().size() % things().size();
    const qsizetype number = index / (places().size() * things().size()) + 1;
    return places()[place] + things()[thing] + QString::number(number);
}

QString timerName(int number)
{
    return u"Tmr"_s + QString::number(number).rightJustified(2, u'0');
}

Points::Points()
{
    const auto addAll = [](PointList &list, qint32 colour) {
        for (const QString &name : wordsOf(colour))
            list.Add(name);
    };
    addAll(variables, VariableColour);
    addAll(constants, ConstantColour);
    addAll(inputs, InputColour);
    addAll(outputs, OutputColour);
    addAll(nvis, NviColour);
    timers.Add(u"Tmr"_s, u"00"_s, 1, timerCount);
}

void Points::teachThread()
{
    auto &vocabulary = threadPart<Vocabulary>();
    vocabulary.setCollections({&variables, &constants, &inputs, &outputs, &nvis});
    vocabulary.setIndexedNames(&timers);
    refillThreadWordList();
}

QStringList wordsOf(qint32 colourIndex)
{
    if (colourIndex == ReservedWordColour)
        return reservedWords();
    QStringList names;
    for (qsizetype i = 0; i < pointCount; ++i) {
        if (colourOfPoint(i) == colourIndex)
            names.append(pointName(i));
    }
    return names;
}

} // namespace ORVTListview::bench
