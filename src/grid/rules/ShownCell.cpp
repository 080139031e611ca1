#include "grid/rules/ShownCell.h"

#include "grid/rules/NaturalOrder.h"
#include "shared/texts/TextTable.h"

namespace ORVTListview {

using namespace Qt::StringLiterals;

QString shownNumber(const QString &text, const QLocale &locale)
{
    const QStringView seen = QStringView(text).trimmed();
    const qsizetype end = seen.data() - text.data() + lengthOfNumber(seen);
    const qsizetype point = text.indexOf(u'.');
    if (point < 0 || point >= end)
        return text;
    QString shown = text;
    return shown.replace(point, 1, locale.decimalPoint());
}

QString stateWord(CellState state)
{
    switch (state) {
    case CellState::Changed:
        return Localise(u"Changed"_s);
    case CellState::Old:
        return Localise(u"Old"_s);
    case CellState::Manual:
        return Localise(u"By hand"_s);
    case CellState::Alarm:
        return Localise(u"Alarm"_s);
    case CellState::Plain:
        break;
    }
    return {};
}

QString spokenCell(const QString &text, CellState state)
{
    if (state == CellState::Plain)
        return text;
    return text.isEmpty() ? stateWord(state) : u"%1, %2"_s.arg(text, stateWord(state));
}

} // namespace ORVTListview
