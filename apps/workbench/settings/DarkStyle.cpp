#include "workbench/settings/DarkStyle.h"

#include <QtGui/QColor>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOption>

namespace ORVTListview {
namespace {

constexpr QRgb frame = 0x8d9097; // three times as bright as windows, menus and lists
constexpr QRgb disabledFrame = 0x5a5d63;
constexpr double corner = 2;

enum class Shape { Box, Field, Round };

QColor frameColour(const QStyleOption &option, Shape shape)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return disabledFrame;
    const bool isWrittenIn = shape == Shape::Field && option.state.testFlag(QStyle::State_HasFocus);
    return isWrittenIn ? option.palette.color(QPalette::Link) : QColor(frame);
}

void drawFrame(const QStyleOption &option, Shape shape, QPainter &painter)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, shape != Shape::Box);
    painter.setPen(frameColour(option, shape));
    painter.setBrush(Qt::NoBrush);
    const QRectF edge = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (shape == Shape::Round)
        painter.drawEllipse(edge);
    else if (shape == Shape::Field)
        painter.drawRoundedRect(edge, corner, corner);
    else
        painter.drawRect(edge);
    painter.restore();
}

bool hasFrame(const QStyleOptionComplex &option)
{
    if (const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(&option))
        return box->frame;
    const auto *box = qstyleoption_cast<const QStyleOptionSpinBox *>(&option);
    return box && box->frame;
}

} // namespace

DarkStyle::DarkStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
}

void DarkStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                              QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_IndicatorRadioButton)
        drawFrame(*option, Shape::Round, *painter);
    else if (element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck)
        drawFrame(*option, Shape::Box, *painter);
    else if (element == PE_FrameLineEdit)
        drawFrame(*option, Shape::Field, *painter);
}

QIcon DarkStyle::standardIcon(StandardPixmap icon, const QStyleOption *option,
                              const QWidget *widget) const
{
    QIcon given = QProxyStyle::standardIcon(icon, option, widget);
    if (icon != SP_ToolBarHorizontalExtensionButton && icon != SP_ToolBarVerticalExtensionButton &&
        icon != SP_DialogCloseButton)
        return given;
    const int side = pixelMetric(PM_SmallIconSize, option, widget);
    QPixmap picture = given.pixmap(QSize(side, side),
                                   widget ? widget->devicePixelRatio() : qApp->devicePixelRatio());
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), QColor(frame));
    painter.end();
    return picture;
}

void DarkStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                   QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (hasFrame(*option))
        drawFrame(*option, Shape::Field, *painter);
}

} // namespace ORVTListview
