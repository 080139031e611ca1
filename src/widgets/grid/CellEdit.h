#pragma once

#include "widgets/grid/CellWriter.h"

#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>

class QTableView;
class QWidget;

namespace ORVTListview {

class CellNote;
class GridSelection;
class LabelEdit;
class ReportDelegate;

// The editor of one cell: how it opens, what its keys do, and what becomes of the text
// that it is closed with.
class CellEdit final : public QObject
{
public:
    // Runs what may bring the user to another row.
    using Pick = std::function<void(const std::function<void()> &)>;

    using TellRefusals = std::function<void(const QList<CellRefusal> &)>;

    enum class Then { Stay, Up, Down, Left, Right, Fill };

    struct Tools
    {
        QTableView &view;
        CellTable &table;
        GridRules &rules;
        CellWriter &writer;
        LabelEdit &labels;
        ReportDelegate &delegate;
        CellNote &note;
        const GridSelection &selection;
    };

    explicit CellEdit(const Tools &tools);
    ~CellEdit() override;

    void setPick(const Pick &pick) { m_pick = pick; }
    void setRefusal(const TellRefusals &tell) { m_tellRefusals = tell; }

    // With what the cell holds, or with what was typed. False when users cannot edit it.
    bool open(const QModelIndex &cell, const std::optional<QString> &typed = std::nullopt);

    // Also makes the cell the current one.
    bool openFor(const ListItem *item, int column);

    // Whether the text that an editor is closed with is that of a cell.
    bool isOpenAt(const QModelIndex &cell) const { return m_field && m_cell == cell; }

    // The editor is being closed while this is called.
    void enterSoon(const QString &text);

    // The view's editor, whichever it was, is gone.
    void closed() { m_field = nullptr; }

    // Enters texts, and tells and shows what keeps them from being taken. False then, and
    // when a host has destroyed the list.
    bool enter(const QList<CellEntry> &entries);
    void refuse(const QList<CellRefusal> &refusals);

    // To the next cell that is shown; false at the edge.
    bool go(Then direction);

    // Invalid at the edge.
    QModelIndex neighbour(const QModelIndex &from, Then direction) const;

    // A text for each of the chosen cells.
    QList<CellEntry> forChosen(const QString &text) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Entered
    {
        ListItem *item;
        int column;
        QString text;
        Then then;
    };

    QWidget *makeField(QWidget *parent, const QModelIndex &cell) const;
    void fill(const std::optional<QString> &typed);
    void take(const Entered &entered);
    std::optional<QList<CellRefusal>> asked(const QList<CellEntry> &entries);
    void show(const QList<CellRefusal> &refusals);
    QString sentence(const QList<CellRefusal> &refusals) const;
    void correct(const Entered &entered, const QString &reason);
    void makeCurrent(const QModelIndex &cell);

    Tools m_tools;
    Pick m_pick;
    TellRefusals m_tellRefusals;
    QPersistentModelIndex m_cell;
    QPointer<QWidget> m_field;
    Then m_then = Then::Stay;
    bool m_isOpening = false;
};

} // namespace ORVTListview
