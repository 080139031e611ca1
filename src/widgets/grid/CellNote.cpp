#include "widgets/grid/CellNote.h"

#include "widgets/look/PlainToolTip.h"

#include <QtCore/QEvent>
#include <QtGui/QAccessible>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

CellNote::CellNote(QTableView &view)
    : m_view(view)
{
    for (const QScrollBar *bar : {view.verticalScrollBar(), view.horizontalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, &CellNote::place);
    for (const QHeaderView *header : {view.verticalHeader(), view.horizontalHeader()}) {
        connect(header, &QHeaderView::sectionResized, this, &CellNote::place);
        connect(header, &QHeaderView::sectionMoved, this, &CellNote::place);
    }
    const QAbstractItemModel *model = view.model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &CellNote::place);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &CellNote::place);
    connect(model, &QAbstractItemModel::columnsInserted, this, &CellNote::place);
    connect(model, &QAbstractItemModel::columnsRemoved, this, &CellNote::place);
    connect(model, &QAbstractItemModel::layoutChanged, this, &CellNote::place);
}

CellNote::~CellNote()
{
    delete m_label.data();
}

void CellNote::show(const QModelIndex &cell, const QString &sentence, QWidget *editor)
{
    hide();
    m_cell = cell;
    m_isAtCorner = m_view.visualRect(cell).isEmpty();
    m_editor = editor;
    m_label = new QLabel(&m_view);
    m_label->setObjectName(u"CellNote"_s);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setPalette(QToolTip::palette());
    m_label->setForegroundRole(QPalette::ToolTipText);
    m_label->setBackgroundRole(QPalette::ToolTipBase);
    m_label->setAutoFillBackground(true);
    m_label->setFrameStyle(int{QFrame::Box} | int{QFrame::Plain});
    m_label->setMargin(2);
    m_label->setText(readableTip(sentence, m_label->font(), m_view));
    m_label->setAttribute(Qt::WA_TransparentForMouseEvents);
    place();
    m_label->show();
    if (editor)
        followEditor();
    m_view.installEventFilter(this);
    m_view.viewport()->installEventFilter(this);
    QAccessibleEvent told(m_label, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

void CellNote::followEditor()
{
    m_editor->setAccessibleDescription(m_label->text());
    auto *line = qobject_cast<QLineEdit *>(m_editor);
    if (!line)
        line = m_editor->findChild<QLineEdit *>();
    if (line)
        connect(line, &QLineEdit::textEdited, this, &CellNote::hide);
    else if (auto *box = qobject_cast<QCheckBox *>(m_editor))
        connect(box, &QCheckBox::toggled, this, &CellNote::hide);
    connect(m_editor, &QObject::destroyed, this, &CellNote::hide);
    m_editor->installEventFilter(this);
}

void CellNote::hide()
{
    m_view.removeEventFilter(this);
    m_view.viewport()->removeEventFilter(this);
    if (m_editor) {
        m_editor->removeEventFilter(this);
        m_editor->setAccessibleDescription(QString());
        m_editor = nullptr;
    }
    if (m_label) {
        m_label->hide();
        m_label->deleteLater(); // it may be on its way to a screen reader
        m_label = nullptr;
    }
}

// In the view.
QRect CellNote::anchor() const
{
    const QRect room = m_view.viewport()->geometry();
    if (!m_isAtCorner)
        return m_view.visualRect(m_cell).translated(room.topLeft());
    return {m_view.isRightToLeft() ? room.topRight() : room.topLeft(), QSize(1, 0)};
}

void CellNote::place()
{
    if (!m_label)
        return;
    if (!m_isAtCorner && !m_cell.isValid()) {
        hide();
        return;
    }
    const QRect room = m_view.viewport()->geometry();
    const QRect cell = anchor();
    const QSize size = m_label->sizeHint();
    const bool isBelow = cell.bottom() + 1 + size.height() <= room.bottom();
    const int top = isBelow ? cell.bottom() + 1 : cell.top() - size.height();
    const int start = m_view.isRightToLeft() ? cell.right() + 1 - size.width() : cell.left();
    const int left =
        std::clamp(start, room.left(), std::max(room.left(), room.right() + 1 - size.width()));
    m_label->setGeometry(QRect(QPoint(left, top), size));
    m_label->setVisible(m_isAtCorner || (cell.isValid() && room.intersects(cell))); // or hidden
}

bool CellNote::eventFilter(QObject *watched, QEvent *event)
{
    const bool isHidden = event->type() == QEvent::Hide;
    const bool isUsed =
        event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress;
    if (isHidden || (isUsed && !m_editor)) // it changes or closes an editor, if it is to
        hide();
    return QObject::eventFilter(watched, event);
}

} // namespace ORVTListview
