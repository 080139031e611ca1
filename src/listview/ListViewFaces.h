#pragma once

#include "editor/CodeEditor.h"
#include "pointtable/PointTable.h"
#include <ORVTListview/ImageList.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

// The control's two faces and the list that it lends to either.
struct ListViewFaces
{
    explicit ListViewFaces(QWidget &control);
    ~ListViewFaces();
    Q_DISABLE_COPY_MOVE(ListViewFaces) // the parts know one another

    bool isCode() const { return table->type() == dsCode; }

    // Shows the face of the type, new rows included, and enables it.
    void switchTo(LwType type);

    // The same with the type that is shown; only the editor is enabled by it.
    void showAnew();

    // Of the table, also while the editor has the list.
    bool isMultiSelect() const;
    void setMultiSelect(bool on);

    void layOut();
    QIcon picture(const QString &key) const;

    QWidget &control;
    ImageList images;
    ReportList *list; // these are children of the control
    PointTable *table;
    CodeEditor *editor;
    bool isEnabled = true;

private:
    QWidget &face() const;
    void show(LwType type, bool enables);
    void enterTabOrder();
};

} // namespace ORVTListview
