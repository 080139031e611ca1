#include "workbench/help/KeyList.h"

#include "workbench/ClearButton.h"
#include "workbench/RoomyRows.h"
#include "workbench/help/ViewKeys.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QAction>
#include <QtGui/QKeySequence>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace ORVTListview {
namespace {

// The text as the menu shows it, "&&" being a "&".
QString plain(QString text)
{
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    return text.replace(mark, QStringLiteral("\\1")).remove(u'…');
}

QString keysOf(const QAction &action)
{
    return QKeySequence::listToString(action.shortcuts(), QKeySequence::NativeText);
}

// The commands that have keys, those of submenus among those of their menu.
void append(QTreeWidgetItem &group, const QMenu &menu, const QString &before)
{
    for (const QAction *action : menu.actions()) {
        if (const auto *below = action->menu<QMenu *>())
            append(group, *below, plain(action->text()) + QStringLiteral(": "));
        else if (!action->shortcuts().isEmpty())
            new QTreeWidgetItem(&group, {before + plain(action->text()), keysOf(*action)});
    }
}

void appendMenus(QTreeWidget &keys, const QMenuBar &menus)
{
    for (const QAction *action : menus.actions()) {
        auto *group = new QTreeWidgetItem(&keys, {plain(action->text())});
        append(*group, *action->menu<QMenu *>(), {});
        group->setHidden(group->childCount() == 0);
    }
}

// What no menu has.
void appendViews(QTreeWidget &keys)
{
    for (const ViewKeys &each : keysOfViews()) {
        auto *group = new QTreeWidgetItem(&keys, {each.view});
        for (const ViewKeys::Command &command : each.commands)
            new QTreeWidgetItem(group, {command.text, command.keys});
    }
}

} // namespace

KeyList::KeyList(const QMenuBar &menus, QWidget *parent)
    : QDialog(parent)
    , m_part(new QLineEdit(this))
    , m_keys(new QTreeWidget(this))
{
    setWindowTitle(tr("Keys"));
    m_part->setPlaceholderText(tr("Command or key"));
    m_part->setAccessibleName(m_part->placeholderText());
    addClearButton(*m_part);
    m_keys->setItemDelegate(new RoomyRows(m_keys));
    m_keys->setHeaderLabels({tr("Command"), tr("Key")});
    m_keys->setAccessibleName(windowTitle());
    appendMenus(*m_keys, menus);
    appendViews(*m_keys);
    m_keys->expandAll();
    for (const int column : {0, 1})
        m_keys->resizeColumnToContents(column);
    connect(m_part, &QLineEdit::textChanged, this, &KeyList::showMatching);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_part);
    layout->addWidget(m_keys, 1);
    layout->addWidget(buttons);
    const int widths = m_keys->columnWidth(0) + m_keys->columnWidth(1); // none is cut
    resize(widths + fontMetrics().averageCharWidth() * 12, fontMetrics().height() * 28);
}

void KeyList::showMatching(const QString &part)
{
    for (int menu = 0; menu < m_keys->topLevelItemCount(); ++menu) {
        QTreeWidgetItem &group = *m_keys->topLevelItem(menu);
        bool hasShown = false;
        for (int row = 0; row < group.childCount(); ++row) {
            QTreeWidgetItem &command = *group.child(row);
            const bool isShown = command.text(0).contains(part, Qt::CaseInsensitive) ||
                                 command.text(1).contains(part, Qt::CaseInsensitive);
            command.setHidden(!isShown);
            hasShown = hasShown || isShown;
        }
        group.setHidden(!hasShown);
    }
}

} // namespace ORVTListview
