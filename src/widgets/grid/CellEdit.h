#pragma once

#include "widgets/grid/CellWriter.h"

#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>
#include <QtCore/QQueue>

class QInputMethodEvent;
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

    // Begins to edit as typing does, with what an input method tells.
    bool compose(const QModelIndex &cell, QInputMethodEvent &event);

    // Whether the text that an editor is closed with is that of a cell.
    bool isOpenAt(const QModelIndex &cell) const { return m_field && m_cell == cell; }

    // Enters what is in an open editor, that of a label too.
    void finish();

    // The editor is being closed while this is called.
    void enterSoon(const QString &text);

    // The view's editor, whichever it was, is gone.
    void closed();

    // Enters texts, and tells and shows what keeps them from being taken. False then, when a
    // host has destroyed the list, and while it is being asked: then they are entered
    // afterwards.
    bool enter(QList<CellEntry> entries);
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

    // What could not be taken, and no editor shows.
    struct Kept
    {
        ListItem *item;
        int column;
        QString text;
        QString reason;
    };

    void leaveHidden();
    QWidget *labelField() const;
    QWidget *makeField(QWidget *parent, const QModelIndex &cell) const;
    void fill(const std::optional<QString> &typed);
    void take(const Entered &entered);
    void takeFor(const Entered &entered, const QList<CellEntry> &entries);
    bool waits(const std::function<void()> &act);
    void goOnSoon();
    void goOn();
    std::optional<QList<CellRefusal>> asked(QList<CellEntry> entries);
    void show(const QList<CellRefusal> &refusals);
    QString sentence(const QList<CellRefusal> &refusals, const ListItem *item, int column) const;
    void correct(const Entered &entered, const QList<CellRefusal> &refusals);
    void keepUnseen(const Entered &entered, const QList<CellRefusal> &refusals);
    void openAgain(const Kept &kept);
    bool isKept(const ListItem *item, int column) const;
    void makeCurrent(const QModelIndex &cell);

    Tools m_tools;
    Pick m_pick;
    TellRefusals m_tellRefusals;
    QPersistentModelIndex m_cell;
    QPointer<QWidget> m_field;
    QQueue<std::function<void()>> m_waiting; // until the host has answered
    std::optional<Kept> m_kept;
    Then m_then = Then::Stay;
    bool m_isOpening = false;
};

} // namespace ORVTListview
