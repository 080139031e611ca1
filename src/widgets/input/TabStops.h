#pragma once

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

namespace ORVTListview {

// Takes all controls of a form out of the tab order for a while, so that Tab can
// be typed. Controls may come and go meanwhile.
class TabStops
{
public:
    TabStops() = default;
    ~TabStops() { giveBack(); }
    Q_DISABLE_COPY_MOVE(TabStops) // gives back once

    // Removes Qt::TabFocus from the form's controls and sets their property
    // "TabStop" to false. Null does nothing.
    void takeFrom(QWidget *form);

    // Gives each control that still lives what it had.
    void giveBack();

private:
    struct Control
    {
        QPointer<QWidget> widget;
        Qt::FocusPolicy policy = Qt::NoFocus;
        QVariant tabStop; // invalid: it had no such property
    };

    QList<Control> m_controls;
};

} // namespace ORVTListview
