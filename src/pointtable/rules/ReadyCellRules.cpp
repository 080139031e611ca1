#include "pointtable/rules/ReadyCellRules.h"

#include "pointtable/rules/ColumnLayouts.h"
#include <ORVTListview/Types.h>

#include <algorithm>
#include <array>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr int wholeNumbers = 0;
constexpr int fineNumbers = 3;

CellRule text(qint32 longest = 0)
{
    return {.kind = CellRule::Text, .maxLength = longest};
}

CellRule pointLabel()
{
    CellRule rule = text(32);
    rule.canBeEmpty = false;
    return rule;
}

CellRule pointName()
{
    return {.kind = CellRule::PointName};
}

CellRule yesNo()
{
    return {.kind = CellRule::YesNo};
}

// The words are those of controllers, which have no other language.
CellRule oneOf(const QStringList &words)
{
    return {.kind = CellRule::Choice, .choices = words};
}

CellRule number(int decimals = fineNumbers)
{
    return {.kind = CellRule::Number, .decimals = decimals};
}

CellRule notNegative(double maximum, const QString &unit = {}, int decimals = fineNumbers)
{
    CellRule rule = number(decimals);
    rule.minimum = 0;
    rule.maximum = maximum;
    rule.unit = unit;
    return rule;
}

// Of an analogue point or a digital one.
CellRule value()
{
    CellRule rule = number();
    rule.choices = QStringList{u"Off"_s, u"On"_s};
    return rule;
}

struct ReadyRule
{
    LwType type; // dsCode for all
    QStringView column;
    CellRule rule;
};

const QList<ReadyRule> &readyRules()
{
    constexpr double most = 1e6;
    // clang-format off
    static const QList<ReadyRule> rules = {
        {dsCode, u"Label", pointLabel()},
        {dsCode, u"Name", pointLabel()},
        {dsCode, u"Mode", oneOf({u"Auto"_s, u"Manual"_s})},
        {dsCode, u"Value", value()},
        {dsCode, u"Units", text(16)},
        {dsCode, u"Unit", text(16)},
        {dsCode, u"Description", text(255)},
        {dsCode, u"Commissioned", yesNo()},
        {dsCode, u"Hw Override Mode", oneOf({u"Auto"_s, u"Hand"_s, u"Off"_s})},
        {dsCode, u"Hw Override Value", value()},
        {dsCode, u"Format Name", text(32)},
        {dsCode, u"Persistent", yesNo()},
        {dsCode, u"Data Source", pointName()},
        {dsController, u"Input", pointName()},
        {dsController, u"Setpoint", text(32)}, // a name or a number
        {dsController, u"Proportional Band", notNegative(most)},
        {dsController, u"Integral Gain", notNegative(most)},
        {dsController, u"Integral Time", notNegative(most, u"s"_s)},
        {dsController, u"Derivative Gain", notNegative(most)},
        {dsController, u"Derivative Time", notNegative(most, u"s"_s)},
        {dsController, u"Dead Band", notNegative(most)},
        {dsController, u"Bias", number()},
        {dsController, u"Action", oneOf({u"Direct"_s, u"Reverse"_s})},
        {dsController, u"Divider", notNegative(most)},
        {dsLog, u"Data", pointName()},
        {dsLog, u"Differential", notNegative(most)},
        {dsLog, u"Time", text(16)},
        {dsLog, u"Mode", text(32)},
        {dsLog, u"Format", text(32)},
        {dsTimer, u"Data", pointName()},
        {dsTimer, u"Type", text(32)},
        {dsTimer, u"Value", text(32)}, // a time or a state
        {dsOs, u"Target Temperature", pointName()},
        {dsOs, u"Target Setpoint", text(32)},
        {dsOs, u"Outdoor Temperature", pointName()},
        {dsOs, u"Schedule", text(32)},
        {dsOs, u"Max Starting Time", text(16)},
        {dsInputParam, u"Type", text(32)},
        {dsInputParam, u"Scale Min/Rising Edge", text(32)},
        {dsInputParam, u"Scale Max/Falling Edge", text(32)},
        {dsInputParam, u"Input Min", number()},
        {dsInputParam, u"Input Max", number()},
        {dsInputParam, u"Correction", number()},
        {dsInputParam, u"Filter", notNegative(most)},
        {dsInputParam, u"Override", yesNo()},
        {dsOutputParam, u"Type", text(32)},
        {dsOutputParam, u"PWM Period", notNegative(3600, u"s"_s, wholeNumbers)},
    };
    // clang-format on
    return rules;
}

} // namespace

QHash<QString, CellRule> readyCellRules(qint32 type)
{
    const QStringList columns = columnKeys(type, true);
    QHash<QString, CellRule> rules;
    for (const ReadyRule &ready : readyRules()) { // the type's own come last
        const bool isMeant = ready.type == dsCode || ready.type == type;
        if (isMeant && columns.contains(ready.column))
            rules.insert(ready.column.toString(), ready.rule);
    }
    return rules;
}

} // namespace ORVTListview
