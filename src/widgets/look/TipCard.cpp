#include "widgets/look/TipCard.h"

#include "widgets/look/CellText.h"
#include "widgets/look/PlainToolTip.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr int gap = 4;                 // logical pixels, to what it belongs to
constexpr qsizetype mostLetters = 100; // of a part that is one line

void set(QLabel &label, const QString &text)
{
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

void setLine(QLabel &label, const QString &text, int width)
{
    const QString line =
        QFontMetrics(label.font())
            .elidedText(shownText(beginningOf(text, mostLetters)), Qt::ElideRight, width);
    set(label, line.isEmpty() ? line : inOwnDirection(line, label.layoutDirection()));
}

int clamped(int wanted, int least, int most)
{
    return std::max(least, std::min(wanted, most));
}

} // namespace

TipCard::TipCard(QWidget &owner)
    : QFrame(&owner, Qt::ToolTip | Qt::WindowTransparentForInput)
    , m_picture(new QLabel(this))
    , m_title(new QLabel(this))
    , m_kind(new QLabel(this))
    , m_value(new QLabel(this))
    , m_text(new QLabel(this))
{
    setObjectName(QStringLiteral("TipCard"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(m_picture, 0, 0);
    grid->addWidget(m_title, 0, 1);
    grid->addWidget(m_kind, 0, 2);
    grid->addWidget(m_value, 1, 0, 1, 3);
    grid->addWidget(m_text, 2, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    for (QLabel *label : {m_title, m_kind, m_value, m_text}) {
        label->setTextFormat(Qt::PlainText);
        label->setForegroundRole(QPalette::ToolTipText);
    }
}

// The palette and the font of tips may have changed since it was shown last.
void TipCard::fill(const TipContent &content)
{
    const QFont font = QToolTip::font();
    QFont strong = font;
    strong.setBold(true);
    setFont(font);
    setPalette(QToolTip::palette());
    setLayoutDirection(parentWidget()->layoutDirection());
    for (QLabel *label : {m_title, m_kind, m_value, m_text})
        label->setFont(label == m_title ? strong : font);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_picture->setPixmap(content.picture.pixmap(QSize(side, side), devicePixelRatioF()));
    m_picture->setVisible(!content.picture.isNull());
    const int width = widestTip(*this, font);
    setLine(*m_title, content.title, width * 2 / 3);
    setLine(*m_kind, content.kind, width / 3);
    setLine(*m_value, content.value, width);
    set(*m_text, content.text.isEmpty() ? QString() : readableTip(content.text, font, *this));
    const int letter = fontMetrics().averageCharWidth();
    const int margin = 1 + style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, this);
    layout()->setContentsMargins(margin + letter / 2, margin + letter / 4, margin + letter / 2,
                                 margin + letter / 4);
    auto *grid = static_cast<QGridLayout *>(layout());
    grid->setHorizontalSpacing(letter);
    grid->setVerticalSpacing(letter / 4);
    setWindowOpacity(style()->styleHint(QStyle::SH_ToolTipLabel_Opacity, nullptr, this) / 255.0);
    setAccessibleName(
        QStringList{content.title, content.kind, m_value->text(), m_text->text()}.join(u' '));
    layout()->activate();
}

QRect TipCard::screenOf(const QRect &place) const
{
    const QScreen *screen = QGuiApplication::screenAt(place.center());
    return (screen ? screen : parentWidget()->screen())->availableGeometry();
}

void TipCard::showIn(const QRect &place)
{
    setGeometry(place);
    show();
    raise();
}

// Never over the word, which the mouse is on.
void TipCard::showAt(const QRect &word, const TipContent &content)
{
    fill(content);
    const QRect screen = screenOf(word);
    const QSize size = sizeHint();
    const bool isUnder = word.bottom() + gap + size.height() <= screen.bottom() ||
                         word.top() - gap - size.height() < screen.top();
    const int top = isUnder ? word.bottom() + 1 + gap : word.top() - gap - size.height();
    const int start = isRightToLeft() ? word.right() + 1 - size.width() : word.left();
    showIn({QPoint(clamped(start, screen.left(), screen.right() + 1 - size.width()), top), size});
}

void TipCard::showBeside(const QRect &row, const TipContent &content)
{
    fill(content);
    const QRect screen = screenOf(row);
    const QSize size = sizeHint();
    const int right = row.right() + 1 + gap;
    const int left = row.left() - gap - size.width();
    const bool fitsRight = right + size.width() <= screen.right() + 1;
    const bool fitsLeft = left >= screen.left();
    const bool isRight = isRightToLeft() ? !fitsLeft : fitsRight || !fitsLeft;
    const int top = clamped(row.top(), screen.top(), screen.bottom() + 1 - size.height());
    showIn({QPoint(isRight ? right : left, top), size});
}

void TipCard::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionFrame option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_PanelTipLabel, option);
}

} // namespace ORVTListview
