#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

// The built program, run once.
struct ToolRun
{
    int status = -1; // -1: it did not run or did not end by itself
    QByteArray out;
    QByteArray err;
};

// The folder of the examples is the working directory; arguments name files from
// there.
ToolRun runColourTool(const QStringList &arguments, const QByteArray &standardInput = {});

// The same through a shell, where "$TOOL" is the program.
ToolRun runInShell(const QString &script);
