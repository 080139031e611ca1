#pragma once

#include <QtWidgets/QAccessibleWidget>

namespace ORVTListview {

// What assistive programs are told of a margin.
class MarginAccess : public QAccessibleWidget
{
public:
    // Once is enough; more do no harm.
    static void install();

    explicit MarginAccess(QWidget &margin);

    QString text(QAccessible::Text kind) const override;
};

} // namespace ORVTListview
