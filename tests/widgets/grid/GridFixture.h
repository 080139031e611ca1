#pragma once

#include "widgets/list/ReportListFixture.h"
#include <ORVTListview/ListGrid.h>

#include <QtCore/QStringList>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

// A list of six columns whose cells users edit: number, text, number, one of a list, yes
// or no, name of a point. The texts of the first are "Text 1" and so on, all others are
// empty.
class ShownGrid : public ShownList
{
public:
    explicit ShownGrid(int rows = 5)
        : ShownList(rows, 6)
        , grid(list->grid())
    {
        using namespace ORVTListview;
        using namespace Qt::StringLiterals;
        grid->setTable(u"Points"_s);
        grid->setRules(
            u"Points"_s,
            {{u"Column2"_s, {.kind = CellRule::Text, .maxLength = 8}},
             {u"Column3"_s,
              {.kind = CellRule::Number, .minimum = 0, .maximum = 100, .decimals = 1}},
             {u"Column4"_s, {.kind = CellRule::Choice, .choices = {u"Auto"_s, u"Manual"_s}}},
             {u"Column5"_s, {.kind = CellRule::YesNo}},
             {u"Column6"_s, {.kind = CellRule::PointName}}});
        grid->setEditsCells(true);
        for (int column = 0; column < 6; ++column)
            list->setColumnWidth(column, 68);
        QObject::connect(grid, &ListGrid::cellEntering, grid,
                         [this](ListItem *item, qint16 column, QString &text, QString &refusal) {
                             log.append(u"ask %1 %2 %3"_s.arg(item->Index()).arg(column).arg(text));
                             if (answer)
                                 answer(text, refusal);
                         });
        QObject::connect(grid, &ListGrid::cellsChanged, grid,
                         [this](const QList<CellChange> &changes) {
                             for (const CellChange &change : changes)
                                 log.append(u"%1 %2 %3>%4"_s.arg(change.item->Index())
                                                .arg(change.column)
                                                .arg(change.former, change.text));
                             log.append(u"told"_s);
                         });
        QObject::connect(grid, &ListGrid::cellsRefused, grid,
                         [this](const QList<CellRefusal> &refusals) {
                             for (const CellRefusal &refusal : refusals)
                                 log.append(u"refused %1 %2 %3"_s.arg(refusal.item->Index())
                                                .arg(refusal.column)
                                                .arg(refusal.reason));
                         });
    }

    // From 1, and from 0.
    void goTo(int row, int column) const
    {
        const bool isRow = list->selectionBehavior() == QAbstractItemView::SelectRows;
        const QModelIndex index = list->model()->index(row - 1, column);
        list->setCurrentIndex(index);
        list->selectionModel()->select(index, isRow ? QItemSelectionModel::ClearAndSelect |
                                                          QItemSelectionModel::Rows
                                                    : QItemSelectionModel::ClearAndSelect);
    }
    QString current() const
    {
        const QModelIndex index = list->currentIndex();
        return QStringLiteral("%1 %2").arg(index.row() + 1).arg(index.column());
    }
    QString text(int row, int column) const
    {
        return list->model()->index(row - 1, column).data().toString();
    }
    void set(int row, int column, const QString &text) const
    {
        item(row)->setSubItem(column, text);
    }

    // One column from the top.
    QString texts(int column) const
    {
        QStringList texts;
        for (int row = 1; row <= list->model()->rowCount(); ++row)
            texts.append(text(row, column));
        return texts.join(u'|');
    }

    void type(const QString &keys) const
    {
        for (const QChar key : keys)
            QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, key, Qt::NoModifier);
    }

    // What is open in a cell.
    template <typename Field>
    Field *field() const
    {
        for (Field *each : list->viewport()->findChildren<Field *>()) {
            if (each->isVisible())
                return each;
        }
        return nullptr;
    }
    QString typed() const
    {
        const auto *line = field<QLineEdit>();
        return line ? line->text() : QStringLiteral("(closed)");
    }
    QString note() const
    {
        const auto *label = list->findChild<QLabel *>(QStringLiteral("CellNote"));
        return label && label->isVisible() ? label->text() : QString();
    }
    QString take() { return std::exchange(log, {}).join(QStringLiteral(", ")); }

    QPointer<ORVTListview::ListGrid> grid;
    QStringList log;
    std::function<void(QString &, QString &)> answer;
};
