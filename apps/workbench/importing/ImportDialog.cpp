#include "workbench/importing/ImportDialog.h"

#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"
#include "workbench/PointTables.h"
#include "workbench/RoomyRows.h"
#include "workbench/importing/ImportModel.h"

#include <QtGui/QScreen>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ImportDialog::ImportDialog(const Project &project, LwType type, const QByteArray &bytes,
                           const QString &fileName, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_type(type)
    , m_bytes(bytes)
    , m_encoding(new QComboBox(this))
    , m_separator(new QComboBox(this))
    , m_hasHeads(new QCheckBox(tr("The first line has the &heads"), this))
    , m_model(new ImportModel(project, type, this))
    , m_rows(new QTreeView(this))
    , m_summary(new QLabel(this))
{
    setWindowTitle(tr("Import Points"));
    auto *layout = new QVBoxLayout(this);
    auto *label =
        new QLabel(tr("%1 into the table %2:").arg(fileName, Localise(displayName(type))), this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    layout->addWidget(label);
    layout->addWidget(makeForm());
    layout->addWidget(makeColumns());
    m_rows->setModel(m_model);
    m_rows->setItemDelegate(new RoomyRows(m_rows));
    m_rows->setRootIsDecorated(false);
    m_rows->setUniformRowHeights(true);
    m_rows->setAllColumnsShowFocus(true);
    m_rows->setAccessibleName(windowTitle());
    layout->addWidget(m_rows, 1);
    m_summary->setWordWrap(true);
    layout->addWidget(m_summary);
    layout->addWidget(makeButtons());
    connect(m_model, &ImportModel::ticksChanged, this, &ImportDialog::summarise);
    decode();
    resize(QSize(860, 620).boundedTo(screen()->availableSize() * 9 / 10));
    m_rows->setFocus();
}

QWidget *ImportDialog::makeForm()
{
    auto *part = new QWidget(this);
    auto *form = new QFormLayout(part);
    form->setContentsMargins({});
    m_encoding->addItems({u"UTF-8"_s, u"UTF-16 LE"_s, u"UTF-16 BE"_s, u"Windows-1252"_s});
    m_encoding->setCurrentIndex(static_cast<int>(guessedEncoding(m_bytes)));
    m_separator->addItem(tr("Comma"), QChar(u','));
    m_separator->addItem(tr("Semicolon"), QChar(u';'));
    m_separator->addItem(tr("Tab"), QChar(u'\t'));
    m_hasHeads->setChecked(true);
    form->addRow(tr("&Encoding:"), m_encoding);
    form->addRow(tr("&Separator:"), m_separator);
    form->addRow(m_hasHeads);
    connect(m_encoding, &QComboBox::activated, this, &ImportDialog::decode);
    connect(m_separator, &QComboBox::activated, this, &ImportDialog::divide);
    connect(m_hasHeads, &QCheckBox::clicked, this, &ImportDialog::guessColumns);
    return part;
}

// For each column of the table, which one of the text it is.
QWidget *ImportDialog::makeColumns()
{
    auto *part = new QGroupBox(tr("Columns"), this);
    auto *grid = new QGridLayout(part);
    addColumn(*grid, u"#"_s, 0);
    const QStringList titles = columnTitles(m_type);
    for (qsizetype i = 0; i < titles.size(); ++i)
        addColumn(*grid, titles.at(i), i + 1);
    return part;
}

void ImportDialog::addColumn(QGridLayout &grid, const QString &title, qsizetype place)
{
    constexpr qsizetype inARow = 4;
    auto *source = new QComboBox(this);
    auto *label = new QLabel(title, this);
    source->setAccessibleName(title);
    source->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    source->setMinimumContentsLength(10);
    const auto row = static_cast<int>(place / inARow) * 2;
    const auto column = static_cast<int>(place % inARow);
    grid.addWidget(label, row, column);
    grid.addWidget(source, row + 1, column);
    m_sources.append(source);
    connect(source, &QComboBox::activated, this, &ImportDialog::preview);
}

QWidget *ImportDialog::makeButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_import = buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    m_import->setDefault(true);
    auto *all = buttons->addButton(tr("&All"), QDialogButtonBox::ActionRole);
    auto *none = buttons->addButton(tr("&None"), QDialogButtonBox::ActionRole);
    connect(all, &QPushButton::clicked, m_model, [this] { m_model->setAll(true); });
    connect(none, &QPushButton::clicked, m_model, [this] { m_model->setAll(false); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

// Each step guesses what the next one needs.
void ImportDialog::decode()
{
    m_text = decodedText(m_bytes, static_cast<TextEncoding>(m_encoding->currentIndex()));
    m_separator->setCurrentIndex(std::max(0, m_separator->findData(guessedSeparator(m_text))));
    divide();
}

void ImportDialog::divide()
{
    m_cells = separatedCells(m_text, m_separator->currentData().toChar());
    guessColumns();
}

void ImportDialog::guessColumns()
{
    const QStringList first = m_cells.value(0);
    qsizetype widest = 0;
    for (const QStringList &row : std::as_const(m_cells))
        widest = std::max(widest, row.size());
    const ImportColumns guess = m_hasHeads->isChecked()
                                    ? columnsByNames(m_type, first, columnTitles(m_type))
                                    : columnsInOrder(m_type);
    for (qsizetype i = 0; i < m_sources.size(); ++i) {
        QComboBox &source = *m_sources.at(i);
        source.clear();
        source.addItem(tr("(none)"));
        for (qsizetype column = 0; column < widest; ++column) {
            const QString head = m_hasHeads->isChecked() ? first.value(column) : QString();
            source.addItem(head.isEmpty() ? tr("Column %1").arg(column + 1) : head);
        }
        const qsizetype guessed = i == 0 ? guess.number : guess.sources.at(i - 1);
        source.setCurrentIndex(guessed < widest ? static_cast<int>(guessed) + 1 : 0);
    }
    preview();
}

ImportColumns ImportDialog::columns() const
{
    ImportColumns columns{m_type, {}, m_sources.first()->currentIndex() - 1};
    for (qsizetype i = 1; i < m_sources.size(); ++i)
        columns.sources.append(m_sources.at(i)->currentIndex() - 1);
    return columns;
}

void ImportDialog::preview()
{
    const bool hasHeads = m_hasHeads->isChecked() && !m_cells.isEmpty();
    m_model->setRows(importedRows(m_project, hasHeads ? m_cells.sliced(1) : m_cells, columns(),
                                  {PointTables::tr("Yes"), PointTables::tr("No")}),
                     hasHeads ? 2 : 1);
    for (int column = 0; column < m_model->columnCount(); ++column)
        m_rows->resizeColumnToContents(column);
}

void ImportDialog::summarise()
{
    const auto counted = [this](auto kind) { return QString::number(m_model->count(kind)); };
    m_summary->setText(tr("Added: %1. Changed: %2. Left alone: %3. Not possible: %4. Ticked: %5.")
                           .arg(counted(ImportedRow::Added), counted(ImportedRow::Changed),
                                counted(ImportedRow::Same), counted(ImportedRow::Faulty),
                                QString::number(m_model->ticked())));
    m_import->setEnabled(m_model->ticked() > 0);
}

RowChanges ImportDialog::changes() const
{
    return importChanges(m_project, m_type, m_model->rows(), m_model->ticks());
}

} // namespace ORVTListview
