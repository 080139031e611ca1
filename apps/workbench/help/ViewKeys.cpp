#include "workbench/help/ViewKeys.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeySequence>

namespace ORVTListview {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ViewKeys)
};

ViewKeys::Command command(const QString &text, const QList<QKeySequence> &keys)
{
    return {text, QKeySequence::listToString(keys, QKeySequence::NativeText)};
}

ViewKeys ofPrograms()
{
    return {Texts::tr("In a program"),
            {command(Texts::tr("Indent the selected lines"), {Qt::Key_Tab}),
             command(Texts::tr("Take their indent back"), {Qt::SHIFT | Qt::Key_Tab}),
             command(Texts::tr("Leave the program"),
                     {Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::SHIFT | Qt::Key_Tab})}};
}

ViewKeys ofTables()
{
    return {Texts::tr("In a table"),
            {command(Texts::tr("Edit the name or the cell"), {Qt::Key_F2}),
             command(Texts::tr("Select the row, or deselect it"), {Qt::CTRL | Qt::Key_Space}),
             command(Texts::tr("Select the column of the cell"), {Qt::CTRL | Qt::Key_Space}),
             command(Texts::tr("Select the row of the cell"), {Qt::SHIFT | Qt::Key_Space}),
             command(Texts::tr("Copy what is selected"), {Qt::CTRL | Qt::Key_C}),
             command(Texts::tr("Copy it with the headers"), {Qt::CTRL | Qt::SHIFT | Qt::Key_C}),
             command(Texts::tr("Paste into the cells"), {Qt::CTRL | Qt::Key_V}),
             command(Texts::tr("Clear the cells"), {Qt::Key_Delete}),
             command(Texts::tr("Fill the cells from the topmost one"), {Qt::CTRL | Qt::Key_D}),
             command(Texts::tr("Enter it in all selected cells"), {Qt::CTRL | Qt::Key_Return}),
             command(Texts::tr("Change yes and no"), {Qt::Key_Space}),
             command(Texts::tr("Empty the filter"), {Qt::Key_Escape})}};
}

ViewKeys ofTheTree()
{
    return {Texts::tr("In the project's tree"),
            {command(Texts::tr("Open what is selected"), {Qt::Key_Return}),
             command(Texts::tr("Expand, collapse"), {Qt::Key_Right, Qt::Key_Left}),
             command(Texts::tr("Rename the program"), {Qt::Key_F2}),
             command(Texts::tr("Remove the program"), {Qt::Key_Delete}),
             command(Texts::tr("Move the program up"), {Qt::ALT | Qt::SHIFT | Qt::Key_Up}),
             command(Texts::tr("Move the program down"), {Qt::ALT | Qt::SHIFT | Qt::Key_Down})}};
}

ViewKeys ofAll()
{
    return {
        Texts::tr("Everywhere"),
        {command(Texts::tr("Menu of what has the focus"), {Qt::SHIFT | Qt::Key_F10, Qt::Key_Menu}),
         command(Texts::tr("List of all points, in their field"),
                 {Qt::Key_F4, Qt::ALT | Qt::Key_Down})}};
}

} // namespace

QList<ViewKeys> keysOfViews()
{
    return {ofPrograms(), ofTables(), ofTheTree(), ofAll()};
}

} // namespace ORVTListview
