#pragma once

#include <QtWidgets/QDialog>

class QLineEdit;
class QMenuBar;
class QTreeWidget;

namespace ORVTListview {

// Every command of a menu bar with its keys, as the menus have them now, those of the views, and
// a field that finds some by any part of command or key.
class KeyList : public QDialog
{
    Q_OBJECT

public:
    KeyList(const QMenuBar &menus, QWidget *parent);

private:
    void showMatching(const QString &part);

    QLineEdit *m_part;
    QTreeWidget *m_keys;
};

} // namespace ORVTListview
