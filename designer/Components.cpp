#include "Components.h"

#include "DesignedKeys.h"
#include "OwnCaption.h"
#include "PropertyGroups.h"
#include "TaskMenus.h"

#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVRichText.h>
#include <ORVTListview/ORVTreeview.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

template <typename T>
QWidget *create(QWidget *parent, bool)
{
    return new T(parent);
}

QWidget *createList(QWidget *parent, bool isDesigning)
{
    auto *list = new ORVListView(parent);
    if (isDesigning) { // both become the list's
        new OwnCaption(*list);
        new DesignedKeys(*list);
    }
    return list;
}

QWidget *createTree(QWidget *parent, bool isDesigning)
{
    auto *tree = new ORVTreeview(parent);
    tree->setDesignMode(isDesigning);
    return tree;
}

// In the language of Designer.
void addExtensions(QDesignerFormEditorInterface &editor)
{
    auto *translator = new QTranslator(editor.extensionManager());
    if (translator->load(QLocale(), u"designer"_s, u"_"_s,
                         u":/orvtlistview_designer/translations"_s))
        QCoreApplication::installTranslator(translator);
    TaskMenus::addTo(editor);
    PropertyGroups::addTo(editor, allComponents());
}

QList<PropertyDescription> listProperties()
{
    using enum PropertyGroup;
    return {
        {.name = u"ListviewType"_s,
         .group = Content,
         .toolTip = u"What is shown: the points of one type with their columns, or for "
                    "dsCode the code editor"_s},
        {.name = u"Caption"_s,
         .group = Content,
         .toolTip = u"The text above; without one the name of the type"_s,
         .isLine = true},
        {.name = u"Enabled"_s, .group = Behaviour, .toolTip = u"Whether users can work with it"_s},
        {.name = u"enabled"_s, .group = Behaviour, .toolTip = u"Means the same as Enabled"_s},
        {.name = u"MultiSelect"_s,
         .group = Behaviour,
         .toolTip = u"Whether users can select several rows"_s},
        {.name = u"columnLayout"_s,
         .group = Appearance,
         .toolTip = u"Order and width of the columns; set by Columns of This Type in the "
                    "context menu"_s,
         .isLine = true},
        {.name = u"programColours"_s,
         .group = Appearance,
         .toolTip = u"The colours of the words; set by Colours of the Program in the "
                    "context menu"_s,
         .isLine = true}};
}

QList<PropertyDescription> comboProperties()
{
    using enum PropertyGroup;
    return {
        {.name = u"Text"_s,
         .group = Content,
         .toolTip = u"What the field shows at first"_s,
         .isLine = true},
        {.name = u"Enabled"_s, .group = Behaviour, .toolTip = u"Whether users can work with it"_s},
        {.name = u"dragsEntry"_s,
         .group = Behaviour,
         .toolTip = u"Whether users can drag the picture of the selected point"_s}};
}

ComponentDescription listView()
{
    return {.className = u"ORVListView"_s,
            .title = u"Point Table / Code Editor"_s,
            .objectName = u"listView"_s,
            .pictureKey = u"Inputs"_s,
            .toolTip = u"A table of a controller's points, or the editor of its program"_s,
            .whatsThis = u"ListviewType chooses what is shown: the points of one type, each "
                         "type with its own columns, or for dsCode the code editor."_s,
            .size = QSize(480, 300),
            .properties = listProperties(),
            .create = &createList,
            .addToDesigner = &addExtensions};
}

ComponentDescription treeview()
{
    return {.className = u"ORVTreeview"_s,
            .title = u"Project Tree"_s,
            .objectName = u"treeview"_s,
            .pictureKey = u"Device"_s,
            .toolTip = u"The navigation tree of a controller project"_s,
            .whatsThis = u"Groups the categories of points into pages. While a form is being "
                         "designed the tree leaves the user's arrangement alone."_s,
            .size = QSize(220, 320),
            .create = &createTree};
}

ComponentDescription dataCombo()
{
    return {.className = u"ORVDataCombo"_s,
            .title = u"Point Combo"_s,
            .objectName = u"dataCombo"_s,
            .pictureKey = u"Variables"_s,
            .toolTip = u"A drop-down list of the points of one type"_s,
            .whatsThis = u"The host fills it with FillDataListview; users find a point by "
                         "typing a part of its name."_s,
            .size = QSize(180, 28),
            .properties = comboProperties(),
            .create = &create<ORVDataCombo>};
}

ComponentDescription richText()
{
    return {.className = u"ORVRichText"_s,
            .title = u"Rich-Text Shell"_s,
            .objectName = u"richText"_s,
            .pictureKey = u"Code"_s,
            .toolTip = u"The interface of a code editor, without behaviour"_s,
            .whatsThis = u"For hosts that are built against this interface. The editor that "
                         "works is the code editor of ORVListView."_s,
            .size = QSize(320, 200),
            .create = &create<ORVRichText>};
}

} // namespace

QList<ComponentDescription> allComponents()
{
    return {listView(), treeview(), dataCombo(), richText()};
}
