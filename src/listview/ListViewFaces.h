#pragma once

#include "editor/CodeEditor.h"
#include "pointtable/PointTable.h"
#include "widgets/component/ToldProperties.h"
#include <ORVTListview/ImageList.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

#include <optional>

namespace ORVTListview {

class ORVListView;

// The control's two faces and the list that it lends to either.
struct ListViewFaces
{
    explicit ListViewFaces(QWidget &owner);
    ~ListViewFaces();
    Q_DISABLE_COPY_MOVE(ListViewFaces) // the parts know one another

    bool isCode() const { return table->type() == dsCode; }

    // Shows the face of the type, new rows included; an editor is enabled then.
    void switchTo(LwType type);

    // Of the table, also while the editor has the list.
    bool isMultiSelect() const;
    void setMultiSelect(bool on);

    // Those of the form; none are the system's ground and black words.
    void showProgramColours();

    void layOut();
    QIcon picture(const QString &key) const;

    QWidget &control;
    ImageList images;
    ReportList *list; // these are children of the control
    PointTable *table;
    CodeEditor *editor;
    bool isEnabled = true;
    QString programColours;
    bool areColoursWaiting = false; // for the editor
    ToldProperties<ORVListView> told;

    // The program as it was told last; none while nobody listens.
    std::optional<QString> toldCode;
    std::optional<QString> toldRtf;
    bool isCodeToBeTold = false;

private:
    QWidget &face() const;
    void enterTabOrder();
};

} // namespace ORVTListview
