#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

class QWidget;

namespace ORVTListview::bench {

struct Key
{
    int key = 0; // Qt::Key
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    QString text = {};
};

Key keyOf(QChar typed);
inline const Key enterKey{Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r")};
inline const Key backspaceKey{Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b")};

void sendKey(QWidget &receiver, const Key &key);
void sendText(QWidget &receiver, const QString &text);

// A person at work on a program: so many keys, a slip corrected now and then. What
// they leave is in `typed`, lines separated by CR LF.
struct Script
{
    QList<Key> keys;
    QString typed;
};
Script writingScript(qsizetype keys);

} // namespace ORVTListview::bench
