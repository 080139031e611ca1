#include "workbench/reading/ReadingDialog.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ReadingDialog::ReadingDialog(const ReadingSettings &settings, QWidget *parent)
    : QDialog(parent)
    , m_settings(settings)
    , m_seconds(new QSpinBox(this))
    , m_delay(new QSpinBox(this))
    , m_failure(new QComboBox(this))
    , m_mistake(new QComboBox(this))
{
    setWindowTitle(tr("Reading"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(makeCycle());
    layout->addWidget(makeSimulation());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addStretch();
    layout->addWidget(buttons);
}

QWidget *ReadingDialog::makeCycle()
{
    auto *part = new QGroupBox(tr("Cyclic reading"), this);
    auto *form = new QFormLayout(part);
    m_seconds->setRange(1, ReadingSettings::mostSeconds);
    m_seconds->setSuffix(u" s"_s);
    m_seconds->setValue(m_settings.seconds);
    form->addRow(tr("&Pause between readings:"), m_seconds);
    return part;
}

QWidget *ReadingDialog::makeSimulation()
{
    auto *part = new QGroupBox(tr("Simulated controller"), this);
    auto *form = new QFormLayout(part);
    m_delay->setRange(0, ReadingSettings::mostDelay);
    m_delay->setSingleStep(50);
    m_delay->setSuffix(u" ms"_s);
    m_delay->setValue(m_settings.simulated.delay);
    m_failure->addItems(
        {tr("None"), tr("Cannot be reached"), tr("Refuses"), tr("Stops answering in the middle")});
    m_failure->setCurrentIndex(m_settings.simulated.failure);
    m_mistake->addItems({tr("None"), tr("A text for a number"), tr("Values are missing"),
                         tr("A point that nobody asked for")});
    m_mistake->setCurrentIndex(m_settings.simulated.mistake);
    form->addRow(tr("&Time for an answer:"), m_delay);
    form->addRow(tr("&Failure:"), m_failure);
    form->addRow(tr("&Wrong answers:"), m_mistake);
    return part;
}

ReadingSettings ReadingDialog::settings() const
{
    ReadingSettings settings = m_settings;
    settings.seconds = m_seconds->value();
    settings.simulated.delay = m_delay->value();
    settings.simulated.failure =
        static_cast<SimulatedBehaviour::Failure>(m_failure->currentIndex());
    settings.simulated.mistake =
        static_cast<SimulatedBehaviour::Mistake>(m_mistake->currentIndex());
    return settings;
}

} // namespace ORVTListview
