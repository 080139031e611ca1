#include "workbench/reading/ControllerPart.h"

#include "project/ProjectDocument.h"
#include "project/controller/PointReading.h"
#include "workbench/FreeKeys.h"
#include "workbench/PointTables.h"
#include "workbench/reading/ControllerMenu.h"
#include "workbench/reading/ReadingDialog.h"
#include "workbench/reading/ReadingStatus.h"
#include "workbench/trend/Trend.h"
#include "workbench/trend/TrendDock.h"

#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>

#include <algorithm>
#include <chrono>
#include <numeric>
#include <utility>

namespace ORVTListview {

ControllerPart::ControllerPart(ProjectDocument &document, QMainWindow &window)
    : QObject(&window)
    , m_document(document)
    , m_window(window)
    , m_controller(new SimulatedController(
          [this](const AskedPoint &point) { return m_reading->valueOf(point); }, this))
    , m_reading(new PointReading(document, *m_controller, this))
    , m_status(new ReadingStatus(*m_reading, &window))
    , m_trend(new Trend(document, *m_reading, this))
    , m_dock(new TrendDock(*m_trend, &window))
{
    window.addDockWidget(Qt::BottomDockWidgetArea, m_dock);
    m_dock->hide();
    window.statusBar()->addPermanentWidget(m_status);
    m_status->hide(); // the bar shows what it takes
    connect(m_status, &ReadingStatus::succeeded, this,
            [this] { tell(tr("The values have been read."), 3000); });
    connect(m_dock, &TrendDock::cyclicWanted, this, &ControllerPart::setCyclic);
    connect(m_trend, &Trend::linesChanged, this, &ControllerPart::followTrend);
    connect(&document, &ProjectDocument::projectReplaced, this, &ControllerPart::hideEmptyTrend);
}

// The window is going: nobody is told any more what becomes of a question.
ControllerPart::~ControllerPart()
{
    delete m_reading;
}

void ControllerPart::serve(ORVListView &list, PointTables &tables)
{
    tables.setReading(*m_reading);
    m_tables.append(&tables);
    connect(&list, &ORVListView::QueryRead, this, [this](const LwType &type) {
        if (!m_reading->canRead(type))
            tell(tr("There are no values to read here."), 5000);
    });
    connect(list.listView()->grid(), &ListGrid::menuOpening, this, [this, &tables](QMenu *menu) {
        if (tables.selectedPoints().isEmpty())
            return;
        QAction *draw =
            menu->addAction(withFreeKey(ControllerMenu::tr("A&dd To Trend"), *menu), this,
                            [this, &tables] { drawRows(tables.type(), tables.selectedPoints()); });
        draw->setShortcut(Qt::CTRL | Qt::Key_R); // shown; that of the window's menu
        draw->setShortcutContext(Qt::WidgetShortcut);
    });
}

void ControllerPart::addMenu(QMenuBar &menus)
{
    auto *menu = new ControllerMenu(*m_reading, *m_dock, &menus);
    menus.addMenu(menu);
    connect(menu, &ControllerMenu::settingsWanted, this, &ControllerPart::choose);
    connect(menu, &ControllerMenu::trendWanted, this, &ControllerPart::draw);
}

void ControllerPart::setSettings(const ReadingSettings &settings)
{
    m_settings = settings;
    m_controller->setBehaviour(settings.simulated);
    m_reading->setPause(std::chrono::seconds(settings.isCyclic ? settings.seconds : 0));
    m_dock->cyclicAction().setChecked(settings.isCyclic);
}

void ControllerPart::retranslate()
{
    m_status->retranslate();
    m_dock->retranslate();
}

void ControllerPart::setCyclic(bool on)
{
    ReadingSettings settings = m_settings;
    settings.isCyclic = on;
    Q_EMIT settingsChosen(settings);
}

void ControllerPart::choose()
{
    ReadingDialog dialog(m_settings, &m_window);
    if (dialog.exec() == QDialog::Accepted)
        Q_EMIT settingsChosen(dialog.settings());
}

// The rows of the table that the user works in, or of the only one that is seen.
void ControllerPart::draw()
{
    const PointTables *chosen = nullptr;
    for (const QPointer<PointTables> &tables : std::as_const(m_tables)) {
        if (tables && !tables->selectedPoints().isEmpty() && (!chosen || tables->hasFocus()))
            chosen = tables;
    }
    if (chosen)
        drawRows(chosen->type(), chosen->selectedPoints());
    else
        tell(tr("Select rows of a table with values first."), 5000);
}

void ControllerPart::drawAll(LwType type)
{
    if (!m_document.project())
        return;
    QList<qsizetype> rows(
        std::min<qsizetype>(m_document.project()->rows(type).size(), Trend::mostLines));
    std::iota(rows.begin(), rows.end(), 0);
    drawRows(type, rows);
}

void ControllerPart::drawRows(LwType type, const QList<qsizetype> &rows)
{
    bool isNew = false;
    for (const qsizetype row : rows)
        isNew = m_trend->add(type, row) || isNew;
    showTrend();
    if (isNew)
        return;
    if (m_trend->lines().size() >= Trend::mostLines)
        tell(tr("The trend is full: remove points from it first."), 5000);
    else
        tell(tr("There is nothing new to draw in the selected rows."), 5000);
}

// As large as it takes to see something, unless the user has made it so: beside what stands
// below already, such as the results, the picture has the larger part.
void ControllerPart::showTrend()
{
    const bool wasHidden = m_dock->isHidden();
    m_dock->setVisible(!m_trend->lines().isEmpty());
    const int width = m_window.width() * 3 / 5;
    if (wasHidden && m_dock->width() < width && !m_dock->isFloating())
        m_window.resizeDocks({m_dock}, {width}, Qt::Horizontal);
    const int height = m_window.fontMetrics().height() * 20;
    if (wasHidden && m_dock->height() < height && !m_dock->isFloating())
        m_window.resizeDocks({m_dock}, {height}, Qt::Vertical);
}

// Whoever has opened an empty one reads there what to do.
void ControllerPart::followTrend()
{
    const bool drew = std::exchange(m_draws, !m_trend->lines().isEmpty());
    if (drew && !m_draws)
        hideEmptyTrend();
}

void ControllerPart::hideEmptyTrend()
{
    if (m_dock->isHidden() || !m_trend->lines().isEmpty())
        return;
    const QWidget *focus = QApplication::focusWidget();
    const bool hadFocus = focus && m_dock->isAncestorOf(focus);
    m_dock->hide();
    QWidget *former = m_window.centralWidget() ? m_window.centralWidget()->focusWidget() : nullptr;
    if (hadFocus && former)
        former->setFocus();
}

ControllerPart::KeptTrend ControllerPart::trend() const
{
    KeptTrend kept{{}, !m_dock->isHidden()};
    for (const TrendLine &line : m_trend->lines())
        kept.points.append(line.point);
    return kept;
}

// As large as it was left.
void ControllerPart::drawAgain(const KeptTrend &kept)
{
    for (const AskedPoint &point : kept.points)
        m_trend->add(point);
    if (kept.isShown && !m_trend->lines().isEmpty())
        m_dock->show();
}

void ControllerPart::tell(const QString &text, int milliseconds)
{
    m_window.statusBar()->showMessage(text, milliseconds);
}

} // namespace ORVTListview
