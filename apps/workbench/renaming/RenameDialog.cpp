#include "workbench/renaming/RenameDialog.h"

#include "project/ProjectColumns.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"
#include "workbench/RoomyRows.h"

#include <QtGui/QScreen>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

QString placeName(const PointUse &use, const ProgramList &programs)
{
    const auto program = std::ranges::find(programs, use.program, &ProjectProgram::id);
    if (program != programs.cend() && programs.size() > 1)
        return RenameDialog::tr("%1, line %2").arg(program->name, QString::number(use.line));
    if (use.line > 0)
        return RenameDialog::tr("Program, line %1").arg(use.line);
    return u"%1 %2, %3"_s.arg(Localise(displayName(use.type)), QString::number(use.row + 1),
                              Localise(projectColumns(use.type).at(use.column).key));
}

RenameDialog::RenameDialog(const Renamed &renamed, QWidget *parent)
    : QDialog(parent)
    , m_uses(renamed.uses)
    , m_places(new QTreeWidget(this))
{
    setWindowTitle(tr("Rename"));
    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel(
        tr("%1 becomes %2 in the places that have a tick:").arg(renamed.former, renamed.name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    layout->addWidget(label);
    m_places->setAccessibleName(label->text());
    m_places->setItemDelegate(new RoomyRows(m_places));
    m_places->setRootIsDecorated(false);
    m_places->setUniformRowHeights(true);
    m_places->setHeaderLabels({tr("Place"), tr("Contents")});
    for (const PointUse &use : m_uses) {
        auto *item =
            new QTreeWidgetItem(m_places, {placeName(use, renamed.programs), use.text.trimmed()});
        item->setCheckState(0, Qt::Checked);
    }
    m_places->resizeColumnToContents(0);
    layout->addWidget(m_places);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    auto *rename = buttons->addButton(tr("&Rename"), QDialogButtonBox::AcceptRole);
    rename->setDefault(true);
    auto *all = buttons->addButton(tr("&All"), QDialogButtonBox::ActionRole);
    auto *none = buttons->addButton(tr("&None"), QDialogButtonBox::ActionRole);
    connect(all, &QPushButton::clicked, this, [this] { setAll(Qt::Checked); });
    connect(none, &QPushButton::clicked, this, [this] { setAll(Qt::Unchecked); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(QSize(560, 360).boundedTo(screen()->availableSize() * 9 / 10));
    m_places->setFocus();
}

void RenameDialog::setAll(Qt::CheckState state)
{
    for (int i = 0; i < m_places->topLevelItemCount(); ++i)
        m_places->topLevelItem(i)->setCheckState(0, state);
}

QList<PointUse> RenameDialog::chosen() const
{
    QList<PointUse> uses;
    for (int i = 0; i < m_places->topLevelItemCount(); ++i) {
        if (m_places->topLevelItem(i)->checkState(0) == Qt::Checked)
            uses.append(m_uses.at(i));
    }
    return uses;
}

} // namespace ORVTListview
