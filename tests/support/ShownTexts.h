#pragma once

#include <QtCore/QStringList>

class QWidget;

// The texts that a widget and all below it show or tell a screen reader, hidden
// ones included: captions, titles, column headers, tool tips, menu entries, status
// texts, tabs. What users type or hosts fill in (fields, rows) is not among them.
QStringList shownTexts(const QWidget &widget);

// Those of them that hold a word outside the brackets of PseudoTexts, access keys
// taken away.
QStringList shownWithoutLookup(const QWidget &widget);
