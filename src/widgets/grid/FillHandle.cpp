#include "widgets/grid/FillHandle.h"

#include "widgets/grid/CellEdit.h"
#include "widgets/grid/GridRules.h"
#include "widgets/grid/GridSelection.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QRubberBand>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableView>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr int handleSize = 7;

} // namespace

FillHandle::FillHandle(const GridTools &tools)
    : QWidget(tools.view.viewport())
    , m_tools(tools)
{
    setObjectName(u"FillHandle"_s);
    setCursor(Qt::CrossCursor);
    hide();
    const QTableView &view = m_tools.view;
    const QAbstractItemModel *model = view.model();
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FillHandle::refresh);
    connect(view.horizontalHeader(), &QHeaderView::geometriesChanged, this, &FillHandle::refresh);
    connect(view.horizontalHeader(), &QHeaderView::sectionResized, this, &FillHandle::refresh);
    for (const QScrollBar *bar : {view.verticalScrollBar(), view.horizontalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, &FillHandle::refresh);
    connect(model, &QAbstractItemModel::layoutChanged, this, &FillHandle::refresh);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &FillHandle::refresh);
    connect(model, &QAbstractItemModel::modelReset, this, &FillHandle::refresh);
}

FillHandle::~FillHandle() = default;

bool FillHandle::isNeeded() const
{
    const QItemSelection selection = m_tools.view.selectionModel()->selection();
    if (!m_tools.selection.isByCells() || selection.size() != 1)
        return false;
    const Block block = selected();
    if (block.rows.isEmpty() || block.columns.isEmpty()) // all hidden
        return false;
    for (int column = selection.first().left(); column <= selection.first().right(); ++column) {
        if (m_tools.rules.isEdited(column))
            return true;
    }
    return false;
}

FillHandle::Block FillHandle::selected() const
{
    return {m_tools.selection.rows(), m_tools.selection.columns()};
}

QRect FillHandle::placeOf(const Block &block) const
{
    const auto cell = [this](int row, int column) {
        return m_tools.view.visualRect(m_tools.view.model()->index(row, column));
    };
    return cell(block.rows.first(), block.columns.first()) |
           cell(block.rows.last(), block.columns.last());
}

void FillHandle::refresh()
{
    const bool isThere = isNeeded();
    setVisible(isThere);
    if (!isThere)
        return;
    const Block block = selected();
    const QRect place = placeOf(block);
    const int corner = m_tools.view.isRightToLeft() ? place.left() : place.right();
    const QRect kept = m_tools.table.keptArea();
    const bool isKept = m_tools.table.shift(block.columns.last()) != 0;
    setVisible(isKept || kept.left() > corner || corner > kept.right());
    setGeometry(corner - handleSize / 2, place.bottom() - handleSize / 2, handleSize, handleSize);
    raise();
}

bool FillHandle::event(QEvent *event)
{
    if (event->type() == QEvent::Paint)
        paint();
    else if (event->type() == QEvent::Hide)
        delete m_outline.data(); // in the middle of a drag no release follows
    const auto *mouse = dynamic_cast<QMouseEvent *>(event);
    if (!mouse || !isEnabled())
        return QWidget::event(event);
    actOnMouse(*mouse);
    return true;
}

void FillHandle::actOnMouse(const QMouseEvent &event)
{
    const QPoint at = mapToParent(event.position().toPoint());
    if (event.type() == QEvent::MouseMove)
        follow(at);
    else if (event.button() == Qt::LeftButton && event.type() == QEvent::MouseButtonRelease)
        end(at);
    else if (event.button() == Qt::LeftButton)
        begin();
}

void FillHandle::paint()
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Base));
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

// The cells selected and those up to a place, down or up from them, or else to their side.
FillHandle::Block FillHandle::reached(QPoint inViewport) const
{
    Block block = selected();
    const QRect place = placeOf(block);
    const QRect shown = m_tools.view.viewport()->rect();
    const QPoint at(std::clamp(inViewport.x(), shown.left(), shown.right()),
                    std::clamp(inViewport.y(), shown.top(), shown.bottom()));
    const QModelIndex cell = m_tools.view.indexAt(at);
    if (!cell.isValid() || place.contains(at))
        return block;
    const bool isBeside = at.y() >= place.top() && at.y() <= place.bottom();
    if (isBeside) {
        const QList<int> all =
            m_tools.selection.columnsFrom(m_tools.view.horizontalHeader()->logicalIndex(0));
        const qsizetype first =
            std::min(all.indexOf(cell.column()), all.indexOf(block.columns.first()));
        const qsizetype last =
            std::max(all.indexOf(cell.column()), all.indexOf(block.columns.last()));
        block.columns = all.mid(first, last - first + 1);
        return block;
    }
    const int last = std::max(cell.row(), block.rows.last());
    block.rows = m_tools.selection.rowsFrom(std::min(cell.row(), block.rows.first()));
    block.rows.erase(std::upper_bound(block.rows.begin(), block.rows.end(), last),
                     block.rows.end());
    return block;
}

void FillHandle::begin()
{
    if (!isNeeded())
        return;
    delete m_outline.data();
    m_outline = new QRubberBand(QRubberBand::Rectangle, m_tools.view.viewport());
    m_outline->setGeometry(placeOf(selected()));
    m_outline->show();
}

void FillHandle::follow(QPoint inViewport)
{
    if (!m_outline || !isNeeded())
        return;
    const QModelIndex cell = m_tools.view.indexAt(inViewport);
    if (cell.isValid())
        m_tools.view.scrollTo(cell);
    m_outline->setGeometry(placeOf(reached(inViewport)));
}

void FillHandle::end(QPoint inViewport)
{
    if (!m_outline)
        return;
    delete m_outline.data();
    if (isNeeded())
        fill(selected(), reached(inViewport));
}

// A place before the selected cells gets their end, one behind them their begin.
void FillHandle::fill(const Block &from, const Block &to)
{
    const auto source = [](const QList<int> &given, const QList<int> &all, qsizetype place) {
        const qsizetype distance = place - all.indexOf(given.first());
        return given.at((distance % given.size() + given.size()) % given.size());
    };
    const QAbstractItemModel &model = *m_tools.view.model();
    QList<CellEntry> entries;
    for (qsizetype y = 0; y < to.rows.size(); ++y) {
        for (qsizetype x = 0; x < to.columns.size(); ++x) {
            const QModelIndex cell = model.index(to.rows.at(y), to.columns.at(x));
            const QModelIndex like =
                model.index(source(from.rows, to.rows, y), source(from.columns, to.columns, x));
            if (cell != like)
                entries.append({m_tools.table.itemAt(cell), cell.column(), like.data().toString()});
        }
    }
    const CellPlace first{to.rows.first(), to.columns.first()};
    const CellPlace last{to.rows.last(), to.columns.last()};
    if (!entries.isEmpty())
        m_tools.selection.selectAfter([&] { return m_tools.edit.enter(entries); }, first, last);
}

} // namespace ORVTListview
