#include "widgets/view/ReportDelegate.h"

#include "widgets/input/FieldMenu.h"
#include "widgets/look/CellText.h"
#include "widgets/look/SelectionLook.h"
#include "widgets/view/PlainCell.h"

#include <QtCore/QMetaProperty>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>

#include <limits>

namespace ORVTListview {
namespace {

// More letters than have room in this width, in any font that can be read.
qsizetype lettersWithin(int width)
{
    constexpr int room = 64;
    return std::max(0, width) + room;
}

} // namespace

void ReportDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    cell.state &= ~QStyle::State_HasFocus;
    initStyleOption(&cell, index);
    cell.text = beginningOf(cell.text, lettersWithin(cell.rect.width()));
    drawCell(*painter, cell, m_letters);
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QColor colour =
        option.palette.color(selected ? selectedTextRole(option.widget) : QPalette::Text);
    painter->save();
    painter->setPen(QPen(colour, 1, Qt::DotLine));
    // The pen has its middle on the line: what it drew beyond the cell would stay there.
    const qreal half = painter->device()->devicePixelRatio() > 1 ? 0.5 : 0;
    painter->drawRect(QRectF(option.rect).adjusted(half, half, half - 1, half - 1));
    painter->restore();
}

QWidget *ReportDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const
{
    if (QWidget *made = m_maker ? m_maker(parent, index) : nullptr)
        return made;
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto *line = qobject_cast<QLineEdit *>(editor)) {
        FieldMenu::installOn(*line);
        line->setMaxLength(std::numeric_limits<int>::max());
        line->setAccessibleName(index.data().toString()); // what is renamed
    }
    return editor;
}

QString ReportDelegate::displayText(const QVariant &value, const QLocale &) const
{
    return cellText(value.toString());
}

// Also called when the program changes the cell meanwhile.
void ReportDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *line = qobject_cast<QLineEdit *>(editor);
    if (!line) // or the one in it
        line = editor->findChild<QLineEdit *>();
    if (!line) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    if (line->isModified() || line->text() == index.data(Qt::EditRole).toString())
        return;
    const bool isAllSelected = line->selectedText() == line->text();
    QStyledItemDelegate::setEditorData(editor, index);
    if (isAllSelected) // as when it was opened: typing replaces it
        line->selectAll();
}

void ReportDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (m_dresser)
        m_dresser(*option, index);
    option->text = inOwnDirection(option->text, option->direction);
}

void ReportDelegate::setModelData(QWidget *editor, QAbstractItemModel *,
                                  const QModelIndex &index) const
{
    const QMetaProperty entered = editor->metaObject()->userProperty();
    if (entered.isValid())
        Q_EMIT labelEntered(index, entered.read(editor).toString());
}

// What has a button beside its field needs the room for both.
void ReportDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                          const QModelIndex &index) const
{
    QStyledItemDelegate::updateEditorGeometry(editor, option, index);
    if (qobject_cast<QLineEdit *>(editor))
        return;
    QRect place = option.rect;
    const int wider = editor->minimumSizeHint().width() - place.width();
    if (wider > 0)
        place.adjust(option.direction == Qt::RightToLeft ? -wider : 0, 0,
                     option.direction == Qt::RightToLeft ? 0 : wider, 0);
    editor->setGeometry(place);
}

void ReportDelegate::finish(QWidget &editor)
{
    Q_EMIT commitData(&editor);
    Q_EMIT closeEditor(&editor);
}

// At once: the toolkit's own would let the next key come first.
bool ReportDelegate::eventFilter(QObject *watched, QEvent *event)
{
    auto *editor = qobject_cast<QLineEdit *>(watched);
    if (editor && event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            finish(*editor);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}

bool ReportDelegate::isElided(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (index.data().toString().size() > lettersWithin(option.rect.width()))
        return true;
    QStyleOptionViewItem filled = option;
    initStyleOption(&filled, index);
    const QStyle &style = *filled.widget->style();
    const QRect room = style.subElementRect(QStyle::SE_ItemViewItemText, &filled, filled.widget);
    const int gap = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &filled, filled.widget) + 1;
    return filled.fontMetrics.horizontalAdvance(filled.text) > room.width() - 2 * gap;
}

} // namespace ORVTListview
