#include "workbench/trend/TrendDock.h"

#include "project/TextFile.h"
#include "workbench/PlainTexts.h"
#include "workbench/RoomyRows.h"
#include "workbench/export/SaveAs.h"
#include "workbench/trend/Trend.h"
#include "workbench/trend/TrendExport.h"
#include "workbench/trend/TrendStyle.h"
#include "workbench/trend/TrendView.h"

#include <ORVTListview/Error.h>

#include <QtCore/QEvent>
#include <QtGui/QAction>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <functional>
#include <limits>

namespace ORVTListview {

using namespace Qt::StringLiterals;

TrendDock::TrendDock(Trend &trend, QWidget *parent)
    : QDockWidget(parent)
    , m_trend(trend)
    , m_cyclic(new QAction(this))
{
    setObjectName(u"Trend"_s);
    setAllowedAreas(Qt::AllDockWidgetAreas);
    m_cyclic->setCheckable(true);
    connect(m_cyclic, &QAction::triggered, this, &TrendDock::cyclicWanted);
    retranslate();
}

void TrendDock::setVisible(bool visible)
{
    if (visible && !m_view)
        build();
    QDockWidget::setVisible(visible);
}

void TrendDock::build()
{
    m_view = new TrendView(m_trend, this);
    m_legend = new QTreeWidget(this);
    m_commands = new QToolBar(this);
    makeCommands();
    makeLegend();
    layOut();
    connect(&m_trend, &Trend::linesChanged, this, &TrendDock::showLines);
    connect(&m_trend, &Trend::samplesChanged, this, &TrendDock::showValues);
    retranslate();
}

void TrendDock::layOut()
{
    auto *body = new QWidget(this);
    auto *layout = new QVBoxLayout(body);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_commands);
    auto *parts = new QSplitter(body);
    auto *scrolled = new QScrollArea(parts);
    scrolled->setWidget(m_view);
    scrolled->setWidgetResizable(true);
    scrolled->setFrameShape(QFrame::NoFrame);
    scrolled->setFocusPolicy(Qt::NoFocus);
    parts->addWidget(scrolled);
    parts->addWidget(m_legend);
    parts->setStretchFactor(0, 2); // both become narrow in a narrow window
    parts->setStretchFactor(1, 1);
    parts->setSizes(
        {fontMetrics().averageCharWidth() * 100, fontMetrics().averageCharWidth() * 62});
    parts->setChildrenCollapsible(false);
    layout->addWidget(parts, 1);
    setWidget(body);
}

void TrendDock::makeCommands()
{
    m_commands->addAction(m_cyclic);
    m_pause = m_commands->addAction(QString());
    m_pause->setCheckable(true);
    connect(m_pause, &QAction::toggled, m_view, &TrendView::setPaused);
    m_in = m_commands->addAction(QString(), m_view, &TrendView::zoomIn);
    m_out = m_commands->addAction(QString(), m_view, &TrendView::zoomOut);
    m_commands->addSeparator();
    m_remove = m_commands->addAction(QString(), this, &TrendDock::removeChosen);
    m_clear = m_commands->addAction(QString(), &m_trend, &Trend::clear);
    m_export = m_commands->addAction(QString(), this, &TrendDock::exportSamples);
}

void TrendDock::makeLegend()
{
    m_legend->setItemDelegate(new RoomyRows(m_legend));
    m_legend->setRootIsDecorated(false);
    m_legend->setUniformRowHeights(true);
    m_legend->setAllColumnsShowFocus(true);
    m_legend->setFrameShape(QFrame::NoFrame);
    m_legend->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_legend->setColumnCount(4);
    m_legend->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_legend->header()->setStretchLastSection(false);
    m_remove->setShortcut(Qt::Key_Delete);
    m_remove->setShortcutContext(Qt::WidgetShortcut);
    m_legend->addAction(m_remove);
    m_legend->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_legend, &QTreeWidget::itemSelectionChanged, this,
            [this] { m_remove->setEnabled(!m_legend->selectedItems().isEmpty()); });
}

void TrendDock::retranslate()
{
    setWindowTitle(tr("Trend"));
    m_cyclic->setText(tr("Read &Cyclically"));
    if (!m_view)
        return;
    m_view->setAccessibleName(tr("Trend"));
    m_legend->setAccessibleName(tr("Drawn points"));
    m_legend->setHeaderLabels({tr("Point"), tr("Value"), tr("Least"), tr("Most")});
    m_commands->setWindowTitle(tr("Trend"));
    m_pause->setText(tr("Pause"));
    m_in->setText(tr("Zoom In"));
    m_out->setText(tr("Zoom Out"));
    m_remove->setText(tr("Remove"));
    m_clear->setText(tr("Clear"));
    m_export->setText(tr("Export…"));
    showLines();
}

void TrendDock::showLines()
{
    m_legend->clear();
    for (qsizetype line = 0; line < m_trend.lines().size(); ++line) {
        auto *item = new QTreeWidgetItem(m_legend, {m_trend.lines().at(line).name});
        item->setIcon(0, trendSample(line, *m_legend));
    }
    const int height = m_legend->fontMetrics().height();
    m_legend->setIconSize({height * 5 / 2, height});
    m_remove->setEnabled(false);
    showValues();
}

void TrendDock::showValues()
{
    bool isEmpty = true;
    for (int line = 0; line < m_legend->topLevelItemCount(); ++line) {
        const TrendLine &drawn = m_trend.lines().at(line);
        QTreeWidgetItem &item = *m_legend->topLevelItem(line);
        const auto range =
            drawn.range(std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max());
        const double last = drawn.samples.empty() ? 0 : drawn.samples.back().value;
        item.setText(1, drawn.samples.empty() ? QString() : drawn.textOf(last, locale()));
        item.setText(2, range ? drawn.textOf(range->least, locale()) : QString());
        item.setText(3, range ? drawn.textOf(range->most, locale()) : QString());
        isEmpty = isEmpty && drawn.samples.empty();
    }
    m_clear->setEnabled(!isEmpty);
    m_export->setEnabled(!isEmpty);
    m_pause->setEnabled(!isEmpty || m_pause->isChecked());
}

void TrendDock::removeChosen()
{
    QList<int> lines;
    const QList<QTreeWidgetItem *> chosen = m_legend->selectedItems();
    for (QTreeWidgetItem *item : chosen)
        lines.append(m_legend->indexOfTopLevelItem(item));
    std::sort(lines.begin(), lines.end(), std::greater<>());
    for (const int line : lines)
        m_trend.remove(line);
}

void TrendDock::exportSamples()
{
    const QByteArray bytes =
        byteOrderMark.toByteArray() + commaText(trendCells(m_trend, tr("Time"))).toUtf8();
    const QString file = askWhereToSave(*window(), tr("Export Trend"),
                                        {tr("Table with commas (*.csv)")}, {}, windowTitle());
    if (file.isEmpty())
        return;
    try {
        writeFile(file, bytes);
    } catch (const Error &error) {
        PlainTexts::warn(*window(), tr("Export Trend"), error.Description());
    }
}

void TrendDock::changeEvent(QEvent *event)
{
    const bool isOther =
        event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (m_view && isOther)
        QMetaObject::invokeMethod(this, &TrendDock::showLines,
                                  Qt::QueuedConnection); // the legend has their colours by then
    QDockWidget::changeEvent(event);
}

} // namespace ORVTListview
