#include "widgets/grid/FilterFields.h"

#include "grid/rules/RowFilter.h"
#include "shared/texts/TextTable.h"
#include "widgets/grid/CellTable.h"
#include "widgets/grid/GridOrder.h"
#include "widgets/input/FieldMenu.h"

#include <QtGui/QAccessible>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableView>

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr int clearButton = 28; // what a field keeps free for it, at most

// The toolkit gives its button none; it tells what its action says.
void nameClearButton(const QLineEdit &line)
{
    for (QAction *action : line.findChildren<QAction *>(Qt::FindDirectChildrenOnly))
        action->setText(Localise(u"Empty the filter"_s));
}

} // namespace

FilterFields::FilterFields(const Tools &tools)
    : m_tools(tools)
{
    const QHeaderView *header = tools.view.horizontalHeader();
    connect(header, &QHeaderView::sectionResized, this, &FilterFields::place);
    connect(header, &QHeaderView::sectionMoved, this, &FilterFields::place);
    connect(header, &QHeaderView::geometriesChanged, this, &FilterFields::place);
    connect(tools.view.horizontalScrollBar(), &QScrollBar::valueChanged, this,
            &FilterFields::place);
    const QAbstractItemModel *model = tools.view.model();
    for (const auto changed :
         {&QAbstractItemModel::columnsInserted, &QAbstractItemModel::columnsRemoved})
        connect(model, changed, this, &FilterFields::makeSoon);
    for (const auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(model, changed, this, &FilterFields::tellCount);
    connect(model, &QAbstractItemModel::modelReset, this, &FilterFields::tellCount);
    connect(model, &QAbstractItemModel::headerDataChanged, this, &FilterFields::refreshSoon);
    // A host may give the view another header; the fields go with this one.
    connect(header, &QObject::destroyed, this, [this] { m_fields.clear(); });
}

FilterFields::~FilterFields()
{
    for (const Field &field : std::as_const(m_fields))
        delete field.line.data();
}

void FilterFields::setWhere(Where where)
{
    m_where = where;
    for (QWidget *widget : {static_cast<QWidget *>(&m_tools.view),
                            static_cast<QWidget *>(m_tools.view.horizontalHeader())}) {
        widget->removeEventFilter(this);
        if (where != Where::Nowhere)
            widget->installEventFilter(this);
    }
    make();
}

void FilterFields::makeSoon()
{
    if (std::exchange(m_isStale, true))
        return;
    QMetaObject::invokeMethod(
        this, [this] { make(); }, Qt::QueuedConnection);
}

void FilterFields::refreshSoon()
{
    if (std::exchange(m_isWaiting, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isWaiting = false;
            refresh();
        },
        Qt::QueuedConnection);
}

// Its column may have gone, and the fields are made anew soon after.
bool FilterFields::isThere(const Field &field) const
{
    return field.line && !m_isStale && field.column < m_tools.table.columns();
}

// Those of columns that stay keep what is typed in them by the order's filters.
void FilterFields::make()
{
    m_isStale = false;
    if (m_where == Where::Nowhere && m_fields.isEmpty())
        return;
    for (const Field &field : std::as_const(m_fields)) {
        field.line->hide();
        field.line->deleteLater(); // it may be what has led here
    }
    m_fields.clear();
    m_used = nullptr;
    const Where where = m_tools.table.hasHeaderRoom() ? m_where : Where::Nowhere;
    if (where == Where::Above)
        m_fields.append({makeField(), CellFilter::anyColumn});
    for (int column = 0; where == Where::InColumns && column < m_tools.table.columns(); ++column)
        m_fields.append({makeField(), column});
    QWidget *before = &m_tools.view;
    for (const Field &field : std::as_const(m_fields)) {
        QWidget::setTabOrder(before, field.line);
        before = field.line;
    }
    m_room = -1;
    refresh();
    place();
}

// Fonts and styles change.
void FilterFields::fitRoom()
{
    const int room = m_fields.isEmpty() ? 0 : m_fields.constFirst().line->sizeHint().height();
    if (std::exchange(m_room, room) != room)
        m_tools.table.setHeaderRoom(m_where == Where::Above ? room : 0,
                                    m_where == Where::InColumns ? room : 0);
}

QLineEdit *FilterFields::makeField()
{
    auto *line = new QLineEdit(m_tools.view.horizontalHeader());
    line->setObjectName(u"FilterField"_s);
    line->setClearButtonEnabled(true);
    line->setCursor(Qt::IBeamCursor);
    FieldMenu::installOn(*line);
    line->installEventFilter(this);
    connect(line, &QLineEdit::textEdited, this, [this, line] { useSoon(line); });
    return line;
}

// A host that is told of it may destroy the field. Several letters at once are one change.
void FilterFields::useSoon(const QLineEdit *line)
{
    Field *field = fieldOf(line);
    if (!field || std::exchange(field->isWaiting, true))
        return;
    QMetaObject::invokeMethod(
        this, [this, line] { use(line); }, Qt::QueuedConnection);
}

// A line that has gone meanwhile is found no more.
void FilterFields::use(const QLineEdit *line)
{
    Field *field = fieldOf(line);
    if (!field)
        return;
    field->isWaiting = false;
    if (!isThere(*field))
        return;
    m_used = field->line;
    m_tools.order.setFilter(field->column, field->line->text());
}

void FilterFields::refresh()
{
    for (const Field &field : std::as_const(m_fields)) {
        if (!isThere(field))
            continue;
        const bool isAny = field.column == CellFilter::anyColumn;
        const QString name = Localise(u"Filter"_s);
        field.line->setPlaceholderText(name);
        field.line->setAccessibleName(
            isAny ? name : u"%1: %2"_s.arg(name, m_tools.table.columnText(field.column)));
        nameClearButton(*field.line);
        const QString text = m_tools.order.filter(field.column);
        if (field.line->text() != text && !field.isWaiting)
            field.line->setText(text);
    }
    tellCount();
}

void FilterFields::tellCount()
{
    for (const Field &field : std::as_const(m_fields)) {
        field.line->setToolTip({});
        field.line->setAccessibleDescription({});
        if (!m_used && !field.line->text().isEmpty())
            m_used = field.line;
    }
    if (!m_used || !m_tools.order.isFiltered()) {
        delete m_count.data();
        return;
    }
    const QString count = Localise(u"%1 of %2"_s)
                              .arg(QString::number(m_tools.view.model()->rowCount()),
                                   QString::number(m_tools.table.rows()));
    m_used->setAccessibleDescription(count);
    QAccessibleEvent told(m_used, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&told);
    m_used->setToolTip(count);
    if (!m_count) {
        m_count = new QLabel(m_tools.view.horizontalHeader());
        m_count->setObjectName(u"FilterCount"_s);
        m_count->setForegroundRole(QPalette::PlaceholderText);
        m_count->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    m_count->setText(count);
    place();
}

// The fields, and in one the count, where there is room for it beside some letters.
void FilterFields::place()
{
    const QHeaderView &header = *m_tools.view.horizontalHeader();
    fitRoom();
    for (const Field &field : std::as_const(m_fields)) {
        if (!isThere(field))
            continue;
        const int height = field.line->sizeHint().height();
        const bool isAny = field.column == CellFilter::anyColumn;
        const int shift = isAny ? 0 : m_tools.table.shift(field.column);
        const int left = isAny ? 0 : header.sectionViewportPosition(field.column) + shift;
        const int width = isAny ? header.width() : header.sectionSize(field.column);
        field.line->setGeometry(left, isAny ? 0 : header.height() - height, width, height);
        field.line->setVisible(isAny || !header.isSectionHidden(field.column));
        if (shift != 0) // those that are scrolled lie under it
            field.line->raise();
    }
    if (!m_count)
        return;
    const QSize size = m_count->sizeHint();
    const QLineEdit *field = fieldForCount(size);
    m_count->setVisible(field);
    if (!field)
        return;
    const QRect room = field->geometry();
    const int left = field->isRightToLeft() ? room.left() + clearButton
                                            : room.right() - size.width() - clearButton;
    m_count->setGeometry(left, room.center().y() - size.height() / 2, size.width(), size.height());
    m_count->raise();
}

// The one that was used, or the last one that is empty and seen whole.
QLineEdit *FilterFields::fieldForCount(const QSize &count) const
{
    const auto hasRoom = [this, &count](const QLineEdit *line) {
        const int text = line->fontMetrics().horizontalAdvance(
            line->text().isEmpty() ? line->placeholderText() : line->text());
        return line->isVisible() && text + count.width() + 2 * clearButton <= line->width() &&
               m_tools.view.horizontalHeader()->rect().contains(line->geometry());
    };
    if (m_used && hasRoom(m_used))
        return m_used;
    for (auto field = m_fields.crbegin(); field != m_fields.crend(); ++field) {
        if (field->line->text().isEmpty() && hasRoom(field->line))
            return field->line;
    }
    return nullptr;
}

FilterFields::Field *FilterFields::fieldOf(const QObject *line)
{
    const auto found = std::find_if(m_fields.begin(), m_fields.end(), [line](const Field &field) {
        return field.line.data() == line;
    });
    return found == m_fields.end() ? nullptr : &*found;
}

bool FilterFields::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool isHeader = watched == m_tools.view.horizontalHeader();
    const bool isKey = type == QEvent::KeyPress || type == QEvent::KeyRelease;
    if (isHeader && isKey)
        return true; // what a field has no use for; no key of the rows
    if (isHeader && type == QEvent::Resize)
        place();
    if (type == QEvent::FontChange || type == QEvent::StyleChange)
        QMetaObject::invokeMethod(
            this, [this] { place(); }, Qt::QueuedConnection);
    if (type == QEvent::LanguageChange)
        refreshSoon();
    const auto *line = qobject_cast<QLineEdit *>(watched); // none while it is destroyed
    const Field *field = line ? fieldOf(line) : nullptr;
    if (field && type == QEvent::FocusIn)
        scrollTo(*field);
    if (field && type == QEvent::KeyPress &&
        act(*field->line, static_cast<const QKeyEvent *>(event)->key()))
        return true;
    return QObject::eventFilter(watched, event);
}

// A field over the rows is always seen.
void FilterFields::scrollTo(const Field &field)
{
    if (field.column == CellFilter::anyColumn || !isThere(field))
        return;
    const QHeaderView &header = *m_tools.view.horizontalHeader();
    if (m_tools.table.shift(field.column) != 0)
        return;
    const QRect kept = m_tools.table.keptArea();
    const int begin = header.isRightToLeft() ? 0 : kept.width();
    const int end = header.viewport()->width() - (header.isRightToLeft() ? kept.width() : 0);
    const int left = header.sectionViewportPosition(field.column);
    const int beyond = left + header.sectionSize(field.column) - end;
    const int by = left < begin ? left - begin : std::clamp(beyond, 0, left - begin);
    QScrollBar &bar = *m_tools.view.horizontalScrollBar();
    if (by != 0 && m_tools.view.horizontalScrollMode() == QAbstractItemView::ScrollPerItem)
        bar.setValue(header.visualIndex(field.column));
    else
        bar.setValue(bar.value() + (header.isRightToLeft() ? -by : by));
}

bool FilterFields::act(QLineEdit &line, int key)
{
    const bool isEmpty = line.text().isEmpty();
    if (key == Qt::Key_Escape && !isEmpty) {
        line.clear();
        Q_EMIT line.textEdited({});
        return true;
    }
    const bool leaves = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down;
    if (leaves || key == Qt::Key_Escape)
        m_tools.view.setFocus(Qt::OtherFocusReason);
    return leaves || key == Qt::Key_Escape;
}

} // namespace ORVTListview
