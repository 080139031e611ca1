// Every source of every event. Those of a widget count for the control around it too.

#include "EventScenes.h"

#include "find/FindDialog.h"
#include "find/fFind.h"
#include "widgets/input/DragEvents.h"
#include "widgets/look/PictureButton.h"

#include <QtCore/QMimeData>
#include <QtGui/QAccessible>
#include <QtGui/QClipboard>
#include <QtGui/QDropEvent>
#include <QtGui/QInputMethodEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListView>
#include <QtWidgets/QMenu>

using namespace ORVTListview;

namespace {

using Scene = EventScene;
using Sources = QList<EventSource>;

// --- Drags, as the window system tells of them ---

void dragOver(QWidget &target, bool drops)
{
    QMimeData data;
    data.setText(QStringLiteral("x"));
    const QPoint place = target.rect().center();
    const QPointer<QWidget> alive(&target);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    if (alive)
        QCoreApplication::sendEvent(&target, &move);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDragLeaveEvent leave;
    if (alive && drops)
        QCoreApplication::sendEvent(&target, &drop);
    else if (alive)
        QCoreApplication::sendEvent(&target, &leave);
}

Sources dropsOn(const std::function<QWidget *(Scene &)> &target)
{
    return {{"OLEDragOver", "a drag over it",
             [target](Scene &scene) { dragOver(*target(scene), false); }},
            {"OLEDragDrop", "a drop", [target](Scene &scene) { dragOver(*target(scene), true); }}};
}

// --- Lists and trees ---

// What is common to both: V is the view, place() a row and check() its box.
template <auto view>
struct ItemView
{
    static QWidget &port(Scene &scene) { return *(scene.*view)->viewport(); }

    static QModelIndex row(Scene &scene)
    {
        const QAbstractItemModel &model = *(scene.*view)->model();
        if constexpr (std::is_same_v<decltype(view), QPointer<NodeTree> Scene::*>)
            return (scene.*view)->indexBelow((scene.*view)->indexBelow(model.index(0, 0)));
        else
            return model.index(2, 0);
    }
    static QPoint place(Scene &scene)
    {
        const QRect rect = (scene.*view)->visualRect(row(scene));
        return {rect.left() + std::min(30, rect.width() - 2), rect.center().y()};
    }
    static QPoint check(Scene &scene)
    {
        const int side = port(scene).style()->pixelMetric(QStyle::PM_IndicatorWidth);
        const QRect rect = (scene.*view)->visualRect(row(scene));
        return {rect.left() + 3 + side / 2, rect.center().y()};
    }
    static void click(Scene &scene, QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        scene.user.click(port(scene), at, button);
    }
    static void left(Scene &scene) { click(scene, place(scene)); }
    static void right(Scene &scene) { click(scene, place(scene), Qt::RightButton); }
    static void checkByMouse(Scene &scene) { click(scene, check(scene)); }
    static void doubleClick(Scene &scene) { scene.user.doubleClick(port(scene), place(scene)); }
    static void move(Scene &scene) { scene.user.move(port(scene), place(scene)); }
    template <Qt::Key which>
    static void key(Scene &scene)
    {
        scene.user.key(*(scene.*view), which);
    }
    static void editLabel(Scene &scene)
    {
        key<Qt::Key_F2>(scene);
        if (scene.window && scene.labelField())
            scene.user.key(*scene.labelField(), Qt::Key_Return);
    }
    // Once on a chosen row is enough, the row being in focus already.
    static void slowClick(Scene &scene)
    {
        left(scene);
        left(scene);
    }
    static void drag(Scene &scene)
    {
        (scene.*view)->setDragEnabled(true);
        scene.user.press(port(scene), place(scene));
        for (const int way : {20, 40, 60})
            scene.user.move(port(scene), place(scene) + QPoint(way, 0));
        QCoreApplication::processEvents();
    }

    static Sources sources()
    {
        return Sources{{"AfterLabelEdit", "Return in the label", editLabel},
                       {"BeforeLabelEdit", "F2", key<Qt::Key_F2>},
                       {"BeforeLabelEdit", "a slow second click", slowClick},
                       {"Click", "the left button", left},
                       {"DblClick", "the left button", doubleClick},
                       {"KeyDown", "a key", key<Qt::Key_Space>},
                       {"KeyPress", "a key", key<Qt::Key_Space>},
                       {"KeyUp", "a key", key<Qt::Key_Space>},
                       {"MouseDown", "the left button", left},
                       {"MouseDown", "the right button", right},
                       {"MouseMove", "the mouse", move},
                       {"MouseUp", "the left button", left},
                       {"MouseUp", "the right button", right},
                       {"OLEStartDrag", "a drag", drag},
                       {"OLECompleteDrag", "a drag", drag}} +
               dropsOn([](Scene &scene) { return &port(scene); });
    }
};

using InList = ItemView<&Scene::list>;
using InTree = ItemView<&Scene::tree>;

void clickHeader(Scene &scene)
{
    QHeaderView &header = *scene.list->horizontalHeader();
    const int x = header.sectionViewportPosition(1) + header.sectionSize(1) / 2;
    scene.user.click(*header.viewport(), {x, header.height() / 2});
}

Sources listSources()
{
    return InList::sources() + Sources{{"ColumnClick", "the left button", clickHeader},
                                       {"ItemCheck", "Space", InList::key<Qt::Key_Space>},
                                       {"ItemCheck", "the left button", InList::checkByMouse},
                                       {"ItemClick", "the left button", InList::left},
                                       {"ItemClick", "the right button", InList::right},
                                       {"ItemClick", "Down", InList::key<Qt::Key_Down>}};
}

// What the list inherits.
Sources checkBoxSources()
{
    return {{"clicked", "the left button on a check box", InList::checkByMouse}};
}

Sources viewSources()
{
    return {{"clicked", "the left button", InList::left},
            {"pressed", "the left button", InList::left},
            {"pressed", "the right button", InList::right},
            {"doubleClicked", "the left button", InList::doubleClick},
            {"activated", "Return", InList::key<Qt::Key_Return>}};
}

void clickExpander(Scene &scene)
{
    scene.tree->expandAll();
    const QModelIndex top = scene.tree->model()->index(0, 0);
    const QModelIndex parent =
        scene.tree->model()->hasChildren(scene.tree->model()->index(0, 0, top))
            ? scene.tree->model()->index(0, 0, top)
            : top;
    const QRect rect = scene.tree->visualRect(parent);
    scene.user.click(*scene.tree->viewport(),
                     {rect.left() - scene.tree->indentation() / 2, rect.center().y()});
}

void expandByKey(Scene &scene)
{
    scene.tree->collapseAll();
    scene.tree->setSelectedItem(scene.tree->Nodes()->Item(1));
    scene.user.key(*scene.tree, Qt::Key_Right);
}

void collapseByKey(Scene &scene)
{
    scene.tree->expandAll();
    scene.tree->setSelectedItem(scene.tree->Nodes()->Item(1));
    scene.user.key(*scene.tree, Qt::Key_Left);
}

Sources treeSources()
{
    return InTree::sources() + Sources{{"Collapse", "the left button", clickExpander},
                                       {"Collapse", "Left", collapseByKey},
                                       {"Expand", "Right", expandByKey},
                                       {"NodeCheck", "Space", InTree::key<Qt::Key_Space>},
                                       {"NodeCheck", "the left button", InTree::checkByMouse},
                                       {"NodeClick", "the left button", InTree::left},
                                       {"NodeClick", "the right button", InTree::right},
                                       {"NodeClick", "Down", InTree::key<Qt::Key_Down>}};
}

// --- The read button ---

PictureButton &readButton(Scene &scene)
{
    return *scene.control->findChild<PictureButton *>();
}

void readByMouse(Scene &scene)
{
    scene.user.click(readButton(scene), readButton(scene).rect().center());
}

template <Qt::Key key>
void readByKey(Scene &scene)
{
    readButton(scene).setFocus();
    scene.user.key(readButton(scene), key);
}

void readByAssistant(Scene &scene)
{
    QAccessible::queryAccessibleInterface(&readButton(scene))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
}

Sources buttonSources()
{
    return {{"QueryRead", "the left button", readByMouse},
            {"QueryRead", "Space", readByKey<Qt::Key_Space>},
            {"QueryRead", "Return", readByKey<Qt::Key_Return>},
            {"QueryRead", "a screen reader", readByAssistant}};
}

// --- The box and the editor ---

template <Qt::Key key, auto held = Qt::NoModifier>
void keyInBox(Scene &scene)
{
    scene.user.key(*scene.box, key, held);
}

void pasteByKey(Scene &scene)
{
    keyInBox<Qt::Key_V, Qt::ControlModifier>(scene);
}

template <Qt::MouseButton button>
void clickBox(Scene &scene)
{
    QWidget &port = *scene.box->viewport();
    scene.user.click(port, port.rect().center(), button);
}

void pasteByMenu(Scene &scene)
{
    QContextMenuEvent wish(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(scene.box->viewport(), &wish);
    auto *menu = scene.box->findChild<QMenu *>();
    for (QAction *action : menu->actions()) {
        if (action->text().remove(u'&') == u"Paste")
            menu->setActiveAction(action);
    }
    scene.user.key(*menu, Qt::Key_Return);
}

void compose(Scene &scene)
{
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("e"));
    QCoreApplication::sendEvent(scene.box, &event);
}

void insertByAssistant(Scene &scene)
{
    QAccessible::queryAccessibleInterface(scene.box)->editableTextInterface()->insertText(
        0, QStringLiteral("x"));
}

void dropOnBox(Scene &scene)
{
    dragOver(*scene.box->viewport(), true);
}

Sources boxSources()
{
    return {{"Change", "a letter", keyInBox<Qt::Key_E>},
            {"Change", "Return", keyInBox<Qt::Key_Return>},
            {"Change", "Delete", keyInBox<Qt::Key_Delete>},
            {"Change", "Ctrl+V", pasteByKey},
            {"Change", "the menu", pasteByMenu},
            {"Change", "a drop", dropOnBox},
            {"Change", "an input method", compose},
            {"Change", "a screen reader", insertByAssistant},
            {"KeyDown", "a key", keyInBox<Qt::Key_E>},
            {"MouseDown", "the left button", clickBox<Qt::LeftButton>},
            {"MouseDown", "the right button", clickBox<Qt::RightButton>}};
}

void openWordList(Scene &scene)
{
    scene.box->setSelStart(0);
    bool absolutely = true;
    scene.listView->TryToPopupList(absolutely);
    scene.list->scrollToTop(); // where the user acts
}

// The list of the point table serves as word list.
template <auto act>
void inWordList(Scene &scene)
{
    openWordList(scene);
    act(scene);
}

Sources editorSources()
{
    return {{"KeyDown", "F1", keyInBox<Qt::Key_F1>},
            {"MouseDown", "the left button", clickBox<Qt::LeftButton>},
            {"MouseDown", "the right button", clickBox<Qt::RightButton>},
            {"StatusUpdate", "the timer", keyInBox<Qt::Key_Home>},
            {"UpdateUndoMenu", "Ctrl+V", pasteByKey},
            {"UpdateUndoMenu", "the menu", pasteByMenu},
            {"UpdateUndoMenu", "a drop", dropOnBox},
            {"QueryAnalyze", "F6", keyInBox<Qt::Key_F6>},
            {"QueryCompile", "Ctrl+F6", keyInBox<Qt::Key_F6, Qt::ControlModifier>},
            {"MouseDown", "the word list", inWordList<InList::left>},
            {"ItemClick", "the word list", inWordList<InList::left>},
            {"MouseUp", "the word list", inWordList<InList::left>},
            {"Click", "the word list", inWordList<InList::left>},
            {"MouseMove", "the word list", inWordList<InList::move>},
            {"DblClick", "the word list", inWordList<InList::doubleClick>}};
}

void replaceByDialog(Scene &scene)
{
    scene.listView->showFind(true);
    fFind &dialog = FindDialog::shared();
    dialog.findChild<QComboBox *>(QStringLiteral("Cbo0"))->setCurrentText(QStringLiteral("x"));
    auto *replaceAll = dialog.findChild<QWidget *>(QStringLiteral("Cmd3"));
    scene.user.click(*replaceAll, replaceAll->rect().center());
}

void setTextByCall(Scene &scene)
{
    scene.listView->setCodeText(QStringLiteral("z"));
}

void cutByKey(Scene &scene)
{
    scene.listView->RTextSelectAll();
    keyInBox<Qt::Key_X, Qt::ControlModifier>(scene);
}

// What a box inside an editor tells, whose editor may go then.
Sources editorBoxSources()
{
    return boxSources() + Sources{{"Change", "the word list", inWordList<InList::doubleClick>},
                                  {"Change", "Ctrl+X", cutByKey},
                                  {"Change", "the find dialog", replaceByDialog},
                                  {"Change", "setCodeText", setTextByCall}};
}

// --- The combo ---

template <Qt::Key key>
void keyInCombo(Scene &scene)
{
    scene.user.key(*scene.combo, key);
}

void takeByKey(Scene &scene)
{
    scene.combo->showPopup();
    scene.user.key(*scene.combo, Qt::Key_Return);
}

void takeByMouse(Scene &scene)
{
    scene.combo->showPopup();
    QListView &list = *scene.combo->listView();
    scene.user.click(*list.viewport(), list.visualRect(list.model()->index(1, 0)).center());
}

void typeName(Scene &scene)
{
    scene.combo->lineEdit()->selectAll();
    for (const Qt::Key key : {Qt::Key_T, Qt::Key_E, Qt::Key_M, Qt::Key_P, Qt::Key_2})
        scene.user.key(*scene.combo, key);
}

void takeByTab(Scene &scene)
{
    typeName(scene);
    scene.user.key(*scene.combo, Qt::Key_Tab);
}

void takeByLeaving(Scene &scene)
{
    typeName(scene);
    scene.window->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)->setFocus();
}

void dragPicture(Scene &scene)
{
    scene.user.press(*scene.combo, QPoint(4, scene.combo->height() / 2));
    for (const int way : {20, 40, 60})
        scene.user.move(*scene.combo, QPoint(4 + way, scene.combo->height() / 2));
    QCoreApplication::processEvents();
}

Sources comboSources()
{
    return Sources{{"Change", "a letter", keyInCombo<Qt::Key_T>},
                   {"Click", "Down", keyInCombo<Qt::Key_Down>},
                   {"Click", "Return in the list", takeByKey},
                   {"Click", "the left button in the list", takeByMouse},
                   {"Click", "Tab", takeByTab},
                   {"Click", "the focus that goes", takeByLeaving},
                   {"picked", "Return in the list", takeByKey},
                   {"picked", "the left button in the list", takeByMouse},
                   {"DblClick", "the left button",
                    [](Scene &scene) {
                        QLineEdit &field = *scene.combo->lineEdit();
                        scene.user.doubleClick(field, field.rect().center());
                    }},
                   {"KeyDown", "a key", keyInCombo<Qt::Key_T>},
                   {"KeyPress", "a key", keyInCombo<Qt::Key_T>},
                   {"KeyUp", "a key", keyInCombo<Qt::Key_T>},
                   {"OLEStartDrag", "a drag", dragPicture},
                   {"OLECompleteDrag", "a drag", dragPicture}} +
           dropsOn([](Scene &scene) { return scene.combo.data(); });
}

bool isOfDrag(const EventSource &source)
{
    return qstrncmp(source.event, "OLE", 3) == 0;
}

// Of an inner widget, whose drags raise their events themselves.
Sources dragsOf(const Sources &all)
{
    Sources drags = all;
    drags.removeIf([](const EventSource &source) { return !isOfDrag(source); });
    return drags;
}

Sources withoutDrags(Sources all)
{
    all.removeIf(isOfDrag);
    return all;
}

QObject *raiserOf(const DragEvents &drags)
{
    return const_cast<DragEvents *>(&drags); // receivers only connect to it
}

} // namespace

const QList<EventSubject> &eventSubjects()
{
    using namespace EventScenes;
    static const auto control = [](const Scene &scene) { return scene.control.data(); };
    static const auto list = [](const Scene &scene) { return scene.list.data(); };
    static const auto box = [](const Scene &scene) { return scene.box.data(); };
    static const auto combo = [](const Scene &scene) { return scene.combo.data(); };
    static const auto all =
        QList<EventSubject>{
            {"point table", pointTable, control, listSources() + buttonSources()},
            {"list of a table", pointTable, list, checkBoxSources()},
            {"list as a view", pointTable, list, viewSources(), false},
            {"code editor", codeEditor, control, editorSources() + buttonSources()},
            {"box of an editor", codeEditor, box, editorBoxSources()},
            {"project tree", projectTree, control, treeSources()},
            {"data combo", dataCombo, control, comboSources()},
            {"report list", reportList, control, listSources()},
            {"node tree", nodeTree, control, withoutDrags(treeSources())},
            {"drags of a node tree", nodeTree,
             [](const Scene &scene) { return raiserOf(scene.tree->drags()); },
             dragsOf(treeSources())},
            {"rich text box", richTextBox, control, boxSources()},
            {"image combo", imageCombo, combo, withoutDrags(comboSources())},
            {"drags of an image combo", imageCombo,
             [](const Scene &scene) { return raiserOf(scene.combo->drags()); },
             dragsOf(comboSources())},
        } +
        innerEventSubjects();
    return all;
}
