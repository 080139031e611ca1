#include "Components.h"

#include "DesignedKeys.h"
#include "OwnCaption.h"
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
void addTaskMenus(QDesignerFormEditorInterface &editor)
{
    auto *translator = new QTranslator(editor.extensionManager());
    if (translator->load(QLocale(), u"designer"_s, u"_"_s,
                         u":/orvtlistview_designer/translations"_s))
        QCoreApplication::installTranslator(translator);
    TaskMenus::addTo(editor);
}

QString singleLine(const QString &property)
{
    return u"<stringpropertyspecification name=\"%1\" type=\"singleline\"/>"_s.arg(property);
}

// What the property editor tells of a property.
QString toolTip(const QString &property, const QString &text)
{
    return u"<tooltip name=\"%1\">%2</tooltip>"_s.arg(property, text);
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
            .properties =
                singleLine(u"Caption"_s) + singleLine(u"columnLayout"_s) +
                singleLine(u"programColours"_s) +
                toolTip(u"ListviewType"_s, u"What is shown: the points of one type with their "
                                           "columns, or for dsCode the code editor"_s) +
                toolTip(u"Caption"_s, u"The text above; without one the name of the type"_s) +
                toolTip(u"Enabled"_s, u"Whether users can work with it"_s) +
                toolTip(u"MultiSelect"_s, u"Whether users can select several rows"_s) +
                toolTip(u"columnLayout"_s, u"Order and width of the columns; set by Columns of "
                                           "This Type in the context menu"_s) +
                toolTip(u"programColours"_s, u"The colours of the words; set by Colours of the "
                                             "Program in the context menu"_s),
            .create = &createList,
            .addToDesigner = &addTaskMenus};
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
            .properties = QString(),
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
            .properties = singleLine(u"Text"_s) +
                          toolTip(u"Text"_s, u"What the field shows at first"_s) +
                          toolTip(u"Enabled"_s, u"Whether users can work with it"_s) +
                          toolTip(u"dragsEntry"_s,
                                  u"Whether users can drag the picture of the selected point"_s),
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
            .properties = QString(),
            .create = &create<ORVRichText>};
}

} // namespace

QList<ComponentDescription> allComponents()
{
    return {listView(), treeview(), dataCombo(), richText()};
}
