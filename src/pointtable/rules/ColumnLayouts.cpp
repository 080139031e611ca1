#include "pointtable/rules/ColumnLayouts.h"

#include "shared/texts/TextTable.h"

#include <QtCore/QStringView>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct ColumnLayout
{
    LwType type = dsInput;
    qint16 numberItems = 0;
    QStringView columns;
};

// clang-format off
constexpr ColumnLayout layouts[] = {
    {dsVariable,    50, u"#|Label|Mode|Value|Units|Description"},
    {dsConst,       50, u"#|Label|Value|Units|Description"},
    {dsInput,       12, u"#|Label|Mode|Value|Units|Description|Commissioned"},
    {dsOutput,      12, u"#|Label|Mode|Value|Units|Description|Commissioned"},
    {dsController,  10, u"#|Mode|Value|Input|Setpoint|Proportional Band|Integral Gain|Integral Time"
                         "|Derivative Gain|Derivative Time|Dead Band|Bias|Action|Divider"},
    {dsLog,         24, u"#|Data|Differential|Time|Mode|Format|Unit|Description"},
    {dsTimer,       15, u"#|Data|Type|Value"},
    {dsOs,           4, u"#|Mode|Value|Target Temperature|Target Setpoint|Outdoor Temperature"
                         "|Schedule|Max Starting Time|Description"},
    {dsNvi,         12, u"#|Label|Value|Format Name|Persistent|Description"},
    {dsNvo,         18, u"#|Name|Data Source|Value|Format Name|Description"},
    {dsInputParam,  12, u"#|Type|Scale Min/Rising Edge|Scale Max/Falling Edge|Input Min|Input Max"
                         "|Correction|Filter|Override|Units"},
    {dsOutputParam, 12, u"#|Type|PWM Period"},
};
constexpr QStringView overrideColumns = u"|Hw Override Mode|Hw Override Value";
// clang-format on

const ColumnLayout *layoutOf(qint32 type)
{
    const auto *found = std::find_if(std::begin(layouts), std::end(layouts),
                                     [type](const auto &layout) { return layout.type == type; });
    return found == std::end(layouts) ? nullptr : found;
}

} // namespace

QStringList columnKeys(qint32 type, bool isHOASupported)
{
    const ColumnLayout *layout = layoutOf(type);
    if (!layout)
        return {};
    QString columns = layout->columns.toString();
    if (type == dsOutput && isHOASupported)
        columns += overrideColumns;
    return columns.split(u'|');
}

QString columnText(const QString &key)
{
    return key == u"#" ? key : Localise(key);
}

qint16 defaultNumberItems(qint32 type)
{
    const ColumnLayout *layout = layoutOf(type);
    return layout ? layout->numberItems : qint16{0};
}

QString rowKey(const QString &typeKey, int number)
{
    return QString(typeKey).remove(u' ') + QString::number(number);
}

QString rowText(int number)
{
    return u"%1"_s.arg(number, 2, 10, QChar(u'0'));
}

} // namespace ORVTListview
