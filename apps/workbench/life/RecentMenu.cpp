#include "workbench/life/RecentMenu.h"

#include "workbench/PlainTexts.h"
#include "workbench/life/RecentProjects.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QAction>

namespace ORVTListview {

using namespace Qt::StringLiterals;

QString shownPlace(const QString &fileName)
{
    const QFileInfo info(fileName);
    QString folder = info.path();
    const QString home = QDir::homePath();
    if (folder == home || folder.startsWith(home + u'/'))
        folder = u'~' + folder.sliced(home.size());
    return u"%1 — %2"_s.arg(info.fileName(), QDir::toNativeSeparators(folder));
}

RecentMenu::RecentMenu(RecentProjects &recent, QWidget *parent)
    : QMenu(tr("Open &Recent"), parent)
    , m_recent(recent)
{
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
    fill();
}

// Digits are the access keys of the first nine.
void RecentMenu::fill()
{
    clear();
    const QStringList files = m_recent.files();
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString &file = files.at(i);
        const QString place = shownPlace(file).replace(u'&', u"&&"_s);
        const QString key = i < 9 ? u"&%1 "_s.arg(QString::number(i + 1)) : QString();
        QAction *open = addAction(key + place, this, [this, file] { Q_EMIT chosen(file); });
        open->setToolTip(PlainTexts::toolTip(QDir::toNativeSeparators(file)));
    }
    if (files.isEmpty())
        addAction(tr("No projects yet"))->setEnabled(false);
    addSeparator();
    QAction *last = addAction(tr("Open the &Last at Start"));
    last->setCheckable(true);
    last->setChecked(m_recent.opensLast());
    connect(last, &QAction::triggered, &m_recent, &RecentProjects::setOpensLast);
    addAction(tr("&Clear List"), &m_recent, &RecentProjects::clear)->setEnabled(!files.isEmpty());
}

} // namespace ORVTListview
