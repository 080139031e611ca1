#pragma once

#include <QtWidgets/QScrollArea>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace ORVTListview {

// The page of the first start: what the workbench is, and what one may begin with.
class FirstSteps : public QScrollArea
{
    Q_OBJECT

public:
    explicit FirstSteps(QWidget *parent);

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    void sampleWanted();
    void projectWanted();
    void keysWanted();

    // Back to what was there before.
    void closed();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct Step
    {
        QPushButton *button = nullptr;
        QLabel *text = nullptr;
    };
    Step addStep(QBoxLayout &layout, void (FirstSteps::*wanted)());
    void enlargeTitle();
    void alignButtons();

    QLabel *m_title;
    QLabel *m_about;
    Step m_sample;
    Step m_project;
    Step m_keys;
    Step m_close;
};

} // namespace ORVTListview
