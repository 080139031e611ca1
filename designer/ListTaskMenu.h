#pragma once

#include <QtCore/QObject>
#include <QtDesigner/QDesignerTaskMenuExtension>

namespace ORVTListview {
class ORVListView;
}

// What Designer offers for a table or an editor on a form: its columns, or its colours.
// What is chosen is one step of the form's undo.
class ListTaskMenu : public QObject, public QDesignerTaskMenuExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    ListTaskMenu(ORVTListview::ORVListView &list, QObject *parent);

    QAction *preferredEditAction() const override;
    QList<QAction *> taskActions() const override;

private:
    void arrangeColumns();
    void chooseColours();
    void keep(const QString &property, const QString &text, const QString &step);

    ORVTListview::ORVListView &m_list; // outlives its extensions
    QAction *m_columns;
    QAction *m_colours;
};
