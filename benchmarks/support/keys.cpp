#include "support/keys.h"

#include "support/program.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

namespace ORVTListview::bench {

using namespace Qt::StringLiterals;

Key keyOf(QChar typed)
{
    // Qt's numbers of keys that type ASCII are those of the capital letters.
    const bool isCapital = typed.isUpper();
    return {typed.toUpper().unicode(), isCapital ? Qt::ShiftModifier : Qt::NoModifier, typed};
}

void sendKey(QWidget &receiver, const Key &key)
{
    QKeyEvent press(QEvent::KeyPress, key.key, key.modifiers, key.text);
    QCoreApplication::sendEvent(&receiver, &press);
    QKeyEvent release(QEvent::KeyRelease, key.key, key.modifiers, key.text);
    QCoreApplication::sendEvent(&receiver, &release);
}

void sendText(QWidget &receiver, const QString &text)
{
    for (const QChar c : text)
        sendKey(receiver, keyOf(c));
}

Script writingScript(qsizetype keys)
{
    constexpr int keysBetweenSlips = 11;
    // Begins on a line of its own, and without indents, which one editor repeats
    // after Enter and the other does not.
    QStringList lines{QString()};
    for (const QString &line : makeProgram(keys * 4).text.split(u"\r\n"_s)) {
        if (const QString typed = line.trimmed(); !typed.isEmpty())
            lines.append(typed);
    }
    Script script;
    for (const QChar c : lines.join(u'\n')) {
        if (script.keys.size() >= keys)
            break;
        script.keys.append(c == u'\n' ? enterKey : keyOf(c));
        script.typed += c == u'\n' ? u"\r\n"_s : QString(c);
        if (script.keys.size() % keysBetweenSlips == 0)
            script.keys << keyOf(u'q') << backspaceKey;
    }
    return script;
}

} // namespace ORVTListview::bench
