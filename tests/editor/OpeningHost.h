#pragma once

#include "editor/EditorHost.h"
#include "widgets/box/LateColours.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

inline constexpr int programLines = 4000;

// Long enough to have its colours late; each line in words of several classes.
inline QString longProgram()
{
    QStringList lines;
    for (int i = 0; i < programLines; ++i) {
        lines << (i % 5 == 0   ? QStringLiteral("\tif ( temp1 > limit1 ) and var1 = %1").arg(i)
                  : i % 5 == 1 ? QStringLiteral("  REM temp1 of %1").arg(i)
                  : i % 5 == 2 ? QStringLiteral("fan1 = (nettemp)\t%1 ").arg(i)
                  : i % 5 == 3 ? QStringLiteral("")
                               : QStringLiteral("endif"));
    }
    return lines.join(QStringLiteral("\r\n"));
}

// All that a document shows, a line each.
inline QStringList pictureOf(const ORVTListview::RichTextBox &box)
{
    const auto told = [](const QTextCharFormat &format) {
        QString text;
        const auto properties = format.properties();
        for (auto it = properties.begin(); it != properties.end(); ++it)
            text += QStringLiteral(" %1").arg(it.key());
        return u'<' + format.foreground().color().name() + text + u'>';
    };
    QStringList lines;
    for (QTextBlock block = box.document()->firstBlock(); block.isValid(); block = block.next()) {
        QString line = told(block.charFormat());
        for (auto it = block.begin(); !it.atEnd(); ++it)
            line += it.fragment().text() + told(it.fragment().charFormat());
        lines << line;
    }
    return lines;
}

inline void comparePictures(const QStringList &late, const QStringList &atOnce)
{
    QCOMPARE(late.size(), atOnce.size());
    for (qsizetype i = 0; i < late.size(); ++i)
        QCOMPARE(late[i], atOnce[i]);
}

inline void putCaret(EditorHost &host, int line, int column = 0)
{
    host.box().setSelStart(host.box().lineStart(line) + column);
}

// An editor whose clock moves on by a millisecond each time it is looked at: the lines
// coloured at once can be counted.
struct OpeningHost : EditorHost
{
    OpeningHost()
    {
        colours().setClock([this] { return now += std::chrono::milliseconds(1); });
    }

    ORVTListview::LateColours &colours()
    {
        return ORVTListview::LateColours::of(*box().document());
    }
    ORVTListview::CodeView &view() { return *list->codeView(); }
    void open(const QString &program = longProgram()) { view().openProgram(program); }
    void pass()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    bool isAtWork() { return colours().areWaiting() || view().isOpening(); }
    void finish()
    {
        // QTRY_VERIFY sleeps between the pieces of the work where the loop is Windows'.
        for (QDeadlineTimer patience(5000); isAtWork() && !patience.hasExpired();)
            pass();
        QTRY_VERIFY(!isAtWork());
    }
    bool hasColours(int line)
    {
        const QTextBlock block = box().document()->findBlockByNumber(line);
        auto it = block.begin();
        bool isPlain = true;
        for (; !it.atEnd(); ++it)
            isPlain = isPlain && it.fragment().charFormat().isEmpty();
        return !isPlain;
    }

    ORVTListview::LateColours::Time now;
};
