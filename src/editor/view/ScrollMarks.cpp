#include "editor/view/ScrollMarks.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>

#include <algorithm>

namespace ORVTListview {
namespace {

class BarOption : public QStyleOptionSlider
{
public:
    explicit BarOption(const QScrollBar &bar)
    {
        initFrom(&bar);
        orientation = bar.orientation();
        minimum = bar.minimum();
        maximum = bar.maximum();
        pageStep = bar.pageStep();
        sliderPosition = bar.sliderPosition();
        sliderValue = bar.value();
        subControls = QStyle::SC_All;
    }
};

} // namespace

ScrollMarks::ScrollMarks(QPlainTextEdit &box)
    : QWidget(box.verticalScrollBar())
    , m_box(box)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setObjectName(QStringLiteral("ScrollMarks"));
    setFocusPolicy(Qt::NoFocus);
    hide();
    box.verticalScrollBar()->installEventFilter(this);
    connect(&box, &QPlainTextEdit::blockCountChanged, this, [this] { update(); });
}

void ScrollMarks::addSource(const Source &source)
{
    m_sources.append(source);
}

void ScrollMarks::refresh()
{
    setVisible(std::any_of(m_sources.cbegin(), m_sources.cend(),
                           [](const Source &source) { return !source().isEmpty(); }));
    setGeometry(m_box.verticalScrollBar()->rect());
    update();
}

bool ScrollMarks::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(m_box.verticalScrollBar()->rect());
    return QWidget::eventFilter(watched, event);
}

void ScrollMarks::paintEvent(QPaintEvent *)
{
    constexpr int thick = 2;
    const QScrollBar &bar = *m_box.verticalScrollBar();
    const BarOption option(bar);
    const QRect groove = bar.style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                                     QStyle::SC_ScrollBarGroove, &bar);
    const QTextDocument &text = *m_box.document();
    const double lines = std::max(1, text.lineCount());
    QPainter painter(this);
    int last = -1;
    for (const Source &source : std::as_const(m_sources)) {
        for (const LineMark &mark : source()) {
            const int line = text.findBlock(mark.position).firstLineNumber();
            const int y = groove.top() + static_cast<int>(groove.height() * (line + 0.5) / lines);
            if (y == last) // one of many on this row
                continue;
            last = y;
            painter.fillRect(width() / 4, y - thick / 2, width() - width() / 2, thick, mark.colour);
        }
        last = -1;
    }
}

} // namespace ORVTListview
