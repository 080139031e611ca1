// What is heard of the parts of a control: the grid of its list, the view of its program,
// and the signals that inner widgets have from the toolkit.

#include "EventScenes.h"

#include "widgets/look/PictureButton.h"
#include <ORVTListview/CellRule.h>
#include <ORVTListview/CodeView.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/Problem.h>

#include <QtGui/QContextMenuEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QHeaderView>

#include <initializer_list>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

using Scene = EventScene;
using Sources = QList<EventSource>;

// --- The grid of a list ---

std::unique_ptr<EventScene> gridScene()
{
    auto scene = EventScenes::reportList();
    ReportList &list = *scene->list;
    list.setCheckBoxes(false);
    ListGrid &grid = *list.grid();
    grid.setTable(u"Points"_s);
    grid.setRules(u"Points"_s, {{u"Name"_s, {.kind = CellRule::Number, .maximum = 100}}});
    grid.setEditsCells(true);
    grid.setSelectsCells(true);
    grid.setEditsRows(true);
    grid.setSortsRows(true);
    grid.setArrangesColumns(true);
    grid.setHasMenu(true);
    grid.enterText(list.ListItems()->Item(3), 1, u"7"_s); // which can be taken back
    list.setCurrentIndex(list.model()->index(2, 1));
    return scene;
}

// Of which no column can be dragged: the toolkit draws the one that was pressed, gone or not.
std::unique_ptr<EventScene> headerScene()
{
    auto scene = gridScene();
    scene->list->grid()->setArrangesColumns(false);
    return scene;
}

void keysInGrid(Scene &scene, std::initializer_list<Qt::Key> keys)
{
    for (const Qt::Key key : keys) {
        if (scene.list)
            scene.user.key(*scene.list, key);
    }
}

template <Qt::Key key, auto held = Qt::ControlModifier>
void commandInGrid(Scene &scene)
{
    scene.user.key(*scene.list, key, held);
}

void enterInGrid(Scene &scene)
{
    keysInGrid(scene, {Qt::Key_5, Qt::Key_Return});
}

void menuOfGrid(Scene &scene)
{
    QContextMenuEvent wish(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(scene.list->viewport(), &wish);
}

QPoint inHeader(const Scene &scene, int column)
{
    const QHeaderView &header = *scene.list->horizontalHeader();
    return {header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
            header.height() / 2};
}

void clickHeader(Scene &scene)
{
    scene.user.click(*scene.list->horizontalHeader()->viewport(), inHeader(scene, 0));
}

void dragDivider(Scene &scene)
{
    const QHeaderView &header = *scene.list->horizontalHeader();
    QWidget &port = *header.viewport();
    const QPoint divider(header.sectionViewportPosition(0) + header.sectionSize(0) - 1,
                         header.height() / 2);
    scene.user.press(port, divider);
    for (const int way : {5, 10, 15, 20}) {
        if (scene.window && scene.list)
            scene.user.move(port, divider + QPoint(way, 0));
    }
    scene.user.release();
}

Sources gridSources()
{
    return {{"cellEntering", "Return in a cell", enterInGrid},
            {"cellsChanged", "Return in a cell", enterInGrid},
            {"cellsChanged", "Ctrl+Z", commandInGrid<Qt::Key_Z>},
            {"cellsChanged", "Delete", commandInGrid<Qt::Key_Delete, Qt::NoModifier>},
            {"cellsRefused", "Ctrl+V", commandInGrid<Qt::Key_V>},
            {"rowsEditing", "Ctrl++", commandInGrid<Qt::Key_Plus>},
            {"rowsEdited", "Ctrl++", commandInGrid<Qt::Key_Plus>},
            {"rowsEditing", "Ctrl+-", commandInGrid<Qt::Key_Minus>},
            {"rowsEdited", "Ctrl+-", commandInGrid<Qt::Key_Minus>},
            {"rowsEdited", "Alt+Down", commandInGrid<Qt::Key_Down, Qt::AltModifier>},
            {"menuOpening", "the menu key", menuOfGrid},
            {"rowsArranged", "the left button on a header", clickHeader},
            {"columnsArranged", "a divider", dragDivider}};
}

Sources headerSources()
{
    return {{"sectionPressed", "the left button", clickHeader},
            {"sectionClicked", "the left button", clickHeader},
            {"released", "the left button", clickHeader},
            {"sectionResized", "a divider", dragDivider}};
}

// --- What an editor shows ---

std::unique_ptr<EventScene> codeScene()
{
    auto scene = EventScenes::codeEditor();
    Problem problem;
    problem.line = 2;
    problem.length = 4;
    problem.text = u"wrong"_s;
    scene->listView->codeView()->setLineNumbersVisible(true);
    scene->listView->codeView()->setProblems({problem});
    return scene;
}

void openProgram(Scene &scene)
{
    scene.listView->codeView()->openProgram(u"temp1 = 1"_s);
}

void restOnWord(Scene &scene)
{
    const QPoint letter = scene.box->cursorRect(QTextCursor(scene.box->document())).center();
    scene.user.move(*scene.box->viewport(), letter + QPoint(3, 0));
}

void goToProblem(Scene &scene)
{
    scene.listView->codeView()->nextProblem();
}

void clickSign(Scene &scene)
{
    const QTextBlock second = scene.box->document()->findBlockByNumber(1);
    const int y = scene.box->cursorRect(QTextCursor(second)).center().y();
    auto *margin = scene.box->findChild<QWidget *>(u"EditorMargin"_s);
    scene.user.click(*margin, {4, y});
}

void makeReadOnly(Scene &scene)
{
    scene.box->setReadOnly(true);
}

Sources viewSources()
{
    return {{"openingProgress", "openProgram", openProgram},
            {"hoverAsked", "the mouse", restOnWord},
            {"problemChosen", "nextProblem", goToProblem},
            {"problemChosen", "a click on its sign", clickSign},
            {"commandsEnabledChanged", "a box made read-only", makeReadOnly}};
}

// --- What inner widgets have from the toolkit ---

template <Qt::Key key, auto held = Qt::NoModifier>
void keyInBox(Scene &scene)
{
    scene.user.key(*scene.box, key, held);
}

Sources textSources()
{
    return {{"textChanged", "a letter", keyInBox<Qt::Key_E>},
            {"blockCountChanged", "Return", keyInBox<Qt::Key_Return>},
            {"cursorPositionChanged", "Right", keyInBox<Qt::Key_Right>},
            {"selectionChanged", "Shift+Right", keyInBox<Qt::Key_Right, Qt::ShiftModifier>},
            {"copyAvailable", "Ctrl+A", keyInBox<Qt::Key_A, Qt::ControlModifier>}};
}

void openByProgram(Scene &scene)
{
    scene.listView->openProgram(u"temp1 = 1\r\nfan1 = 2\r\nfan1 = 3"_s);
}

// These come when the text is there, from the box itself.
Sources replacedTextSources()
{
    return {{"textChanged", "openProgram", openByProgram},
            {"blockCountChanged", "openProgram", openByProgram},
            {"cursorPositionChanged", "openProgram", openByProgram}};
}

template <Qt::Key key>
void keyInTree(Scene &scene)
{
    scene.tree->setSelectedItem(scene.tree->Nodes()->Item(1));
    scene.user.key(*scene.tree, key);
}

void clickNode(Scene &scene)
{
    const QModelIndex node = scene.tree->indexBelow(scene.tree->model()->index(0, 0));
    scene.user.click(*scene.tree->viewport(), scene.tree->visualRect(node).center());
}

Sources treeSources()
{
    return {{"expanded", "Right",
             [](Scene &scene) {
                 scene.tree->collapseAll();
                 keyInTree<Qt::Key_Right>(scene);
             }},
            {"collapsed", "Left", keyInTree<Qt::Key_Left>},
            {"pressed", "the left button", clickNode},
            {"clicked", "the left button", clickNode},
            {"activated", "Return", keyInTree<Qt::Key_Return>}};
}

template <Qt::Key key>
void keyInCombo(Scene &scene)
{
    scene.user.key(*scene.combo, key);
}

Sources comboSources()
{
    return {{"currentIndexChanged", "Down", keyInCombo<Qt::Key_Down>},
            {"editTextChanged", "a letter", keyInCombo<Qt::Key_T>}};
}

PictureButton *readButton(const Scene &scene)
{
    return scene.control->findChild<PictureButton *>();
}

void clickButton(Scene &scene)
{
    scene.user.click(*readButton(scene), readButton(scene)->rect().center());
}

Sources buttonSources()
{
    return {{"pressed", "the left button", clickButton},
            {"released", "the left button", clickButton},
            {"clicked", "the left button", clickButton}};
}

Sources ownButtonSources()
{
    return {{"pressedAndReleased", "the left button", clickButton}};
}

} // namespace

QList<EventSubject> innerEventSubjects()
{
    using namespace EventScenes;
    const auto grid = [](const Scene &scene) -> QObject * { return scene.list->grid(); };
    const auto header = [](const Scene &scene) -> QObject * {
        return scene.list->horizontalHeader();
    };
    const auto view = [](const Scene &scene) -> QObject * { return scene.listView->codeView(); };
    const auto box = [](const Scene &scene) -> QObject * { return scene.box; };
    const auto tree = [](const Scene &scene) -> QObject * { return scene.tree; };
    const auto combo = [](const Scene &scene) -> QObject * { return scene.combo; };
    const auto button = [](const Scene &scene) -> QObject * { return readButton(scene); };
    return {
        {"grid of a list", gridScene, grid, gridSources()},
        {"header of a list", headerScene, header, headerSources(), false},
        {"view of a program", codeScene, view, viewSources()},
        {"box as a text field", codeEditor, box, textSources(), false},
        {"box whose text is replaced", codeEditor, box, replacedTextSources()},
        {"tree as a view", nodeTree, tree, treeSources(), false},
        {"combo as a combo box", dataCombo, combo, comboSources(), false},
        {"read button as a button", pointTable, button, buttonSources(), false},
        {"read button", pointTable, button, ownButtonSources()},
    };
}
