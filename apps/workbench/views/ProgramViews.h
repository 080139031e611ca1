#pragma once

#include "project/ProjectProgram.h"

#include <QtCore/QObject>

#include <functional>
#include <map>
#include <vector>

namespace ORVTListview {

class CodeView;
class ORVListView;
class ViewDock;
class Workplace;

// The programs of a project, each in an editor of its own, whose undo keeps to it. Editors
// are made when they are needed first and kept: a program that leaves the list and comes back
// has its text and its undo.
class ProgramViews : public QObject
{
    Q_OBJECT

public:
    // Belongs to the workplace, as the editors do; the first one is there at once.
    explicit ProgramViews(Workplace &workplace);

    // The programs that there are now; others are hidden.
    void setList(const ProgramList &list);
    const ProgramList &list() const { return m_list; }

    // No program shows anything of the former project.
    void clear();

    // The editor of a program that is or was in the list.
    ORVListView &view(qint32 program) const;
    ViewDock &dock(qint32 program) const { return *m_docks.at(program); }

    // The program that is used, or was used last.
    qint32 current() const;

    // 0 for what is no program's.
    qint32 programIn(const ViewDock *dock) const;

    // Acts on the editors that there are, and on each that comes as long as the receiver
    // lives.
    using Act = std::function<void(qint32 program, ORVListView &view)>;
    void withEach(QObject *receiver, const Act &act);

    // All editors, also of programs that may come back.
    void forEach(const std::function<void(CodeView &view)> &act) const;

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    void made(qint32 program, ORVTListview::ORVListView &view);

private:
    ViewDock &make(qint32 program);
    void title();

    Workplace &m_workplace;
    ProgramList m_list;
    std::map<qint32, ViewDock *> m_docks;
};

} // namespace ORVTListview
