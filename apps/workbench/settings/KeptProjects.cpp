#include "workbench/settings/KeptProjects.h"

#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "shared/points/DisplayNames.h"
#include "workbench/MainWindow.h"
#include "workbench/ProjectView.h"
#include "workbench/reading/ControllerPart.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>

#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QSettings>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr auto group = "projects/kept"_L1;
constexpr int mostProjects = 10;
constexpr qsizetype mostBookmarks = 1000;

QString textOf(const AskedPoint &point)
{
    const QString name = point.name.isEmpty() ? u'#' + QString::number(point.number) : point.name;
    return displayName(point.type) + u'/' + name;
}

// A point of dsCode for what is damaged.
AskedPoint pointOf(const QString &text)
{
    const qsizetype slash = text.indexOf(u'/');
    const QString name = text.sliced(slash + 1);
    const QList<LwType> &types = projectTypes();
    const auto type = std::ranges::find_if(
        types, [table = text.left(slash)](LwType each) { return displayName(each) == table; });
    if (slash < 0 || type == types.cend() || name.isEmpty())
        return {};
    const qint32 number = name.startsWith(u'#') ? name.sliced(1).toInt() : 0;
    return number > 0 ? AskedPoint{*type, {}, number} : AskedPoint{*type, name};
}

} // namespace

KeptProjects::KeptProjects(QSettings &store, MainWindow &window)
    : QObject(&window)
    , m_store(store)
    , m_window(window)
{
    connect(&window, &MainWindow::projectShown, this, &KeptProjects::read);
    connect(&window, &MainWindow::projectLeaving, this, &KeptProjects::write);
}

// Empty without a project.
QString KeptProjects::fileName() const
{
    const Project *project = m_window.findChild<ProjectDocument *>()->project();
    return project ? QFileInfo(project->fileName()).absoluteFilePath() : QString();
}

QList<KeptProjects::Kept> KeptProjects::all() const
{
    QList<Kept> all;
    const int count = std::min(m_store.beginReadArray(group), mostProjects);
    for (int i = 0; i < count; ++i) {
        m_store.setArrayIndex(i);
        all.append({m_store.value("file"_L1).toString(), m_store.value("trend"_L1).toStringList(),
                    m_store.value("showsTrend"_L1).toBool(),
                    m_store.value("bookmarks"_L1).toStringList()});
    }
    m_store.endArray();
    return all;
}

KeptProjects::Kept KeptProjects::now() const
{
    const ControllerPart::KeptTrend trend = m_window.findChild<ControllerPart *>()->trend();
    Kept now{fileName(), {}, trend.isShown, bookmarks()};
    for (const AskedPoint &point : trend.points)
        now.trend.append(textOf(point));
    return now;
}

// The one of now first. Another workbench may have written meanwhile.
void KeptProjects::write()
{
    if (fileName().isEmpty())
        return;
    m_store.sync();
    QList<Kept> kept = all();
    kept.removeIf([file = fileName()](const Kept &each) { return each.file == file; });
    kept.prepend(now());
    const qsizetype count = std::min<qsizetype>(kept.size(), mostProjects);
    m_store.beginWriteArray(group, static_cast<int>(count));
    for (qsizetype i = 0; i < count; ++i) {
        m_store.setArrayIndex(static_cast<int>(i));
        m_store.setValue("file"_L1, kept.at(i).file);
        m_store.setValue("trend"_L1, kept.at(i).trend);
        m_store.setValue("showsTrend"_L1, kept.at(i).showsTrend);
        m_store.setValue("bookmarks"_L1, kept.at(i).bookmarks);
    }
    m_store.endArray();
}

void KeptProjects::read()
{
    const QList<Kept> kept = all();
    const auto found = std::ranges::find(kept, fileName(), &Kept::file);
    if (found == kept.cend())
        return;
    setBookmarks(found->bookmarks);
    ControllerPart::KeptTrend trend{{}, found->showsTrend};
    for (const QString &point : found->trend)
        trend.points.append(pointOf(point));
    m_window.findChild<ControllerPart *>()->drawAgain(trend);
}

QStringList KeptProjects::bookmarks() const
{
    QStringList bookmarks;
    const ProgramViews &programs = m_window.findChild<ProjectView *>()->programs();
    for (const ProjectProgram &program : programs.list()) {
        for (const qint32 line : programs.view(program.id).codeView()->bookmarks())
            bookmarks.append(u"%1/%2"_s.arg(QString::number(program.id), QString::number(line)));
    }
    return bookmarks.mid(0, mostBookmarks);
}

// What the programs have not is passed over.
void KeptProjects::setBookmarks(const QStringList &bookmarks) const
{
    QHash<qint32, QList<qint32>> lines;
    for (const QString &bookmark : bookmarks.mid(0, mostBookmarks))
        lines[bookmark.section(u'/', 0, 0).toInt()].append(bookmark.section(u'/', 1).toInt());
    const ProgramViews &programs = m_window.findChild<ProjectView *>()->programs();
    for (const ProjectProgram &program : programs.list())
        programs.view(program.id).codeView()->setBookmarks(lines.value(program.id));
}

} // namespace ORVTListview
