#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

// Finds texts in C++ source by its look. Texts that stand beside each other are
// one; escapes are resolved.

// What is looked up: the texts within Localise(...).
QStringList lookedUpTexts(const QString &source);

// What is shown as it is: texts of two letters or more that are given to a widget,
// an action or a message without Localise, or that are translated by tr. Sorted.
QStringList textsShownAsTheyAre(const QString &source);

// Every text.
QStringList allTexts(const QString &source);

// The calls of arg on what an earlier arg has made: a text that the earlier one put
// in may hold "%2" and take what the later one means for the place behind it.
QStringList chainedArguments(const QString &source);
