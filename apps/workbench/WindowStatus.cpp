#include "WindowStatus.h"

#include "OpeningProgress.h"

#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QStyle>

namespace ORVTListview {
namespace {

// One line, which ends in dots where it has not the room.
class ShortenedLabel final : public QLabel
{
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QRect room = contentsRect();
        const auto left = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
        style()->drawItemText(
            &painter, room, static_cast<int>(left | Qt::AlignVCenter), palette(), isEnabled(),
            fontMetrics().elidedText(text(), Qt::ElideRight, room.width()), foregroundRole());
    }
};

} // namespace

WindowStatus::WindowStatus(QStatusBar &bar)
    : QObject(&bar)
    , m_bar(bar)
    , m_program(new ShortenedLabel(&bar))
    , m_opening(new OpeningProgress(&bar))
    , m_position(new QLabel(&bar))
{
    m_program->setTextFormat(Qt::PlainText);
    m_program->setContentsMargins(3, 0, 0, 0); // in line with the program
    bar.addWidget(m_program);
    bar.addPermanentWidget(m_opening);
    m_opening->hide(); // the bar shows what it takes
    bar.addPermanentWidget(m_position);
    bar.setMinimumHeight(bar.sizeHint().height()); // also with nothing in it
}

void WindowStatus::tell(const QString &text)
{
    m_bar.showMessage(text, 5000);
}

void WindowStatus::tellLonger(const QString &text)
{
    m_bar.showMessage(text, 10000);
}

void WindowStatus::tellLasting(const QString &text)
{
    m_bar.showMessage(text);
}

void WindowStatus::takeBack()
{
    m_bar.clearMessage();
}

void WindowStatus::tellOfStep(const QString &text)
{
    m_step = text;
    tell(text);
}

void WindowStatus::takeBackStep()
{
    if (!m_step.isEmpty() && m_bar.currentMessage() == m_step)
        m_bar.clearMessage();
    m_step.clear();
}

bool WindowStatus::isTelling() const
{
    return !m_bar.currentMessage().isEmpty();
}

void WindowStatus::showProgram(const QString &text)
{
    m_program->setText(text);
}

void WindowStatus::showPosition(const QString &text)
{
    m_position->setText(text);
}

void WindowStatus::setPositionVisible(bool visible)
{
    m_position->setVisible(visible);
}

void WindowStatus::retranslate()
{
    m_opening->retranslate();
}

} // namespace ORVTListview
