#include "editor/long_program.h"

#include "widgets/box/LateColours.h"
#include <ORVTListview/CodeView.h>

#include <QtCore/QDeadlineTimer>
#include <QtWidgets/QApplication>

namespace ORVTListview::bench {

ShownEditor::ShownEditor(const QString &program)
    : m_program(program)
    , m_face(QString())
    , m_watch(*box().viewport())
{
    showForBenchmark(m_face.widget());
    box().setFocus();
}

double ShownEditor::timeFirstPicture()
{
    box().setText(QString());
    return timed([this] { open(); });
}

Times ShownEditor::stopsUntilWhole()
{
    Times stops;
    while (LateColours::of(*box().document()).areWaiting())
        stops.add(timedAtWork([] { QCoreApplication::processEvents(); }));
    return stops;
}

double ShownEditor::timeUntilWhole()
{
    return timedAtWork([this] { stopsUntilWhole(); });
}

double ShownEditor::timeAtOnce()
{
    box().setText(QString());
    return timed([this] { m_face.widget().openProgram(m_program); });
}

void ShownEditor::giveKey(const Key &key)
{
    m_watch.forget();
    sendKey(box(), key);
    m_watch.finishPainting();
}

double ShownEditor::timeKey(const Key &key)
{
    return timedAtWork([&] { giveKey(key); });
}

double ShownEditor::timeKeyByTheClock(const Key &key)
{
    return timed([&] { giveKey(key); });
}

void ShownEditor::type(const QString &text)
{
    for (const QChar c : text)
        sendKey(box(), keyOf(c));
}

void ShownEditor::open()
{
    m_watch.forget();
    view().openProgram(m_program);
    if (!m_watch.finishPainting())
        qFatal("the program was not painted");
}

void ShownEditor::waitUntilIdle()
{
    stopsUntilWhole();
    m_face.waitUntilIdle();
}

void ShownEditor::rest()
{
    constexpr int longest = 3000; // milliseconds
    const QDeadlineTimer end(longest);
    while (!end.hasExpired())
        QCoreApplication::processEvents();
}

CodeView &ShownEditor::view()
{
    return *m_face.widget().codeView();
}

PlainEdit::PlainEdit(const QString &program)
    : m_program(program)
    , m_watch(*m_edit.viewport())
{
    m_edit.setFont(QFont(fontName(), fontSize));
    m_edit.setLineWrapMode(QPlainTextEdit::NoWrap); // as the box
    m_edit.setUndoRedoEnabled(false);               // as the box
    showForBenchmark(m_edit);
}

double PlainEdit::timeFirstPicture()
{
    m_edit.clear();
    return timeText();
}

double PlainEdit::timeOtherText()
{
    m_edit.setPlainText(m_program);
    return timeText();
}

double PlainEdit::timeText()
{
    m_watch.forget();
    return timed([this] {
        m_edit.setPlainText(m_program);
        if (!m_watch.finishPainting())
            qFatal("the text was not painted");
    });
}

} // namespace ORVTListview::bench
