#include "project/ProjectColumns.h"

#include <QtCore/QLocale>

#include <algorithm>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;
using enum CellKind;

struct Layout
{
    LwType type;
    QString member;
    QList<ProjectColumn> columns;
};

const QList<Layout> &layouts()
{
    // clang-format off
    static const QList<Layout> table = {
        {dsVariable, u"variables"_s, {
            {u"Label"_s, u"name"_s, Name},
            {u"Mode"_s, u"mode"_s, Text},
            {u"Value"_s, u"value"_s, Value},
            {u"Units"_s, u"units"_s, Text},
            {u"Description"_s, u"description"_s, Text}}},
        {dsConst, u"constants"_s, {
            {u"Label"_s, u"name"_s, Name},
            {u"Value"_s, u"value"_s, Value},
            {u"Units"_s, u"units"_s, Text},
            {u"Description"_s, u"description"_s, Text}}},
        {dsInput, u"inputs"_s, {
            {u"Label"_s, u"name"_s, Name},
            {u"Mode"_s, u"mode"_s, Text},
            {u"Value"_s, u"value"_s, Value},
            {u"Units"_s, u"units"_s, Text},
            {u"Description"_s, u"description"_s, Text},
            {u"Commissioned"_s, u"commissioned"_s, YesNo}}},
        {dsOutput, u"outputs"_s, {
            {u"Label"_s, u"name"_s, Name},
            {u"Mode"_s, u"mode"_s, Text},
            {u"Value"_s, u"value"_s, Value},
            {u"Units"_s, u"units"_s, Text},
            {u"Description"_s, u"description"_s, Text},
            {u"Commissioned"_s, u"commissioned"_s, YesNo},
            {u"Hw Override Mode"_s, u"hwOverrideMode"_s, Text},
            {u"Hw Override Value"_s, u"hwOverrideValue"_s, Value}}},
        {dsController, u"controllers"_s, {
            {u"Mode"_s, u"mode"_s, Text},
            {u"Value"_s, u"value"_s, Value},
            {u"Input"_s, u"input"_s, Text},
            {u"Setpoint"_s, u"setpoint"_s, Value},
            {u"Proportional Band"_s, u"proportionalBand"_s, Number},
            {u"Integral Gain"_s, u"integralGain"_s, Number},
            {u"Integral Time"_s, u"integralTime"_s, Number},
            {u"Derivative Gain"_s, u"derivativeGain"_s, Number},
            {u"Derivative Time"_s, u"derivativeTime"_s, Number},
            {u"Dead Band"_s, u"deadBand"_s, Number},
            {u"Bias"_s, u"bias"_s, Number},
            {u"Action"_s, u"action"_s, Text},
            {u"Divider"_s, u"divider"_s, Number}}},
        {dsLog, u"logs"_s, {
            {u"Data"_s, u"data"_s, Text},
            {u"Differential"_s, u"differential"_s, Number},
            {u"Time"_s, u"time"_s, Text},
            {u"Mode"_s, u"mode"_s, Text},
            {u"Format"_s, u"format"_s, Text},
            {u"Unit"_s, u"unit"_s, Text},
            {u"Description"_s, u"description"_s, Text}}},
        {dsTimer, u"timers"_s, {
            {u"Data"_s, u"data"_s, Text},
            {u"Type"_s, u"type"_s, Text},
            {u"Value"_s, u"value"_s, Value}}},
        {dsOs, u"optimumStarts"_s, {
            {u"Mode"_s, u"mode"_s, Text},
            {u"Value"_s, u"value"_s, Value},
            {u"Target Temperature"_s, u"targetTemperature"_s, Text},
            {u"Target Setpoint"_s, u"targetSetpoint"_s, Value},
            {u"Outdoor Temperature"_s, u"outdoorTemperature"_s, Text},
            {u"Schedule"_s, u"schedule"_s, Text},
            {u"Max Starting Time"_s, u"maxStartingTime"_s, Text},
            {u"Description"_s, u"description"_s, Text}}},
        {dsNvi, u"networkInputs"_s, {
            {u"Label"_s, u"name"_s, Name},
            {u"Value"_s, u"value"_s, Value},
            {u"Format Name"_s, u"formatName"_s, Text},
            {u"Persistent"_s, u"persistent"_s, YesNo},
            {u"Description"_s, u"description"_s, Text}}},
        {dsNvo, u"networkOutputs"_s, {
            {u"Name"_s, u"name"_s, Name},
            {u"Data Source"_s, u"dataSource"_s, Text},
            {u"Value"_s, u"value"_s, Value},
            {u"Format Name"_s, u"formatName"_s, Text},
            {u"Description"_s, u"description"_s, Text}}},
        {dsInputParam, u"inputParameters"_s, {
            {u"Type"_s, u"type"_s, Text},
            {u"Scale Min/Rising Edge"_s, u"scaleMin"_s, Value},
            {u"Scale Max/Falling Edge"_s, u"scaleMax"_s, Value},
            {u"Input Min"_s, u"inputMin"_s, Number},
            {u"Input Max"_s, u"inputMax"_s, Number},
            {u"Correction"_s, u"correction"_s, Number},
            {u"Filter"_s, u"filter"_s, Number},
            {u"Override"_s, u"override"_s, YesNo},
            {u"Units"_s, u"units"_s, Text}}},
        {dsOutputParam, u"outputParameters"_s, {
            {u"Type"_s, u"type"_s, Text},
            {u"PWM Period"_s, u"pwmPeriod"_s, Number}}},
    };
    // clang-format on
    return table;
}

const Layout *layoutOf(LwType type)
{
    const auto found = std::find_if(layouts().cbegin(), layouts().cend(),
                                    [type](const Layout &layout) { return layout.type == type; });
    return found == layouts().cend() ? nullptr : &*found;
}

} // namespace

const QList<ProjectColumn> &projectColumns(LwType type)
{
    static const QList<ProjectColumn> none;
    const Layout *layout = layoutOf(type);
    return layout ? layout->columns : none;
}

qsizetype nameColumn(LwType type)
{
    const QList<ProjectColumn> &columns = projectColumns(type);
    const auto found =
        std::find_if(columns.cbegin(), columns.cend(),
                     [](const ProjectColumn &column) { return column.kind == CellKind::Name; });
    return found == columns.cend() ? -1 : found - columns.cbegin();
}

bool isPointName(const QString &name)
{
    return !name.trimmed().isEmpty() && name == name.trimmed() &&
           std::all_of(name.cbegin(), name.cend(),
                       [](QChar c) { return c.category() != QChar::Other_Control; });
}

QString projectMember(LwType type)
{
    const Layout *layout = layoutOf(type);
    return layout ? layout->member : QString();
}

const QList<LwType> &projectTypes()
{
    static const QList<LwType> types = [] {
        QList<LwType> result;
        for (const Layout &layout : layouts())
            result.append(layout.type);
        return result;
    }();
    return types;
}

bool isVocabularyType(LwType type)
{
    return type == dsVariable || type == dsConst || type == dsInput || type == dsOutput ||
           type == dsNvi;
}

QString cellText(const QVariant &cell)
{
    if (cell.typeId() == QMetaType::Bool)
        return cell.toBool() ? u"Yes"_s : u"No"_s;
    if (cell.typeId() == QMetaType::Double)
        return QString::number(cell.toDouble(), 'f', QLocale::FloatingPointShortest);
    return cell.toString();
}

} // namespace ORVTListview
