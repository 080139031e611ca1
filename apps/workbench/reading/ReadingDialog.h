#pragma once

#include "workbench/reading/ReadingSettings.h"

#include <QtWidgets/QDialog>

class QComboBox;
class QFormLayout;
class QSpinBox;

namespace ORVTListview {

// Asks how values are read, and how the simulated controller behaves.
class ReadingDialog : public QDialog
{
    Q_OBJECT

public:
    ReadingDialog(const ReadingSettings &settings, QWidget *parent);

    ReadingSettings settings() const;

private:
    QWidget *makeCycle();
    QWidget *makeSimulation();

    ReadingSettings m_settings;
    QSpinBox *m_seconds;
    QSpinBox *m_delay;
    QComboBox *m_failure;
    QComboBox *m_mistake;
};

} // namespace ORVTListview
