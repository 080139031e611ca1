#pragma once

#include "editor/EditorHost.h"

#include <ORVTListview/CodeView.h>

#include <QtGui/QImage>
#include <QtGui/QPaintEvent>
#include <QtGui/QRegion>
#include <QtGui/QTextBlock>
#include <QtWidgets/QScrollBar>

// What is painted of a widget whose events it filters.
struct Painted : QObject
{
    QRegion region;
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
};

// A shown editor whose view is looked at.
struct ViewHost : EditorHost
{
    ORVTListview::CodeView &view() { return *list->codeView(); }
    QWidget &margin() { return *box().findChild<QWidget *>(QStringLiteral("EditorMargin")); }

    void setLines(int count, const QString &line = QStringLiteral("x%1 = 1"))
    {
        QStringList lines;
        for (int i = 1; i <= count; ++i)
            lines << QString(line).replace(QStringLiteral("%1"), QString::number(i));
        list->setCodeText(lines.join(QStringLiteral("\r\n")));
        QCoreApplication::processEvents();
    }

    // Where a line, from 0, is shown in the viewport.
    QRect placeOf(int line)
    {
        return box().cursorRect(QTextCursor(box().document()->findBlockByNumber(line)));
    }
    QPoint inMargin(int line) { return {margin().width() / 2, placeOf(line).center().y()}; }

    // What is painted, without the caret.
    QImage picture(QWidget &widget)
    {
        QCoreApplication::processEvents();
        return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    QColor colourBesideText(int line)
    {
        const QImage shown = picture(*box().viewport());
        return shown.pixelColor(shown.width() - 4, placeOf(line).center().y());
    }
    QColor ground() { return box().palette().color(QPalette::Base); }
};
