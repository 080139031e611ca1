#include "ColumnsDialog.h"

#include "TwipsDelegate.h"

#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ORVListView.h>

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

using namespace ORVTListview;

namespace {

enum Place { ColumnCell, WidthCell };

bool isOf(const QList<ColumnPlace> &columns, const QString &key)
{
    return std::any_of(columns.cbegin(), columns.cend(),
                       [&](const ColumnPlace &column) { return column.key == key; });
}

} // namespace

ColumnsDialog::ColumnsDialog(const ORVListView &list, QWidget *parent)
    : QDialog(parent)
    , m_table(new QTableWidget(this))
    , m_kept(new QLineEdit(this))
    , m_up(new QPushButton(tr("Move &Up"), this))
    , m_down(new QPushButton(tr("Move &Down"), this))
    , m_restore(new QPushButton(tr("&Ready Columns"), this))
{
    setWindowTitle(tr("Columns of “%1”").arg(list.Caption()));
    readColumns(list);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_kept->setReadOnly(true);
    auto *kept = new QFormLayout;
    kept->addRow(tr("&Kept in the form:"), m_kept);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(makeTable(), 1);
    layout->addLayout(kept);
    layout->addWidget(buttons);
    showColumns(0);
    const int rows = std::min(10, m_table->rowCount()) + 1; // with the header
    m_table->setMinimumHeight(rows * m_table->verticalHeader()->defaultSectionSize());
    resize(fontMetrics().averageCharWidth() * 75, sizeHint().height());
}

QString ColumnsDialog::layoutText() const
{
    return m_columns == m_ready ? QString() : columnLayoutText(m_columns);
}

void ColumnsDialog::readColumns(const ORVListView &list)
{
    const ColumnHeaders &headers = *list.ColumnHerders();
    for (qint32 i = 1; i <= headers.Count(); ++i) {
        const ColumnHeader &header = *headers.Item(i);
        m_titles.insert(header.Key(), header.Text());
        m_ready.append({header.Key(), static_cast<int>(ColumnHeaders::defaultWidth), false});
    }
    for (const ColumnPlace &column : columnsOfLayoutText(list.columnLayout())) {
        if (m_titles.contains(column.key) && !isOf(m_columns, column.key))
            m_columns.append(column);
    }
    for (const ColumnPlace &column : std::as_const(m_ready)) {
        if (!isOf(m_columns, column.key))
            m_columns.append(column);
    }
}

QWidget *ColumnsDialog::makeTable()
{
    auto *part = new QWidget(this);
    auto *layout = new QHBoxLayout(part);
    layout->setContentsMargins({});
    layout->addWidget(m_table, 1);
    auto *beside = new QVBoxLayout;
    layout->addLayout(beside);
    for (QPushButton *button : {m_up, m_down, m_restore}) {
        button->setAutoDefault(false);
        beside->addWidget(button);
    }
    beside->addStretch();
    m_table->setColumnCount(2);
    m_table->setHorizontalHeaderLabels({tr("Column"), tr("Width in twips")});
    m_table->setAccessibleName(tr("Columns"));
    m_table->horizontalHeader()->setSectionResizeMode(ColumnCell, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(WidthCell, QHeaderView::ResizeToContents);
    m_table->verticalHeader()->hide();
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setItemDelegateForColumn(WidthCell, new TwipsDelegate(this));
    connect(m_table, &QTableWidget::itemChanged, this,
            [this](const QTableWidgetItem *cell) { takeCell(*cell); });
    connect(m_table, &QTableWidget::currentCellChanged, this, &ColumnsDialog::showState);
    connect(m_up, &QPushButton::clicked, this, [this] { move(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { move(1); });
    connect(m_restore, &QPushButton::clicked, this, &ColumnsDialog::restore);
    return part;
}

void ColumnsDialog::showColumns(int current)
{
    const QSignalBlocker quiet(m_table);
    m_table->setRowCount(static_cast<int>(m_columns.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const ColumnPlace &column = m_columns.at(row);
        auto *shown = new QTableWidgetItem(m_titles.value(column.key));
        shown->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        shown->setCheckState(column.isHidden ? Qt::Unchecked : Qt::Checked);
        auto *width = new QTableWidgetItem;
        width->setData(Qt::EditRole, column.width);
        m_table->setItem(row, ColumnCell, shown);
        m_table->setItem(row, WidthCell, width);
    }
    m_table->setCurrentCell(current, ColumnCell);
    showState();
}

void ColumnsDialog::takeCell(const QTableWidgetItem &cell)
{
    ColumnPlace &column = m_columns[cell.row()];
    if (cell.column() == ColumnCell)
        column.isHidden = cell.checkState() != Qt::Checked;
    else
        column.width = cell.data(Qt::EditRole).toInt();
    showState();
}

void ColumnsDialog::move(int by)
{
    const int row = m_table->currentRow();
    m_columns.move(row, row + by);
    showColumns(row + by);
}

void ColumnsDialog::restore()
{
    m_columns = m_ready;
    showColumns(0);
}

// A table without a column that is seen has nothing by which to get one back.
void ColumnsDialog::showState()
{
    const int row = m_table->currentRow();
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row + 1 < m_table->rowCount());
    m_restore->setEnabled(m_columns != m_ready);
    m_ok->setEnabled(std::any_of(m_columns.cbegin(), m_columns.cend(),
                                 [](const ColumnPlace &column) { return !column.isHidden; }));
    const QString text = layoutText();
    m_kept->setText(text.isEmpty() ? tr("nothing: the columns are those of the type") : text);
    m_kept->setCursorPosition(0);
}
