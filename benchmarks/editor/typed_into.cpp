#include "editor/typed_into.h"

#include <ORVTListview/RichTextBox.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QScrollBar>

namespace ORVTListview::bench {

using namespace Qt::StringLiterals;

TypedInto::TypedInto(QAbstractScrollArea &editor)
    : m_editor(editor)
    , m_watch(*editor.viewport())
{
    showForBenchmark(*editor.window());
}

void TypedInto::takeFocus()
{
    m_editor.activateWindow();
    m_editor.setFocus();
    QCoreApplication::processEvents();
    if (!m_editor.hasFocus())
        qFatal("an editor did not get the focus");
}

void TypedInto::press(const Key &key)
{
    m_watch.forget();
    sendKey(m_editor, key);
    if (!m_watch.finishPainting())
        qFatal("a key was not painted");
}

void TypedInto::timeKeys(const QList<Key> &keys, Times &times)
{
    takeFocus();
    for (const Key &key : keys)
        times.add(timed([&] { press(key); }));
}

void TypedInto::timeKeysAtWork(const QList<Key> &keys, Times &times)
{
    takeFocus();
    for (const Key &key : keys)
        times.add(timedAtWork([&] { press(key); }));
}

bool TypedInto::scrollOn()
{
    QScrollBar &bar = *m_editor.verticalScrollBar();
    if (bar.value() == bar.maximum())
        return false;
    m_watch.forget();
    bar.setValue(bar.value() + bar.pageStep());
    if (!m_watch.finishPainting())
        qFatal("a page was not painted");
    return true;
}

qsizetype placeToType(const QString &text)
{
    static const QRegularExpression line(u"\r\n[A-Za-z][^\r]*"_s);
    return line.match(text, text.size() / 2).capturedEnd();
}

void putCaret(RichTextBox &box, qsizetype place)
{
    box.setSelStart(static_cast<qint32>(place));
    box.centerCursor();
}

} // namespace ORVTListview::bench
