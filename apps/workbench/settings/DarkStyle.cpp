#include "workbench/settings/DarkStyle.h"

#include <QtGui/QColor>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace ORVTListview {
namespace {

constexpr QRgb frame = 0x8d9097; // three times as bright as windows, menus and lists
constexpr QRgb disabledFrame = 0x5a5d63;

} // namespace

DarkStyle::DarkStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
}

void DarkStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                              QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    if (!isRound && element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck)
        return;
    const bool isEnabled = option->state.testFlag(State_Enabled);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, isRound);
    painter->setPen(QColor(isEnabled ? frame : disabledFrame));
    painter->setBrush(Qt::NoBrush);
    const QRectF edge = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (isRound)
        painter->drawEllipse(edge);
    else
        painter->drawRect(edge);
    painter->restore();
}

} // namespace ORVTListview
