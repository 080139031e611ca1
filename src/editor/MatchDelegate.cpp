#include "editor/MatchDelegate.h"

#include "editor/MatchModel.h"
#include "editor/view/ViewColours.h"
#include "widgets/look/CellText.h"
#include "widgets/look/SelectionLook.h"

#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

constexpr int room = 4; // at the row's ends and behind the picture
constexpr int gap = 16; // between columns

// Takes pieces off a row from where one begins to read.
class Columns
{
public:
    Columns(const QRect &row, Qt::LayoutDirection direction)
        : m_row(row)
        , m_direction(direction)
        , m_end(row.width() - room)
    {
    }

    QRect take(int width, int behind)
    {
        const int taken = std::clamp(width, 0, std::max(0, m_end - m_at));
        const QRect piece(m_row.left() + std::exchange(m_at, m_at + taken + behind), m_row.top(),
                          taken, m_row.height());
        return QStyle::visualRect(m_direction, m_row, piece);
    }
    QRect rest() { return take(m_row.width(), 0); }

private:
    QRect m_row;
    Qt::LayoutDirection m_direction;
    int m_end;
    int m_at = room;
};

void drawText(QPainter &painter, const QRect &place, const QStyleOptionViewItem &item,
              const QString &text, const MatchedLetters &letters)
{
    const QFontMetrics metrics(letters.length > 0 ? MatchDelegate::strong(item.font) : item.font);
    const QString shown = metrics.elidedText(inOwnDirection(cellText(text), item.direction),
                                             Qt::ElideRight, place.width());
    QTextLayout layout(shown, item.font);
    QTextOption option(QStyle::visualAlignment(item.direction, Qt::AlignLeft));
    option.setTextDirection(item.direction);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    QTextCharFormat strong;
    strong.setFontWeight(QFont::Bold);
    const int offset = shown.startsWith(QChar(u'\u2068')) ? 1 : 0;
    layout.setFormats({{letters.start + offset, letters.length, strong}});
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(place.width());
    layout.endLayout();
    const qreal top = place.top() + (place.height() - line.height()) / 2;
    layout.draw(&painter, QPointF(place.left(), top));
}

} // namespace

QFont MatchDelegate::strong(QFont font)
{
    font.setWeight(QFont::Bold);
    return font;
}

int MatchDelegate::rowWidth() const
{
    const auto column = [](int width) { return width > 0 ? gap + width : 0; };
    return room + m_widths.icon + room + m_widths.text + column(m_widths.kind) +
           column(m_widths.description) + room;
}

void MatchDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    item.state |= QStyle::State_Active; // a pop-up's window never is
    const QIcon icon = std::exchange(item.icon, QIcon());
    const QString text = std::exchange(item.text, QString());
    QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool isSelected = item.state.testFlag(QStyle::State_Selected);
    const auto role = isSelected ? selectedTextRole(item.widget) : QPalette::Text;
    const QColor colour = item.palette.color(QPalette::Active, role);
    painter->save();
    painter->setClipRect(item.rect, Qt::IntersectClip);
    Columns columns(item.rect, item.direction);
    icon.paint(painter, columns.take(m_widths.icon, room), Qt::AlignCenter,
               isSelected ? QIcon::Selected : QIcon::Normal);
    painter->setPen(colour);
    const auto *model = static_cast<const MatchModel *>(index.model());
    drawText(*painter, columns.take(m_widths.text, gap), item, text,
             matchedLetters(text, model->word()));
    if (!isSelected)
        painter->setPen(
            ViewColours::quietText(colour, item.palette.color(QPalette::Active, QPalette::Base)));
    if (m_widths.kind > 0)
        drawText(*painter, columns.take(m_widths.kind, gap), item,
                 index.data(MatchModel::KindRole).toString(), {});
    if (m_widths.description > 0)
        drawText(*painter, columns.rest(), item, index.data(MatchModel::DescriptionRole).toString(),
                 {});
    painter->restore();
}

QSize MatchDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {rowWidth(), m_widths.row};
}

} // namespace ORVTListview
