#pragma once

#include <QtWidgets/QProxyStyle>

namespace ORVTListview {

// The toolkit's style that draws with the palette, which frames boxes and fields darker than
// the window: on a dark ground boxes without a tick, and empty fields, are not seen.
class DarkStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    DarkStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    // Those that are black otherwise: of what a tool bar has no room for, and of closing.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
};

} // namespace ORVTListview
