#include "workbench/life/RecentProjects.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSettings>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostFiles = 10;
constexpr auto filesKey = "projects/recent"_L1;
constexpr auto opensLastKey = "projects/opensLast"_L1;

} // namespace

// Another workbench may have written meanwhile.
QStringList RecentProjects::files() const
{
    if (!m_store)
        return m_files;
    m_store->sync();
    return m_store->value(filesKey).toStringList().mid(0, mostFiles);
}

void RecentProjects::setFiles(const QStringList &files)
{
    if (m_store) {
        m_store->setValue(filesKey, files);
        m_store->sync();
    } else {
        m_files = files;
    }
    Q_EMIT changed();
}

void RecentProjects::add(const QString &fileName)
{
    const QString whole = QFileInfo(fileName).absoluteFilePath();
    QStringList now = files();
    now.removeAll(whole);
    now.prepend(whole);
    setFiles(now.mid(0, mostFiles));
}

void RecentProjects::remove(const QString &fileName)
{
    QStringList now = files();
    now.removeAll(fileName);
    setFiles(now);
}

void RecentProjects::clear()
{
    setFiles({});
}

bool RecentProjects::opensLast() const
{
    return m_store ? m_store->value(opensLastKey, true).toBool() : m_opensLast;
}

void RecentProjects::setOpensLast(bool on)
{
    m_opensLast = on;
    if (m_store)
        m_store->setValue(opensLastKey, on);
    Q_EMIT changed();
}

} // namespace ORVTListview
