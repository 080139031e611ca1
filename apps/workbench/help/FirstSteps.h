#pragma once

#include "workbench/ActionPage.h"

namespace ORVTListview {

// The page of the first start: what the workbench is, and what one may begin with.
class FirstSteps : public ActionPage
{
    Q_OBJECT

public:
    explicit FirstSteps(QWidget *parent);

    void retranslate() override;

Q_SIGNALS:
    void sampleWanted();
    void newWanted();
    void projectWanted();
    void keysWanted();

    // Back to what was there before.
    void closed();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    Step m_sample;
    Step m_new;
    Step m_project;
    Step m_keys;
    Step m_close;
};

} // namespace ORVTListview
