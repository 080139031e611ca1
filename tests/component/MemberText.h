#pragma once

#include <ORVTListview/MemberTable.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

// A component's members as lines of text, so that a list, a table and a meta-object
// can be compared and their differences read.
namespace MemberText {

// The type as it is spelled in a list.
QString typeName(QMetaType type);

// "method Undo(ErrMsg: QString in/out)"
QString line(const ORVTListview::Member &member);

// The lines of a table, sorted.
QStringList ofTable(const ORVTListview::MemberTable &table);

// The lines of a hand-written list, sorted; blanks count for one, and empty lines
// and those that begin with "#" for none.
QStringList ofFile(const QString &path);

} // namespace MemberText
