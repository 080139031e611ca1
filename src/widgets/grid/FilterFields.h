#pragma once

#include <QtCore/QEvent>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>

class QLabel;
class QLineEdit;
class QSize;
class QTableView;

namespace ORVTListview {

class CellTable;
class GridOrder;

// The fields in a grid's header by which users choose the rows that they see: one over the
// columns, or one under the header of each. The field that was used last, or where that is
// too narrow another one, tells how many rows there are. Esc empties a field, Enter and Down go to
// the rows.
class FilterFields final : public QObject
{
public:
    enum class Where { Nowhere, Above, InColumns };

    struct Tools
    {
        QTableView &view;
        CellTable &table;
        GridOrder &order;
    };

    explicit FilterFields(const Tools &tools);
    ~FilterFields() override;

    Where where() const { return m_where; }
    void setWhere(Where where);

    // Filters, headers or rows are others.
    void refresh();

    // Columns are elsewhere.
    void place();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Field
    {
        QPointer<QLineEdit> line; // a child of the header
        int column = 0;
        bool isWaiting = false; // what was typed is not looked at yet
    };

    bool isThere(const Field &field) const;
    void makeSoon();
    void refreshSoon();
    void fitRoom();
    void scrollTo(const Field &field);
    void make();
    QLineEdit *makeField();
    QLineEdit *fieldForCount(const QSize &count) const;
    void useSoon(const QLineEdit *line);
    void use(const QLineEdit *line);
    void tellCount();
    bool act(QLineEdit &line, int key);
    Field *fieldOf(const QObject *line);

    Tools m_tools;
    Where m_where = Where::Nowhere;
    bool m_isStale = false;   // other columns than the fields
    bool m_isWaiting = false; // to be refreshed
    int m_room = 0;
    QList<Field> m_fields;
    QPointer<QLineEdit> m_used;
    QPointer<QLabel> m_count; // in one of them, or a child of the header
};

} // namespace ORVTListview
