#pragma once

#include "grid/rules/ColumnLayoutText.h"

#include <QtCore/QHash>
#include <QtWidgets/QDialog>

class QLineEdit;
class QPushButton;
class QTableWidget;
class QTableWidgetItem;

namespace ORVTListview {
class ORVListView;
}

// The columns of a table's type: which are shown, how wide, and in which order.
class ColumnsDialog : public QDialog
{
    Q_OBJECT

public:
    ColumnsDialog(const ORVTListview::ORVListView &list, QWidget *parent);

    // For the table's columnLayout; empty for the columns as the type brings them.
    QString layoutText() const;

private:
    void readColumns(const ORVTListview::ORVListView &list);
    QWidget *makeTable();
    void showColumns(int current);
    void takeCell(const QTableWidgetItem &cell);
    void move(int by);
    void restore();
    void showState();

    QList<ORVTListview::ColumnPlace> m_ready; // as the type brings them
    QList<ORVTListview::ColumnPlace> m_columns;
    QHash<QString, QString> m_titles; // by key
    QTableWidget *m_table;
    QLineEdit *m_kept;
    QPushButton *m_up;
    QPushButton *m_down;
    QPushButton *m_restore;
    QPushButton *m_ok = nullptr;
};
