#include "workbench/reading/ReadingStatus.h"

#include "project/controller/PointReading.h"
#include "workbench/PlainTexts.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

#include <utility>

namespace ORVTListview {

ReadingStatus::ReadingStatus(PointReading &reading, QWidget *parent)
    : QWidget(parent)
    , m_reading(reading)
    , m_text(new QLabel(this))
    , m_stop(new QToolButton(this))
{
    setObjectName(QStringLiteral("ReadingStatus"));
    auto *layout = new QHBoxLayout(this);
    m_text->setTextFormat(Qt::PlainText);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_stop);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setMinimumWidth(1); // a small window stays small
    m_stop->setAutoRaise(true);
    m_stop->setFocusPolicy(Qt::TabFocus); // a click leaves the focus in the table
    hide();
    retranslate();
    connect(m_stop, &QToolButton::clicked, &reading, &PointReading::stop);
    connect(&reading, &PointReading::begun, this, &ReadingStatus::showProgress);
    connect(&reading, &PointReading::valuesRead, this, [this] {
        if (m_reading.isReading())
            showProgress();
    });
    connect(&reading, &PointReading::ended, this, &ReadingStatus::showEnd);
    connect(&reading, &PointReading::dropped, this, [this] {
        m_isWanted = false;
        tell({});
        hide();
    });
}

void ReadingStatus::retranslate()
{
    m_stop->setText(tr("Stop"));
    m_stop->setToolTip(tr("Stop reading; what has been read stays"));
    if (m_reading.isReading())
        showProgress();
    else if (!isHidden())
        tell(sentence());
}

void ReadingStatus::showProgress()
{
    m_isWanted = true;
    m_stop->show();
    tell(tr("Reading values: %1 of %2")
             .arg(QString::number(m_reading.answered()), QString::number(m_reading.asked())));
    show();
}

void ReadingStatus::showEnd()
{
    const bool wasWanted = std::exchange(m_isWanted, false);
    const bool isWhole = m_reading.answered() == m_reading.asked() && m_reading.fault().isEmpty();
    m_stop->hide();
    setVisible(!isWhole);
    tell(isWhole ? QString() : sentence());
    if (isWhole && wasWanted)
        Q_EMIT succeeded();
}

// Of a reading that did not bring everything.
QString ReadingStatus::sentence() const
{
    const QString reason = m_reading.fault().isEmpty() ? tr("Stopped") : m_reading.fault();
    return tr("%1. Values read: %2 of %3.")
        .arg(reason, QString::number(m_reading.answered()), QString::number(m_reading.asked()));
}

void ReadingStatus::tell(const QString &text)
{
    const int most = fontMetrics().averageCharWidth() * 80;
    m_text->setText(fontMetrics().elidedText(text, Qt::ElideRight, most));
    m_text->setToolTip(PlainTexts::toolTip(text));
    m_text->setAccessibleName(text);
    if (m_reading.isReading() || text.isEmpty())
        return; // each step would be read out
    QAccessibleEvent alert(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace ORVTListview
