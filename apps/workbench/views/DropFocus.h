#pragma once

#include <QtCore/QObject>

namespace ORVTListview {

class ORVListView;
class Workplace;

// Whoever drops a name from elsewhere into a program goes on there.
class DropFocus : public QObject
{
    Q_OBJECT

public:
    // Belongs to the program; the workplace has the program.
    DropFocus(ORVListView &program, Workplace &workplace);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void enter(int revision);

    ORVListView &m_program;
    Workplace &m_workplace;
};

} // namespace ORVTListview
