#pragma once

#include <QtCore/QObject>

class QWidget;

// Keys that are pressed while a component on Designer's form has the focus are Designer's,
// such as Ctrl+Z. In a preview they are the component's.
class DesignedKeys : public QObject
{
public:
    // Belongs to the component.
    explicit DesignedKeys(QWidget &component);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget &m_component;
};
