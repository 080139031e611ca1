#include "EventScenes.h"

#include "widgets/combo/ComboEntry.h"
#include "widgets/look/Pictures.h"

#include <QtGui/QClipboard>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A place for the focus to go to.
void addNeighbour(QWidget &window)
{
    auto *neighbour = new QLineEdit(&window);
    neighbour->setGeometry(10, 370, 100, 20);
}

template <typename Control>
Control *addedControl(EventScene &scene)
{
    auto *control = new Control(scene.window);
    control->setGeometry(10, 10, 480, 350);
    scene.control = control;
    addNeighbour(*scene.window);
    return control;
}

void setUpCode(EventScene &scene)
{
    scene.listView = addedControl<ORVListView>(scene);
    scene.listView->setListviewType(dsCode);
    scene.list = scene.listView->listView();
    scene.box = scene.listView->RTextBox();
    scene.listView->Init_RichTextBox({});
    scene.listView->setCodeText(u"if x\r\nthen y"_s);
    scene.clear = [&scene] { scene.listView->Clear(); };
    scene.changeType = [&scene] { scene.listView->setListviewType(dsTimer); };
}

void addNodes(NodeTree &tree)
{
    Node *top = tree.Nodes()->Add(nullptr, NodeRelationship::Child, u"r"_s, u"r"_s);
    for (const QString &key : {u"a"_s, u"b"_s, u"c"_s})
        tree.Nodes()->Add(top, NodeRelationship::Child, key, key);
}

} // namespace

EventScene::EventScene()
{
    window->resize(500, 400);
    window->setAttribute(Qt::WA_DeleteOnClose);
    QGuiApplication::clipboard()->setText(u"then"_s);
}

void EventScene::show()
{
    window->show();
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window))
        qFatal("the window does not become active");
    control->setFocus();
}

QLineEdit *EventScene::labelField() const
{
    return qobject_cast<QLineEdit *>(QApplication::focusWidget());
}

std::unique_ptr<EventScene> EventScenes::pointTable()
{
    auto scene = std::make_unique<EventScene>();
    auto *control = addedControl<ORVListView>(*scene);
    scene->listView = control;
    scene->list = control->listView();
    scene->list->setCheckBoxes(true);
    scene->list->setAcceptDrops(true);
    scene->list->goToRow(2);
    scene->clear = [control] { control->Clear(); };
    scene->changeType = [control] { control->setListviewType(dsCode); };
    return scene;
}

std::unique_ptr<EventScene> EventScenes::codeEditor()
{
    auto scene = std::make_unique<EventScene>();
    setUpCode(*scene);
    return scene;
}

std::unique_ptr<EventScene> EventScenes::projectTree()
{
    auto scene = std::make_unique<EventScene>();
    auto *control = addedControl<ORVTreeview>(*scene);
    scene->tree = control->findChild<NodeTree *>();
    scene->tree->setCheckBoxes(true);
    scene->tree->expandAll();
    scene->tree->setSelectedItem(control->Nodes()->Item(2));
    scene->clear = [control] { control->Nodes()->Clear(); };
    scene->changeType = [control] { control->ReInitializeStrings(); };
    return scene;
}

std::unique_ptr<EventScene> EventScenes::dataCombo()
{
    auto scene = std::make_unique<EventScene>();
    scene->project = std::make_unique<ORVTreeview>();
    scene->project->setDesignMode(true);
    for (const QString &name : {u"Temp1"_s, u"Temp2"_s, u"Humidity"_s})
        scene->points.Add(name, 1);
    scene->project->SetCollectionRenamable(nullptr, nullptr, nullptr, &scene->points,
                                           &scene->points, nullptr);
    auto *control = addedControl<ORVDataCombo>(*scene);
    control->resize(480, 30);
    control->setAcceptDrops(true);
    control->setDragsEntry(true);
    scene->combo = control->findChild<ImageCombo *>();
    const auto fill = [control](LwType type) {
        QString error;
        control->FillDataListview(type, nullptr, error);
    };
    fill(dsInput);
    control->SetListIndex(u"Temp1"_s);
    scene->clear = [control] { control->Clear(); };
    scene->changeType = [fill] { fill(dsOutput); };
    return scene;
}

std::unique_ptr<EventScene> EventScenes::reportList()
{
    auto scene = std::make_unique<EventScene>();
    auto *list = addedControl<ReportList>(*scene);
    scene->list = list;
    list->setCheckBoxes(true);
    list->setAcceptDrops(true);
    for (const QString &key : {u"#"_s, u"Name"_s})
        list->ColumnHeaders()->Add(0, key, key);
    const auto fill = [list] { list->setRows(QList<RowContent>(20)); };
    fill();
    list->goToRow(2);
    scene->clear = [list] { list->Clear(); };
    scene->changeType = [list, fill] {
        list->ColumnHeaders()->Clear();
        fill();
    };
    return scene;
}

std::unique_ptr<EventScene> EventScenes::nodeTree()
{
    auto scene = std::make_unique<EventScene>();
    auto *tree = addedControl<NodeTree>(*scene);
    scene->tree = tree;
    tree->setCheckBoxes(true);
    tree->setAcceptDrops(true);
    addNodes(*tree);
    tree->expandAll();
    tree->setSelectedItem(tree->Nodes()->Item(1));
    scene->clear = [tree] { tree->Nodes()->Clear(); };
    scene->changeType = [tree] {
        tree->Nodes()->Clear();
        addNodes(*tree);
    };
    return scene;
}

std::unique_ptr<EventScene> EventScenes::richTextBox()
{
    auto scene = std::make_unique<EventScene>();
    auto *box = addedControl<RichTextBox>(*scene);
    scene->box = box;
    box->setText(u"one\r\ntwo"_s);
    scene->clear = [box] { box->setText({}); };
    scene->changeType = [box] { box->setTextRTF(u"{\\rtf1 other}"_s); };
    return scene;
}

std::unique_ptr<EventScene> EventScenes::imageCombo()
{
    auto scene = std::make_unique<EventScene>();
    auto *combo = addedControl<ImageCombo>(*scene);
    combo->resize(480, 30);
    scene->combo = combo;
    combo->setAcceptDrops(true);
    combo->setDragsEntry(true);
    Pictures::fillInto(scene->pictures);
    combo->setImageList(&scene->pictures);
    const auto fill = [combo] {
        QList<ComboEntry> entries(3);
        int number = 0;
        for (ComboEntry &entry : entries) {
            entry.key = entry.text = u"Temp%1"_s.arg(++number);
            entry.image = entry.selectedImage = 61;
        }
        combo->setEntries(entries);
    };
    fill();
    combo->setSelectedIndex(1);
    scene->clear = [combo] { combo->setEntries({}); };
    scene->changeType = fill;
    return scene;
}
