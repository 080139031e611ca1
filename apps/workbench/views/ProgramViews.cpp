#include "workbench/views/ProgramViews.h"

#include "workbench/EditorViewMenu.h"
#include "workbench/views/DropFocus.h"
#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>

#include <QtCore/QMetaProperty>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 firstProgram = 1;

// What users have switched in one editor holds for all.
void takeSwitches(const CodeView &from, CodeView &to)
{
    const QMetaObject &meta = CodeView::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        if (property.isWritable())
            property.write(&to, property.read(&from));
    }
}

} // namespace

ProgramViews::ProgramViews(Workplace &workplace)
    : QObject(&workplace)
    , m_workplace(workplace)
    , m_list{{firstProgram, {}}}
{
    EditorViewMenu::switchOn(*make(firstProgram).view().codeView());
    title();
}

ViewDock &ProgramViews::make(qint32 program)
{
    const QString name =
        program == firstProgram ? u"Program"_s : u"Program"_s + QString::number(program);
    auto *dock = new ViewDock(name, &m_workplace);
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    ViewDock *beside = m_docks.empty() ? nullptr : m_docks.rbegin()->second;
    m_docks.insert({program, dock});
    ORVListView &view = dock->view();
    view.setListviewType(dsCode);
    if (beside) {
        takeSwitches(*this->view(firstProgram).codeView(), *view.codeView());
        view.RefillListviewWithWordList();
    }
    connect(view.codeView(), &CodeView::zoomChanged, this, [this](qint32 percent) {
        forEach([percent](CodeView &each) { each.setZoom(percent); });
    });
    new DropFocus(view, m_workplace);
    m_workplace.add(*dock, beside);
    Q_EMIT made(program, view);
    return *dock;
}

void ProgramViews::setList(const ProgramList &list)
{
    m_list = list;
    for (const ProjectProgram &program : m_list) {
        ViewDock &dock = m_docks.contains(program.id) ? *m_docks.at(program.id) : make(program.id);
        dock.show();
    }
    title();
    for (const auto &[program, dock] : m_docks) {
        const auto isIt = [id = program](const ProjectProgram &each) { return each.id == id; };
        if (std::ranges::none_of(m_list, isIt))
            m_workplace.leaveOut(*dock);
    }
}

void ProgramViews::title()
{
    for (const ProjectProgram &program : m_list)
        dock(program.id).setTitle(program.name.isEmpty() ? tr("Program") : program.name);
}

void ProgramViews::clear()
{
    for (const auto &[program, dock] : m_docks) {
        dock->view().Clear();
        dock->view().ClearUndoHistory();
    }
}

ORVListView &ProgramViews::view(qint32 program) const
{
    return dock(program).view();
}

qint32 ProgramViews::current() const
{
    for (const ViewDock *dock : m_workplace.used()) {
        if (const qint32 program = programIn(dock))
            return program;
    }
    return m_list.constFirst().id;
}

qint32 ProgramViews::programIn(const ViewDock *dock) const
{
    for (const ProjectProgram &program : m_list) {
        if (m_docks.at(program.id) == dock)
            return program.id;
    }
    return 0;
}

void ProgramViews::withEach(QObject *receiver, const Act &act)
{
    for (const auto &[program, dock] : m_docks)
        act(program, dock->view());
    connect(this, &ProgramViews::made, receiver, act);
}

void ProgramViews::forEach(const std::function<void(CodeView &view)> &act) const
{
    for (const auto &[program, dock] : m_docks)
        act(*dock->view().codeView());
}

void ProgramViews::retranslate()
{
    for (const auto &[program, dock] : m_docks)
        dock->view().ReInitializeStrings();
    title();
}

} // namespace ORVTListview
