#pragma once

#include "WorkbenchTest.h"

#include "project/Project.h"
#include "project/ProjectDocument.h"
#include "workbench/views/ProgramViews.h"

#include <QtWidgets/QInputDialog>

// A workbench on a project of two programs.
struct TwoPrograms : WorkbenchWindow
{
    explicit TwoPrograms(const QByteArray &first = "Fan1 = Temp1\n",
                         const QByteArray &second = "REM second\nFan1 = Temp1 + 1\n")
    {
        ORVTListview::writeFile(folder.filePath(QStringLiteral("a.prog")), first);
        ORVTListview::writeFile(folder.filePath(QStringLiteral("b.prog")), second);
        ORVTListview::writeFile(project(), R"({"format": 2, "name": "two",
            "programs": [{"file": "a.prog"}, {"name": "Night", "file": "b.prog"}],
            "inputs": [{"name": "Temp1"}], "outputs": [{"name": "Fan1"}],
            "variables": [{"name": "Var1"}]})");
        window.openProject(project());
    }
    QString project() const { return folder.filePath(QStringLiteral("two.json")); }
    QByteArray bytes(const QString &name) const
    {
        return ORVTListview::readFile(folder.filePath(name));
    }

    ORVTListview::ProgramViews &programs() { return views().programs(); }
    ORVTListview::ProjectDocument &document()
    {
        return *window.findChild<ORVTListview::ProjectDocument *>();
    }
    QString text(qint32 program) { return programs().view(program).CodeText(); }
    void type(qint32 program, const QString &typed)
    {
        views().enterProgram(program);
        ORVTListview::RichTextBox &box = *programs().view(program).RTextBox();
        box.setSelStart(0);
        QTest::keyClicks(&box, typed);
    }
    void undo(qint32 program)
    {
        views().enterProgram(program);
        QTest::keyClick(programs().view(program).RTextBox(), Qt::Key_Z, Qt::ControlModifier);
    }
    QStringList names() const
    {
        QStringList names;
        for (const ORVTListview::ProjectProgram &program :
             window.findChild<ORVTListview::ProjectDocument *>()->project()->programs())
            names.append(program.name);
        return names;
    }
    void give(const QString &caption, const QString &name)
    {
        NextDialog<QInputDialog> dialog([&name](QInputDialog &asked) {
            asked.setTextValue(name);
            asked.accept();
        });
        choose(caption);
    }
};
