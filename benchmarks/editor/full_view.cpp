#include "editor/full_view.h"

#include "support/points.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMetaProperty>
#include <QtCore/QStringList>
#include <QtGui/QTextBlock>

#include <algorithm>

namespace ORVTListview::bench {

using namespace Qt::StringLiterals;

namespace {

QList<QMetaProperty> switches()
{
    const QMetaObject &view = CodeView::staticMetaObject;
    QList<QMetaProperty> found;
    for (int i = view.propertyOffset(); i < view.propertyCount(); ++i) {
        const QMetaProperty property = view.property(i);
        if (property.isWritable() && property.metaType() == QMetaType::fromType<bool>() &&
            property.name() != "wordListOpensItself"_ba)
            found.append(property);
    }
    return found;
}

void setSwitches(CodeView &view, bool on)
{
    for (const QMetaProperty &property : switches())
        property.write(&view, on);
    view.setZoom(on ? 100 : 0);
}

// The line of one of so many things, from 1.
int lineOf(int thing, int things, int lines)
{
    return 1 + static_cast<int>(qint64(thing) * lines / things);
}

QList<Problem> problems(int count, int lines)
{
    QList<Problem> all;
    for (int i = 0; i < count; ++i) {
        Problem problem;
        problem.line = lineOf(i, count, lines);
        problem.from = 4;
        problem.length = 8;
        problem.severity = static_cast<ProblemSeverity>(i % 3);
        problem.text = u"Number %1"_s.arg(i);
        all.append(problem);
    }
    return all;
}

QHash<QString, QString> values(int count)
{
    QHash<QString, QString> all;
    for (int i = 0; i < count; ++i)
        all.insert(pointName(i), QString::number(i % 900 / 10., 'f', 1) + u" °C"_s);
    return all;
}

void setBookmarks(CodeView &view, RichTextBox &box, int count)
{
    const qint32 caret = box.SelStart();
    while (view.nextBookmark())
        view.toggleBookmark();
    for (int i = 0; i < count; ++i) {
        box.setTextCursor(QTextCursor(
            box.document()->findBlockByNumber(lineOf(i, count, box.document()->blockCount()) - 1)));
        view.toggleBookmark();
    }
    box.setSelStart(caret);
}

} // namespace

void showAll(ORVListView &editor, const ViewLoad &load)
{
    CodeView &view = *editor.codeView();
    RichTextBox &box = *editor.RTextBox();
    setBookmarks(view, box, load.bookmarks);
    view.setProblems(problems(load.problems, box.document()->blockCount()));
    view.setLiveValues(values(load.values));
    setSwitches(view, true);
}

void showNothing(ORVListView &editor)
{
    CodeView &view = *editor.codeView();
    setSwitches(view, false);
    setBookmarks(view, *editor.RTextBox(), 0);
    view.setProblems({});
    view.setLiveValues({});
}

QString whatIsOff(ORVListView &editor)
{
    QStringList off;
    for (const QMetaProperty &property : switches()) {
        if (!property.read(editor.codeView()).toBool())
            off << QString::fromLatin1(property.name());
    }
    return off.join(u' ');
}

} // namespace ORVTListview::bench
